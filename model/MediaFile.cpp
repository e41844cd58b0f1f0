#include "MediaFile.h"

#include "detail/record_slots.h"
#include "detail/tag_module.h"
#include "detail/text_decoding.h"
#include "media_type.h"

#include "platform/file_attributes.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/log.h"
#include "taglib/file_info.h"

#include <array>
#include <iterator>

namespace velmora {

namespace {

QString decodedSlot(const char* text) {
    return text ? decodeTagText(QByteArrayView(text)) : QString();
}

QString shown(const char* text) {
    return text ? decodeTagText(QByteArrayView(text)) : QStringLiteral("(null)");
}

/** The record that a store function reads, and the bytes that it borrows. */
class StoreRecord {
public:
    explicit StoreRecord(const MediaFile& file) : coverArt_(file.coverArt()) {
        const QVariantMap& values = file.metadata();
        for (const RecordSlot& slot : slotsOf(file.mediaType())) {
            borrow(slot, values.value(QLatin1String(slot.key)));
        }
        info_.year = file.year();
        info_.picture = coverArt_.get();
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
    ImageRef coverArt_;
    _file_info_t info_{};
};

Error unableToWrite(const QString& path) {
    Error error;
    error.domain = NSMachErrorDomain;
    error.code = 0;
    error.userInfo = {
        {NSFilePathErrorKey, path},
        {NSLocalizedDescriptionKey,
         localised("Unable to write tags to file \"%@\".", lastPathComponent(path))},
        {NSLocalizedRecoverySuggestionErrorKey,
         localised("Be sure you have permissions to write to the file, and that it is a valid media file.")}};
    return error;
}

} // namespace

std::unique_ptr<MediaFile> MediaFile::initWithFile(const QString& path) {
    if (!isReadableFile(pathBytes(path))) {
        return nullptr;
    }
    const MediaKind kind = mediaKindOfPath(path);
    std::unique_ptr<MediaFile> file(new MediaFile);
    file->path_ = path;
    file->filename_ = kind.taggedFile;
    file->mediaType_ = kind.type;

    _file_info_t info{};
    const QByteArray tagged = pathBytes(kind.taggedFile);
    if (isPipeOrDevice(tagged) || !tagModuleOfExtension(kind.extension).load(tagged.constData(), &info)) {
        appLog(QStringLiteral("failed to load metadata for file ") + file->filename_);
    }
    appLog(QStringLiteral("file info: title='") + shown(info.title) + QStringLiteral("', artist='") +
           shown(info.artist) + QStringLiteral("', desc='") + shown(info.desc) + QStringLiteral("'\n"));

    for (const RecordSlot& slot : slotsOf(kind.type == videoMedia ? audioMedia : videoMedia)) {
        file->metadata_[QLatin1String(slot.key)] = QLatin1String(""); // the texts of the other kind
    }
    for (const RecordSlot& slot : slotsOf(kind.type)) {
        file->metadata_[QLatin1String(slot.key)] = decodedSlot(info.*slot.text);
    }
    file->setYear(info.year);
    if (info.picture) {
        file->setCoverArt(ImageRef::share(info.picture));
    }
    id3_free_file_info(&info);
    file->fillEmptyValues();
    file->settleChanges();
    return file;
}

void MediaFile::fillEmptyValues() {
    setDateTime(QDateTime::currentDateTime());
}

bool MediaFile::saveMetadata(Error* error) const {
    StoreRecord record(*this);
    const _file_info_t& info = record.info();
    appLog(QStringLiteral("writing new media tag:\n  title=") + shown(info.title) +
           QStringLiteral("\n  artist=") + shown(info.artist) + QStringLiteral("\n  description=") +
           shown(info.desc) + QStringLiteral("\n genre=") + shown(info.genre) +
           QStringLiteral("\n  director=") + shown(info.director) + QStringLiteral("\n rating=") +
           shown(info.rating) + QStringLiteral("\n  year=") + QString::number(info.year) + QLatin1Char('\n'));
    appLog(QStringLiteral("saving tag to file ") + filename_);
    const QByteArray path = pathBytes(filename_);
    if (!isPipeOrDevice(path) &&
        tagModuleOfExtension(pathExtension(filename_)).store(path.constData(), &record.info())) {
        return true;
    }
    appLog(QStringLiteral("failed to write tag\n"));
    if (error) {
        *error = unableToWrite(filename_);
    }
    return false;
}

void MediaFile::takeEditsOf(const MediaFile& other) {
    const QString cover = QStringLiteral("coverart");
    for (auto value = other.metadata_.begin(); value != other.metadata_.end(); ++value) {
        if (value.key() != cover && *value != other.opened_.value(value.key())) {
            metadata_[value.key()] = *value;
        }
    }
    if (other.coverArt().get() == other.opened_.value(cover).value<ImageRef>().get()) {
        return;
    }
    if (other.coverArt()) {
        setCoverArt(other.coverArt());
    } else {
        removeCoverArt();
    }
}

void MediaFile::setCastList(const QStringList& names) {
    setCast(names.join(QStringLiteral(", ")));
}

} // namespace velmora
