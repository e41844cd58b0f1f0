// A media file with the tags that other programs read.

#include "MediaFile.h"

#include "detail/file_copy.h"
#include "detail/in_place_obstacle.h"
#include "detail/portable_result.h"
#include "detail/portable_values.h"
#include "detail/tag_record.h"
#include "portable_reason.h"

#include "platform/file_path.h"
#include "platform/localisation.h"
#include "portable/portable_tags.h"
#include "taglib/trace.h"

#include <cerrno>

namespace velmora {

namespace {

/** What a save writes, taken along to its thread. */
struct AllEdits {
    portable::TagEdits edits;
    std::function<portable::Edit<portable::Cover>()> cover;

    [[nodiscard]] PortableSaveResult saveInto(const std::string& path,
                                              const portable::SaveOptions& options) const {
        portable::TagEdits all = edits;
        if (cover) {
            all.cover = cover();
        }
        return resultOf(portable::save_tags(path, all, options));
    }
};

/** Kinds of which other programs read a tag of their own. */
bool hasTagOfOthers(const std::string& path) {
    const auto kind = portable::media_kind(path);
    return kind && kind->container != portable::Container::tagless &&
           kind->container != portable::Container::side_file &&
           kind->container != portable::Container::picture;
}

} // namespace

std::unique_ptr<MediaFile> MediaFile::initWithPortableTags(const QString& path, QString* obstacle) {
    if (!isReadableFile(path)) {
        return nullptr;
    }
    std::unique_ptr<MediaFile> file(new MediaFile);
    file->path_ = path;
    file->kind_ = mediaKindOfPath(path);
    const TraceMute mute; // the log is that of the tags in place
    const portable::ReadOutcome outcome = portable::read_tags(pathBytes(path).toStdString());
    file->kind_.type = outcome.kind ? mediaTypeOf(*outcome.kind) : otherMedia;
    fillMetadata(file->metadata_, outcome.values, file->kind_.type);
    file->fillEmptyValues();
    file->settleChanges();
    *obstacle = outcome.failure ? localisedReason(*outcome.failure) : QString();
    return file;
}

PortableSave MediaFile::portableSave(bool breakLinks) const {
    return [all = AllEdits{editsBetween(opened_, metadata_, kind_.type), coverEdit(opened_, metadata_)},
            path = pathBytes(path_).toStdString(), breakLinks](const PortableProgress& progress) {
        const TraceMute mute; // the log is that of the tags in place
        portable::SaveOptions options;
        options.break_links = breakLinks;
        options.progress = progress;
        return all.saveInto(path, options);
    };
}

PortableSave MediaFile::portableCopy(const QString& target) const {
    return [all = AllEdits{editsBetween(opened_, metadata_, kind_.type), coverEdit(opened_, metadata_)},
            path = pathBytes(path_).toStdString(),
            target = pathBytes(target).toStdString()](const PortableProgress& progress) {
        const TraceMute mute; // the log is that of the tags in place
        FileCopy copy(path, target);
        PortableSaveResult result;
        if (const int error = copy.make(progress)) {
            result.end =
                error == ECANCELED ? PortableSaveResult::End::Cancelled : PortableSaveResult::End::Failed;
            result.reason = copyObstacle(error, pathFromBytes(QByteArray::fromStdString(target)));
            result.anotherPlaceHelps = error != ECANCELED;
            return result;
        }
        portable::SaveOptions options;
        options.progress = progress;
        result = all.saveInto(copy.path(), options);
        if (!result.isSaved()) {
            return result;
        }
        if (const int error = copy.takePlace()) {
            result.end = PortableSaveResult::End::Failed;
            result.reason = copyObstacle(error, pathFromBytes(QByteArray::fromStdString(target)));
            result.anotherPlaceHelps = true;
        }
        return result;
    };
}

bool MediaFile::canHavePortableTags() const {
    const auto kind = portable::media_kind(pathBytes(path_).toStdString());
    return kind && kind->container != portable::Container::picture;
}

std::function<bool()> MediaFile::otherProgramsSeeMore() const {
    const std::string path = pathBytes(path_).toStdString();
    if (!hasTagOfOthers(path)) {
        return {};
    }
    return [path, metadata = metadata_] {
        const TraceMute mute; // the log is that of the tags in place
        const portable::ReadOutcome outcome = portable::read_tags(path);
        return !outcome.failure && saysMore(outcome.values, metadata, mediaTypeOf(*outcome.kind));
    };
}

bool MediaFile::isReadBackAsSaved() const {
    return tagInPlaceSays(kind_, metadata_);
}

} // namespace velmora
