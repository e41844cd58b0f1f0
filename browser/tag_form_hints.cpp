// What the form says of itself: which file it edits, and what of it is not stored.

#include "tag_form.h"

#include "media_document.h"
#include "ui_tag_form.h"

#include "model/MediaFile.h"
#include "model/media_type.h"
#include "platform/file_path.h"
#include "platform/localisation.h"

#include <QAction>
#include <QLineEdit>
#include <QStyle>

#include <utility>

namespace velmora {

void TagForm::tellOpenFile() {
    const MediaFile* const media = file();
    ui_->lbl_openFile->setText(media ? lastPathComponent(media->path()).simplified()
                                     : localised("No file is open"));
    ui_->lbl_openFolder->setText(media ? pathFolder(media->path()) : QString());
    for (QLabel* const label : {ui_->lbl_openFile, ui_->lbl_openFolder}) {
        label->setToolTip(media ? media->path().toHtmlEscaped() : QString());
    }
    tellWhatIsStored();
}

void TagForm::tellWhatIsStored() {
    const MediaFile* const media = file();
    const QString nowhere = media ? QString() : localised("No file is open");
    for (QLineEdit* const field : {ui_->entry_title, ui_->entry_artist, ui_->entry_album, ui_->entry_year,
                                   ui_->combo_genre->lineEdit()}) {
        field->setPlaceholderText(nowhere);
    }
    const bool hasSynopsis = media && (media->mediaType() == videoMedia || document_.portableTags());
    const QString lost = media ? localised("Not stored in files of this kind")
                               : localised("No file is open: what is typed here goes nowhere");
    ui_->entry_desc->setPlaceholderText(hasSynopsis ? QString() : lost);
}

/** Says in the field that its text is no number, whoever put it there. */
void TagForm::markYear() {
    const QString year = ui_->entry_year->text();
    bool isNumber = false;
    static_cast<void>(year.toInt(&isNumber));
    const bool isWrong = !isNumber && !year.isEmpty();
    if (isWrong == (yearMark_ != nullptr)) {
        return;
    }
    const QString text = isWrong ? localised("This is no number, and is stored as no year") : QString();
    ui_->entry_year->setAccessibleDescription(text);
    if (isWrong) {
        yearMark_ = ui_->entry_year->addAction(
            style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this), QLineEdit::TrailingPosition);
        yearMark_->setText(text);
        yearMark_->setToolTip(text);
    } else {
        delete std::exchange(yearMark_, nullptr);
    }
}

} // namespace velmora
