#include "MediaFile.h"

#include "detail/tag_record.h"

#include "platform/file_path.h"
#include "platform/localisation.h"

namespace velmora {

namespace {

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
    file->path_ = path;
    file->kind_ = mediaKindOfPath(path);
    readTagInPlace(file->kind_, file->metadata_);
    file->fillEmptyValues();
    file->settleChanges();
    return file;
}

void MediaFile::fillEmptyValues() {
    setDateTime(QDateTime::currentDateTime());
}

bool MediaFile::saveMetadata(Error* error) {
    failedSave_ = writeTagInPlace(kind_, metadata_);
    if (!failedSave_) {
        return true;
    }
    if (error) {
        *error = unableToWrite(kind_.taggedFile);
    }
    return false;
}

SaveObstacle MediaFile::whyNotSaved() const {
    const FailedSave failed = failedSave_.value_or(FailedSave());
    if (!failed.size && kind_.taggedFile != path_) {
        return {localised("There is no file for its tag yet, and a save in place makes none"),
                SaveObstacle::Remedy::PortableTags};
    }
    return tagModuleOfExtension(kind_.extension).obstacle(kind_.taggedFile, failed);
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
