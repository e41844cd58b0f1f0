// What the user, or a button, changes in the form: how it gets into the open file's values.

#include "tag_form.h"

#include "media_document.h"
#include "ui_tag_form.h"

#include "model/MediaFile.h"
#include "model/media_type.h"
#include "platform/log.h"

#include <utility>

namespace velmora {

namespace {

/** A text value of the open file that a control edits. */
struct TextValue {
    QString (MediaFile::*get)() const;
    void (MediaFile::*set)(const QString&);
};

/** Stores TEXT and tells whether that changed anything. */
bool store(MediaFile& file, const TextValue& value, const QString& text) {
    if ((file.*value.get)() == text) {
        return false;
    }
    (file.*value.set)(text);
    return true;
}

bool storeYear(MediaFile& file, const QString& text) {
    const int year = text.toInt(); // what is no number is no year: 0
    if (file.year() == year) {
        return false;
    }
    file.setYear(year);
    return true;
}

/** TEXT with line feeds for all of its line breaks, as the synopsis view knows only one kind. */
QString withLineFeeds(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (const QChar lineBreak :
         {QChar(QChar::CarriageReturn), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)}) {
        text.replace(lineBreak, QChar::LineFeed);
    }
    return text;
}

} // namespace

void TagForm::storeShownValues() {
    storeShownCover();
    storeFilledFields();
}

void TagForm::storeFilledFields() {
    const QList<QWidget*> filled = std::exchange(filled_, {});
    for (QWidget* control : filled) {
        if (control == ui_->entry_desc) {
            textDidChange(control);
            continue;
        }
        if (control == ui_->entry_artist) {
            // One line for a person, as the form shows them; a tag's readers know commas.
            ui_->entry_artist->setText(
                ui_->entry_artist->text().replace(QLatin1Char('\n'), QStringLiteral(", ")));
        }
        controlTextDidChange(control);
    }
    emit filledFieldsChanged();
}

bool TagForm::showsOtherCover() const {
    const MediaFile* const media = file();
    return media && media->coverArt().get() != ui_->img_coverArt->cover().get();
}

void TagForm::storeShownCover() {
    MediaFile* const media = file();
    const ImageRef cover = ui_->img_coverArt->cover();
    if (!media || media->coverArt().get() == cover.get()) {
        return;
    }
    if (cover) {
        media->setCoverArt(cover);
    } else {
        media->removeCoverArt();
    }
    markChange();
    emit shownCoverChanged();
}

void TagForm::controlTextDidChange(const QObject* control) {
    if (filled_.removeIf([&](const QWidget* filled) { return filled == control; }) > 0) {
        emit filledFieldsChanged();
    }
    appLog(QStringLiteral("in controlTextDidEndEditing:\n"));
    MediaFile* const media = file();
    if (!media) {
        return;
    }
    const bool isVideo = media->mediaType() == videoMedia;
    bool changed = false;
    if (control == ui_->entry_album) {
        changed = store(*media,
                        isVideo ? TextValue{&MediaFile::director, &MediaFile::setDirector}
                                : TextValue{&MediaFile::album, &MediaFile::setAlbum},
                        ui_->entry_album->text());
    } else if (control == ui_->entry_artist) {
        changed = store(*media,
                        isVideo ? TextValue{&MediaFile::cast, &MediaFile::setCast}
                                : TextValue{&MediaFile::artist, &MediaFile::setArtist},
                        ui_->entry_artist->text());
    } else if (control == ui_->entry_title) {
        changed = store(*media, {&MediaFile::title, &MediaFile::setTitle}, ui_->entry_title->text());
    } else if (control == ui_->combo_genre) {
        changed = store(*media, {&MediaFile::genre, &MediaFile::setGenre}, ui_->combo_genre->currentText());
    } else if (control == ui_->entry_year) {
        changed = storeYear(*media, ui_->entry_year->text());
    } else {
        appLog(QStringLiteral("WARNING: unhandled control in controlTextDidEndEditing:\n"));
    }
    if (changed) {
        markChange();
    }
}

void TagForm::textDidChange(const QObject* textView) {
    MediaFile* const media = file();
    if (!media) {
        return;
    }
    if (textView == ui_->entry_desc) {
        if (filled_.removeAll(ui_->entry_desc) > 0) {
            emit filledFieldsChanged();
        }
        appLog(QStringLiteral("description changed\n"));
        // The raw text, as the plain one has ordinary blanks for no-break spaces. An input method's
        // composition is reported too, but is no part of it.
        const QString text = withLineFeeds(ui_->entry_desc->document()->toRawText());
        if (text == withLineFeeds(media->synopsis())) {
            return;
        }
        media->setSynopsis(text);
    }
    markChange();
}

void TagForm::ratingMenuItemChanged(const QString& title) {
    if (MediaFile* const media = file()) {
        media->setRating(title);
        markChange();
    }
}

void TagForm::coverArtImageChanged(const ImageRef& cover) {
    MediaFile* const media = file();
    if (!media || !cover) {
        return;
    }
    media->setCoverArt(cover);
    markChange();
}

bool TagForm::showsCover() const {
    return static_cast<bool>(ui_->img_coverArt->cover());
}

void TagForm::pasteAndStoreCover() {
    ui_->img_coverArt->paste();
    storeShownCover();
}

void TagForm::deleteCover() {
    ui_->img_coverArt->setCover({});
    storeShownCover();
}

void TagForm::clickSave() {
    ui_->btn_saveTag->click();
}

QImage TagForm::coverArt() const {
    return ui_->img_coverArt->image();
}

void TagForm::changeCoverArt(const ImageRef& cover) {
    ui_->img_coverArt->changeImage(cover);
}

void TagForm::allowTrimming() {
    ui_->btn_trimBorder->setEnabled(true);
}

void TagForm::clickRevert() {
    ui_->btn_revertTag->click();
}

void TagForm::markChange() {
    document_.updateChangeCount(Document::ChangeType::Done);
    ui_->btn_saveTag->setEnabled(true);
    ui_->btn_revertTag->setEnabled(true);
}

void TagForm::disableSaveAndRevert() {
    ui_->btn_saveTag->setEnabled(false);
    ui_->btn_revertTag->setEnabled(false);
}

} // namespace velmora
