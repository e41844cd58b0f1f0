#include "portable_notices.h"

#include "media_document.h"
#include "notice_bar.h"

#include "model/MediaFile.h"
#include "platform/file_attributes.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/sentences.h"
#include "platform/settings.h"

namespace velmora {

namespace {

constexpr std::chrono::seconds savedIsShown{6};

QString notSaved(const SaveEnd& end) {
    return joinedSentences({localised("\"%@\" was not saved.", shortened(lastPathComponent(end.path))),
                            asSentence(end.obstacle.reason)});
}

/** Whether nothing is left of the file at PATH: a save in place leaves an empty one behind where the file had
   vanished. */
bool isGone(const QString& path) {
    const std::optional<FileAttributes> attributes = fileAttributes(pathBytes(path));
    return !attributes || attributes->isDirectory || attributes->size.value_or(1) == 0;
}

QString notRemembered() {
    return localised("The next start will not know of it: the settings file can't be written.");
}

/** What helps where a file is not in its place any more. */
Notice::Action locate(std::function<void()> act) {
    return {
        localised("Locate File…"),
        localised("Show where the file is now: it is opened there with your edits, which are not saved yet"),
        QStringLiteral("edit-find"), std::move(act)};
}

} // namespace

PortableNotices::PortableNotices(MediaDocument& document, NoticeBar& bar, QObject* parent)
    : QObject(parent), document_(document), bar_(bar) {
    thread_.setMaxThreadCount(1);
    connect(&document_, &MediaDocument::saveEnded, this, &PortableNotices::saveEnded);
    // Once the next file is open, whose notices take the place of all others.
    connect(&document_, &MediaDocument::editsKept, this, &PortableNotices::editsKept, Qt::QueuedConnection);
}

PortableNotices::~PortableNotices() {
    thread_.clear();
    thread_.waitForDone();
}

QString PortableNotices::fileName() const {
    const MediaFile* const file = document_.mediaFile();
    return file ? shortened(lastPathComponent(file->filename())) : QString();
}

void PortableNotices::fileClosed() {
    ++opened_;
    thread_.clear();
    bar_.clear();
}

void PortableNotices::fileOpened() {
    fileClosed();
    const QString obstacle = document_.portableObstacle();
    if (!obstacle.isEmpty()) {
        bar_.show({Notice::Kind::Warning,
                   joinedSentences({localised("The portable tags of \"%@\" can't be read.", fileName()),
                                    asSentence(obstacle)}),
                   {},
                   {}});
    } else if (!document_.portableTags()) {
        lookForMore();
    }
}

/** Beside the main thread: a file may lie on a slow disk, and nobody waits for this. */
void PortableNotices::lookForMore() {
    const MediaFile* const file = document_.mediaFile();
    const auto seeMore = file ? file->otherProgramsSeeMore() : nullptr;
    if (!seeMore) {
        return;
    }
    thread_.start([this, seeMore, which = opened_] {
        if (!seeMore()) {
            return;
        }
        const auto tell = [this, which] {
            if (which == opened_) {
                bar_.showBehind(
                    {Notice::Kind::Information,
                     localised("Other programs see more in this file"),
                     {{localised("Show It"), localised("Switch to the tags that other programs read"),
                       QStringLiteral("tag"), [this] { document_.setPortableTags(true); }},
                      {localised("Always"), localised("Switch to these tags, now and at each start"),
                       QStringLiteral("view-pin"), [this] { showAlways(); }}},
                     {},
                     Notice::Topic::OtherPrograms});
            }
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
}

void PortableNotices::editsKept(const QString& path, const QString& reason) {
    Notice notice{Notice::Kind::Warning,
                  joinedSentences({localised("\"%@\" was not saved; its edits are kept.",
                                             shortened(lastPathComponent(path))),
                                   asSentence(reason)}),
                  {},
                  {}};
    if (isGone(path)) {
        notice.actions = {locate([this] { emit placeOfKeptWanted(); })};
    }
    notice.actions += {localised("Restore Unsaved Edits"),
                       localised("Open the file again whose edits could not be saved, and put them back"),
                       QStringLiteral("edit-undo"), [this] { emit restoreWanted(); }};
    notice.topic = Notice::Topic::UnsavedEdits;
    bar_.show(notice);
}

void PortableNotices::editsRestored() {
    offer(SaveObstacle::Remedy::PortableTags,
          localised("The edits of \"%@\" are back, and not saved yet.", fileName()));
}

void PortableNotices::saveEnded(const SaveEnd& end) {
    ++opened_; // what the file said before is no news any more
    if (!document_.mediaFile()) {
        return;
    }
    if (end.removal) {
        removalEnded(end);
    } else if (end.portable) {
        end.saved ? savedPortably(end) : failedPortably(end);
    } else if (end.saved) {
        savedInPlace();
    } else {
        offer(end.obstacle.remedy, notSaved(end));
    }
}

void PortableNotices::removalEnded(const SaveEnd& end) {
    const QString name = shortened(lastPathComponent(end.path));
    if (end.saved) {
        bar_.show({Notice::Kind::Information,
                   localised("All tags of \"%@\" are deleted.", name),
                   {},
                   savedIsShown});
        return;
    }
    Notice notice{
        Notice::Kind::Warning,
        joinedSentences({localised("\"%@\" keeps its tags.", name), asSentence(end.obstacle.reason)}),
        {},
        {}};
    if (end.portable->end == PortableSaveResult::End::MoreLinks) {
        notice.actions = {{localised("Replace Anyway"), localised("The other links keep the old contents"),
                           QStringLiteral("document-save"), [this] { document_.deleteAllTags(true); }}};
    }
    bar_.show(notice);
}

void PortableNotices::coverDeleted() {
    offer(SaveObstacle::Remedy::PortableTags,
          localised("The cover is deleted here. A save in place leaves it in the file."));
}

void PortableNotices::savedInPlace() {
    bar_.withdraw(Notice::Topic::OtherPrograms); // which was true of what the file said before
    if (document_.mediaFile()->isReadBackAsSaved()) {
        bar_.withdraw(Notice::Topic::Save);
    } else {
        offer(SaveObstacle::Remedy::PortableTags,
              localised("\"%@\" was saved, but not all of it can be read back.", fileName()));
    }
}

void PortableNotices::offer(SaveObstacle::Remedy remedy, const QString& text) {
    Notice notice{Notice::Kind::Warning, text, {}, {}};
    const bool canBePortable = document_.mediaFile()->canHavePortableTags();
    if (isGone(document_.mediaFile()->path())) {
        notice.actions = {locate([this] { emit placeWanted(); })};
    } else if (canBePortable && remedy == SaveObstacle::Remedy::AnotherPlace) {
        notice.actions = {{localised("Save as a Copy…"),
                           localised("Choose another place, and save the file there with the changes"),
                           QStringLiteral("document-save-as"), [this] { emit copyWanted(); }}};
    } else if (canBePortable && remedy == SaveObstacle::Remedy::PortableTags) {
        notice.actions = {{localised("Save With Portable Tags"),
                           localised("Write the changes into the tags that other programs read, and replace "
                                     "the file in one step"),
                           QStringLiteral("document-save"), [this] { document_.savePortably(false); }},
                          {localised("Always"),
                           localised("Save so, and do so from now on, also after the next start"),
                           QStringLiteral("view-pin"), [this] { saveAlways(); }}};
    }
    bar_.show(notice);
}

void PortableNotices::savedPortably(const SaveEnd& end) {
    const PortableSaveResult& result = *end.portable;
    const QString name = shortened(lastPathComponent(end.path));
    const QString text = result.othersReadIt
                             ? localised("Saved. Other programs see it: %@", name)
                             : localised("Saved. Other programs read no tag in files of this kind: %@", name);
    if (result.warning.isEmpty()) {
        bar_.show({Notice::Kind::Information, text, {}, savedIsShown});
    } else {
        bar_.show({Notice::Kind::Warning, joinedSentences({text, asSentence(result.warning)}), {}, {}});
    }
}

void PortableNotices::failedPortably(const SaveEnd& end) {
    if (end.portable->end == PortableSaveResult::End::MoreLinks) {
        Notice notice{Notice::Kind::Warning, notSaved(end), {}, {}};
        notice.actions = {{localised("Replace Anyway"), localised("The other links keep the old contents"),
                           QStringLiteral("document-save"), [this] { document_.savePortably(true); }}};
        bar_.show(notice);
    } else {
        offer(end.obstacle.remedy, notSaved(end));
    }
}

void PortableNotices::saveAlways() {
    if (!document_.savePortably(false)) {
        return; // the reason is shown
    }
    const QString name = fileName();
    const bool remembered = rememberPortableTags(true);
    if (!document_.setPortableTags(true)) {
        return;
    }
    const QString text = localised("Saved. Other programs see it: %@", name);
    if (remembered) {
        bar_.show({Notice::Kind::Information, text, {}, savedIsShown});
    } else {
        bar_.show({Notice::Kind::Warning, joinedSentences({asSentence(text), notRemembered()}), {}, {}});
    }
}

void PortableNotices::showAlways() {
    if (document_.setPortableTags(true) && !rememberPortableTags(true)) {
        bar_.show({Notice::Kind::Warning, notRemembered(), {}, {}});
    }
}

} // namespace velmora
