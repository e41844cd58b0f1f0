// A media file with the tags that other programs read.

#include "MediaFile.h"

#include "detail/portable_values.h"
#include "detail/record_slots.h"
#include "detail/tag_module.h"
#include "detail/text_decoding.h"
#include "media_type.h"
#include "portable_reason.h"

#include "platform/file_attributes.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "portable/portable_tags.h"
#include "taglib/file_info.h"
#include "taglib/trace.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace velmora {

namespace {

PortableSaveResult resultOf(const portable::SaveOutcome& outcome) {
    using End = PortableSaveResult::End;
    PortableSaveResult result;
    result.othersReadIt = outcome.others_read_it;
    if (outcome.warning) {
        result.warning = localisedReason(*outcome.warning);
    }
    switch (outcome.result) {
    case portable::SaveResult::saved:
        result.end = End::Saved;
        return result;
    case portable::SaveResult::unchanged:
        result.end = End::Unchanged;
        return result;
    case portable::SaveResult::failed:
        break;
    }
    const portable::Reason reason = outcome.failure.value_or(portable::Reason());
    result.reason = localisedReason(reason);
    if (reason.code == portable::ReasonCode::more_links) {
        result.end = End::MoreLinks;
    } else if (reason.code == portable::ReasonCode::cancelled) {
        result.end = End::Cancelled;
    }
    return result;
}

/** Kinds of which other programs read a tag of their own. */
bool hasTagOfOthers(const std::string& path) {
    const auto kind = portable::media_kind(path);
    return kind && kind->container != portable::Container::tagless &&
           kind->container != portable::Container::side_file &&
           kind->container != portable::Container::picture;
}

} // namespace

std::unique_ptr<MediaFile> MediaFile::initWithPortableTags(const QString& path, QString* obstacle) {
    const QByteArray bytes = pathBytes(path);
    if (!isReadableFile(bytes)) {
        return nullptr;
    }
    std::unique_ptr<MediaFile> file(new MediaFile);
    file->path_ = path;
    file->filename_ = mediaKindOfPath(path).taggedFile;
    const TraceMute mute; // the log is that of the tags in place
    const portable::ReadOutcome outcome = portable::read_tags(bytes.toStdString());
    file->mediaType_ = outcome.kind ? mediaTypeOf(*outcome.kind) : otherMedia;
    fillMetadata(file->metadata_, outcome.values, file->mediaType_);
    file->fillEmptyValues();
    file->settleChanges();
    *obstacle = outcome.failure ? localisedReason(*outcome.failure) : QString();
    return file;
}

PortableSave MediaFile::portableSave(bool breakLinks) const {
    portable::TagEdits edits = editsBetween(opened_, metadata_, mediaType_);
    return [edits, cover = coverEdit(opened_, metadata_), path = pathBytes(path_).toStdString(),
            breakLinks](const PortableProgress& progress) {
        const TraceMute mute; // the log is that of the tags in place
        portable::TagEdits all = edits;
        if (cover) {
            all.cover = cover();
        }
        portable::SaveOptions options;
        options.break_links = breakLinks;
        options.progress = progress;
        return resultOf(portable::save_tags(path, all, options));
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
    const TraceMute mute;
    _file_info_t info{};
    const QByteArray path = pathBytes(filename_);
    if (isPipeOrDevice(path) ||
        !tagModuleOfExtension(pathExtension(filename_)).load(path.constData(), &info)) {
        id3_free_file_info(&info);
        return false;
    }
    const auto places = slotsOf(mediaType_);
    const bool textsAreBack = std::all_of(places.begin(), places.end(), [&](const RecordSlot& slot) {
        const char* const text = info.*slot.text;
        return (text ? decodeTagText(QByteArrayView(text)) : QString()) ==
               this->text(QLatin1String(slot.key));
    });
    const bool coverIsBack = (info.picture != nullptr) == static_cast<bool>(coverArt());
    const bool isBack = textsAreBack && coverIsBack && info.year == year();
    id3_free_file_info(&info);
    return isBack;
}

QString MediaFile::whyNotSaved() const {
    const QByteArray path = pathBytes(filename_);
    return ::access(path.constData(), W_OK) == 0 ? localised("Its tag can't be changed in place")
                                                 : qt_error_string(errno);
}

} // namespace velmora
