#include "tag_record.h"

#include "metadata_keys.h"

#include "platform/file_attributes.h"
#include "platform/file_path.h"
#include "platform/image.h"
#include "platform/log.h"
#include "taglib/asf/load_file_info.h"
#include "taglib/asf/store_file_info.h"
#include "taglib/avi/load_file_info.h"
#include "taglib/avi/store_file_info.h"
#include "taglib/id3/load_file_info.h"
#include "taglib/id3/store_file_info.h"
#include "taglib/trace.h"

#include <QStringDecoder>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <iterator>
#include <optional>
#include <span>

namespace velmora {

namespace {

constexpr TagModule id3Module = {id3_load_file_info, id3_store_file_info, id3Obstacle};
constexpr TagModule asfModule = {
    asf_load_file_info, [](const char* path, _file_info_t* info) { return asf_store_file_info(path, info); },
    asfObstacle};
constexpr TagModule aviModule = {avi_load_file_info, avi_store_file_info, aviObstacle};

struct ModuleRow {
    const char* extension;
    const TagModule* module;
};
constexpr std::array moduleTable = {
    ModuleRow{"asf", &asfModule}, ModuleRow{"wmv", &asfModule},  ModuleRow{"wma", &asfModule},
    ModuleRow{"avi", &aviModule}, ModuleRow{"divx", &aviModule},
};

/** A text of the dictionary and where it is in a record. */
struct RecordSlot {
    const char* key; ///< in the dictionary
    char* _file_info_t::*text;
    std::uint32_t flag; ///< the record's bit for it
};

/** The slots of films: the record's three general ones are title, cast and synopsis. */
constexpr RecordSlot filmSlots[] = {
    {"title", &_file_info_t::title, file_info_flag::title},
    {"cast", &_file_info_t::artist, file_info_flag::artist},
    {"synopsis", &_file_info_t::desc, file_info_flag::desc},
    {"genre", &_file_info_t::genre, file_info_flag::genre},
    {"director", &_file_info_t::director, file_info_flag::director},
    {"rating", &_file_info_t::rating, file_info_flag::rating},
};

/** The slots of songs and of everything else: the three general ones are album, artist and title. */
constexpr RecordSlot songSlots[] = {
    {"album", &_file_info_t::title, file_info_flag::title},
    {"artist", &_file_info_t::artist, file_info_flag::artist},
    {"title", &_file_info_t::desc, file_info_flag::desc},
    {"genre", &_file_info_t::genre, file_info_flag::genre},
};

std::span<const RecordSlot> slotsOf(int type) {
    return type == videoMedia ? std::span<const RecordSlot>(filmSlots) : songSlots;
}

std::optional<QString> decoded(QByteArrayView bytes, int encoding) {
    switch (encoding) {
    case 4: {
        // Stateless, so that a truncated sequence at the end is an error too; a byte order mark stays in the
        // text.
        QStringDecoder decoder(QStringConverter::Utf8,
                               QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
        QString text = decoder.decode(bytes);
        return decoder.hasError() ? std::nullopt : std::optional(text);
    }
    case 5:
        return QString::fromLatin1(bytes);
    default:
        return std::nullopt; // never reached: Latin 1 takes every byte sequence
    }
}

QString decodedSlot(const char* text) {
    return text ? decodeTagText(QByteArrayView(text)) : QString();
}

QString shown(const char* text) {
    return text ? decodeTagText(QByteArrayView(text)) : QStringLiteral("(null)");
}

/** The record of a file's tag, freed with this object; empty where no tag can be read. */
class LoadedRecord {
public:
    explicit LoadedRecord(const MediaKind& kind) {
        const TagModule& module = tagModuleOfExtension(kind.extension);
        isLoaded_ = !isPipeOrDevice(kind.taggedFile) &&
                    module.load(pathBytes(kind.taggedFile).constData(), &info_) != 0;
    }
    LoadedRecord(const LoadedRecord&) = delete;
    LoadedRecord& operator=(const LoadedRecord&) = delete;
    ~LoadedRecord() { id3_free_file_info(&info_); }

    [[nodiscard]] bool isLoaded() const { return isLoaded_; }
    [[nodiscard]] const _file_info_t& info() const { return info_; }

private:
    _file_info_t info_{};
    bool isLoaded_ = false;
};

/** The record that a store function reads, and the bytes that it borrows. */
class StoreRecord {
public:
    StoreRecord(int type, const QVariantMap& metadata) : cover_(metadata.value(coverKey).value<ImageRef>()) {
        for (const RecordSlot& slot : slotsOf(type)) {
            borrow(slot, metadata.value(QLatin1String(slot.key)));
        }
        info_.year = metadata.value(yearKey).toInt();
        info_.picture = cover_.get();
        info_.flags |= info_.year != 0 ? file_info_flag::year : 0;
        info_.flags |= info_.picture ? file_info_flag::picture : 0;
    }
    StoreRecord(const StoreRecord&) = delete;
    StoreRecord& operator=(const StoreRecord&) = delete;

    [[nodiscard]] _file_info_t& info() { return info_; }

private:
    void borrow(const RecordSlot& slot, const QVariant& value) {
        if (!value.isValid()) {
            return;
        }
        QByteArray& bytes = texts_[textCount_++];
        bytes = value.toString().toUtf8();
        info_.*slot.text = bytes.data();
        info_.flags |= bytes.isEmpty() ? 0 : slot.flag;
    }

    std::array<QByteArray, std::size(filmSlots)> texts_;
    std::size_t textCount_ = 0;
    ImageRef cover_;
    _file_info_t info_{};
};

} // namespace

void readTagInPlace(const MediaKind& kind, QVariantMap& metadata) {
    const LoadedRecord record(kind);
    const _file_info_t& info = record.info();
    if (!record.isLoaded()) {
        appLog(QStringLiteral("failed to load metadata for file ") + kind.taggedFile);
    }
    appLog(QStringLiteral("file info: title='") + shown(info.title) + QStringLiteral("', artist='") +
           shown(info.artist) + QStringLiteral("', desc='") + shown(info.desc) + QStringLiteral("'\n"));

    for (const RecordSlot& slot : slotsOf(kind.type == videoMedia ? audioMedia : videoMedia)) {
        metadata[QLatin1String(slot.key)] = QLatin1String(""); // the texts of the other kind
    }
    for (const RecordSlot& slot : slotsOf(kind.type)) {
        metadata[QLatin1String(slot.key)] = decodedSlot(info.*slot.text);
    }
    metadata[yearKey] = info.year;
    if (info.picture) {
        metadata[coverKey] = QVariant::fromValue(ImageRef::share(info.picture));
    }
}

std::optional<FailedSave> writeTagInPlace(const MediaKind& kind, const QVariantMap& metadata) {
    StoreRecord record(kind.type, metadata);
    _file_info_t& info = record.info();
    appLog(QStringLiteral("writing new media tag:\n  title=") + shown(info.title) +
           QStringLiteral("\n  artist=") + shown(info.artist) + QStringLiteral("\n  description=") +
           shown(info.desc) + QStringLiteral("\n genre=") + shown(info.genre) +
           QStringLiteral("\n  director=") + shown(info.director) + QStringLiteral("\n rating=") +
           shown(info.rating) + QStringLiteral("\n  year=") + QString::number(info.year) + QLatin1Char('\n'));
    appLog(QStringLiteral("saving tag to file ") + kind.taggedFile);
    const QByteArray path = pathBytes(kind.taggedFile);
    const std::optional<FileAttributes> before =
        fileAttributes(path); // afterwards there may be a file made in vain
    const TagModule& module = tagModuleOfExtension(kind.extension);
    errno = 0;
    if (!isPipeOrDevice(kind.taggedFile) && module.store(path.constData(), &info)) {
        return std::nullopt;
    }
    FailedSave failed{std::nullopt, errno};
    if (before) {
        failed.size = before->size.value_or(0);
    }
    appLog(QStringLiteral("failed to write tag\n"));
    return failed;
}

bool tagInPlaceSays(const MediaKind& kind, const QVariantMap& metadata) {
    const TraceMute mute;
    const LoadedRecord record(kind);
    const _file_info_t& info = record.info();
    const auto places = slotsOf(kind.type);
    return record.isLoaded() &&
           std::all_of(places.begin(), places.end(),
                       [&](const RecordSlot& slot) {
                           return decodedSlot(info.*slot.text) ==
                                  metadata.value(QLatin1String(slot.key)).toString();
                       }) &&
           (info.picture != nullptr) == static_cast<bool>(metadata.value(coverKey).value<ImageRef>()) &&
           info.year == metadata.value(yearKey).toInt();
}

const TagModule& tagModuleOfExtension(const QString& extension) {
    const auto* row = std::find_if(moduleTable.begin(), moduleTable.end(), [&](const ModuleRow& candidate) {
        return extension.compare(QLatin1String(candidate.extension), Qt::CaseInsensitive) == 0;
    });
    return row == moduleTable.end() ? id3Module : *row->module;
}

QString decodeTagText(QByteArrayView bytes) {
    for (const int encoding : conv_test) {
        if (auto text = decoded(bytes, encoding)) {
            return *text;
        }
    }
    return {};
}

} // namespace velmora
