#include "form_notices.h"

#include "media_document.h"
#include "notice_bar.h"
#include "tag_form.h"

#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/sentences.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr std::chrono::seconds storedIsShown{6};

/** The names of the files at PATHS; of many, the first ones. */
QString namesOf(const QStringList& paths) {
    constexpr qsizetype most = 3;
    QStringList names;
    for (const QString& path : paths.first(std::min(paths.size(), most))) {
        names += shortened(lastPathComponent(path));
    }
    if (paths.size() > most) {
        names += QString(QChar(0x2026));
    }
    return names.join(QStringLiteral(", "));
}

} // namespace

FormNotices::FormNotices(MediaDocument& document, TagForm& form, NoticeBar& bar, QObject* parent)
    : QObject(parent), document_(document), form_(form), bar_(bar) {
    connect(&document_, &MediaDocument::saveEnded, this, &FormNotices::saveEnded);
    connect(&form_, &TagForm::folderImageTaken, this, &FormNotices::tellFolderImage);
    connect(&form_, &TagForm::filledFieldsChanged, this, &FormNotices::tellFilledFields);
    connect(&form_, &TagForm::shownCoverChanged, this, &FormNotices::tellShownCover);
}

void FormNotices::tellNotAdded(const QStringList& paths) {
    if (paths.isEmpty()) {
        return;
    }
    const QString name = shortened(lastPathComponent(paths.first()));
    const QString text =
        paths.size() > 1
            ? localised("Files that could not be added: %@", namesOf(paths))
            : joinedSentences(
                  {localised("\"%@\" was not added.", name),
                   fileExists(paths.first())
                       ? localised("Please ensure the file is readable and is a valid media file.")
                       : localised("The file does not exist.")});
    bar_.show({Notice::Kind::Warning, text, {}, {}, Notice::Topic::NotAdded});
}

void FormNotices::changesSettled() {
    bar_.withdraw(Notice::Topic::FolderImage);
}

void FormNotices::saveEnded(const SaveEnd& end) {
    if (end.saved) {
        changesSettled();
    }
}

void FormNotices::tellFolderImage() {
    bar_.show({Notice::Kind::Information,
               localised("The cover was taken from folder.jpg, which counts as a change: a save writes it "
                         "into the file."),
               {},
               {},
               Notice::Topic::FolderImage});
}

void FormNotices::tellFilledFields() {
    if (!form_.hasFilledFields() || !document_.mediaFile() || document_.portableTags()) {
        bar_.withdraw(Notice::Topic::FilledFields);
        return;
    }
    bar_.show({Notice::Kind::Warning,
               localised("What was filled in from the web is not stored yet: a save writes only the fields "
                         "that were typed in."),
               {{localised("Store Filled Fields"),
                 localised("Take all filled fields for changes, which a save writes"),
                 QStringLiteral("document-import"), [this] { storeFilledFields(); }}},
               {},
               Notice::Topic::FilledFields});
}

void FormNotices::storeFilledFields() {
    form_.storeFilledFields();
    bar_.show({Notice::Kind::Information,
               localised("The filled fields count as changes now: a save writes them."),
               {},
               storedIsShown,
               Notice::Topic::FilledFields});
}

void FormNotices::tellShownCover() {
    if (!form_.showsOtherCover() || document_.portableTags()) {
        bar_.withdraw(Notice::Topic::ShownCover);
        return;
    }
    if (!form_.showsCover()) {
        bar_.show({Notice::Kind::Information,
                   localised("The cover is cut from the form only, and stays in the file."),
                   {},
                   {},
                   Notice::Topic::ShownCover});
        return;
    }
    bar_.show({Notice::Kind::Warning,
               localised("The pasted cover is shown only: a save does not write it."),
               {{localised("Store Cover"), localised("Take the cover for a change, which a save writes"),
                 QStringLiteral("insert-image"), [this] { form_.storeShownCover(); }}},
               {},
               Notice::Topic::ShownCover});
}

} // namespace velmora
