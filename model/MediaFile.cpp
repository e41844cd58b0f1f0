#include "MediaFile.h"

#include "detail/tag_module.h"
#include "detail/text_decoding.h"
#include "media_type.h"

#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/log.h"
#include "taglib/file_info.h"

#include <array>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {

namespace {

/** Whether there is a pipe or a device: opening or reading one may wait for ever. */
bool isPipeOrDevice(const QString& path) {
    struct stat status {};
    return ::stat(pathBytes(path).constData(), &status) == 0 && !S_ISREG(status.st_mode) &&
           !S_ISDIR(status.st_mode);
}

bool isReadableFile(const QString& path) {
    return ::access(pathBytes(path).constData(), R_OK) == 0 && !isPipeOrDevice(path);
}

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
        const bool isVideo = file.mediaType() == videoMedia;
        borrow(info_.title, file_info_flag::title, values, isVideo ? "title" : "album");
        borrow(info_.artist, file_info_flag::artist, values, isVideo ? "cast" : "artist");
        borrow(info_.desc, file_info_flag::desc, values, isVideo ? "synopsis" : "title");
        borrow(info_.genre, file_info_flag::genre, values, "genre");
        if (isVideo) {
            borrow(info_.director, file_info_flag::director, values, "director");
            borrow(info_.rating, file_info_flag::rating, values, "rating");
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
    void borrow(char*& slot, std::uint32_t flag, const QVariantMap& values, const char* key) {
        const QVariant value = values.value(QLatin1String(key));
        if (!value.isValid()) {
            return;
        }
        QByteArray& bytes = texts_[textCount_++];
        bytes = value.toString().toUtf8();
        slot = bytes.data();
        info_.flags |= bytes.isEmpty() ? 0 : flag;
    }

    std::array<QByteArray, 6> texts_;
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
    if (!isReadableFile(path)) {
        return nullptr;
    }
    std::unique_ptr<MediaFile> file(new MediaFile);
    file->filename_ = taggedFileOfPath(path);
    file->mediaType_ = mediaTypeOfPath(path);

    _file_info_t info{};
    if (isPipeOrDevice(file->filename_) ||
        !tagModuleOfPath(path).load(pathBytes(file->filename_).constData(), &info)) {
        appLog(QStringLiteral("failed to load metadata for file ") + file->filename_);
    }
    appLog(QStringLiteral("file info: title='") + shown(info.title) + QStringLiteral("', artist='") +
           shown(info.artist) + QStringLiteral("', desc='") + shown(info.desc) + QStringLiteral("'\n"));

    const bool isVideo = file->mediaType_ == videoMedia;
    const QString none = QLatin1String("");
    file->setTitle(decodedSlot(isVideo ? info.title : info.desc));
    file->setAlbum(isVideo ? none : decodedSlot(info.title));
    file->setArtist(isVideo ? none : decodedSlot(info.artist));
    file->setCast(isVideo ? decodedSlot(info.artist) : none);
    file->setSynopsis(isVideo ? decodedSlot(info.desc) : none);
    file->setDirector(isVideo ? decodedSlot(info.director) : none);
    file->setRating(isVideo ? decodedSlot(info.rating) : none);
    file->setGenre(decodedSlot(info.genre));
    file->setYear(info.year);
    if (info.picture) {
        file->setCoverArt(ImageRef::share(info.picture));
    }
    id3_free_file_info(&info);
    file->fillEmptyValues();
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
    if (!isPipeOrDevice(filename_) &&
        tagModuleOfPath(filename_).store(pathBytes(filename_).constData(), &record.info())) {
        return true;
    }
    appLog(QStringLiteral("failed to write tag\n"));
    if (error) {
        *error = unableToWrite(filename_);
    }
    return false;
}

void MediaFile::setCastList(const QStringList& names) {
    setCast(names.join(QStringLiteral(", ")));
}

} // namespace velmora
