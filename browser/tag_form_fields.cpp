// The fields of the form: emptied, filled from a file or a web lookup, and edited into the open file.

#include "tag_form.h"

#include "media_document.h"
#include "ui_tag_form.h"

#include "model/MediaFile.h"
#include "model/media_type.h"
#include "platform/accessibility.h"
#include "platform/file_path.h"
#include "platform/line_wrapping.h"
#include "platform/localisation.h"
#include "platform/log.h"
#include "weblookup/form_fill_info.h"

#include <QSignalBlocker>

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

/** Also picks the genre's item, so that the arrow keys start from there. */
void TagForm::setGenreText(const QString& text) {
    ui_->combo_genre->setCurrentIndex(ui_->combo_genre->findText(text));
    ui_->combo_genre->setEditText(text);
}

void TagForm::setSynopsisText(const QString& text) {
    const QSignalBlocker blocker(ui_->entry_desc);
    setWrappedText(*ui_->entry_desc, text);
}

void TagForm::clearFields() {
    filled_.clear();
    emit filledFieldsChanged();
    const QString none;
    ui_->entry_title->setText(none);
    ui_->entry_artist->setText(none);
    ui_->entry_album->setText(none);
    setGenreText(none);
    ui_->entry_year->setText(none);
    ui_->combo_rating->setCurrentIndex(0);
    setSynopsisText(none);
}

void TagForm::showFile(const MediaFile& media) {
    showCaptions(media);
    ui_->entry_title->setText(media.title());
    emit searchTextChanged(media.title().isEmpty() ? pathWithoutExtension(lastPathComponent(media.filename()))
                                                   : media.title());
    setGenreText(media.genre());
    if (media.year() != 0) {
        ui_->entry_year->setText(QString::number(media.year()));
    }
    ui_->picker_dateTime->setDateTime(media.dateTime());
    setSynopsisText(media.synopsis());
    showCoverArt(media);
}

/** Images and other files keep the captions of the file before them, and the two fields empty. */
void TagForm::showCaptions(const MediaFile& media) {
    if (media.mediaType() == audioMedia) {
        ui_->lbl_artist->setText(localised("Artist:"));
        ui_->lbl_album->setText(localised("Album:"));
        ui_->entry_artist->setText(media.artist());
        ui_->entry_album->setText(media.album());
        ui_->combo_rating->setEnabled(false);
    } else if (media.mediaType() == videoMedia) {
        ui_->lbl_artist->setText(localised("Cast:"));
        ui_->lbl_album->setText(localised("Director:"));
        ui_->entry_artist->setText(media.cast());
        ui_->entry_album->setText(media.director());
        ui_->combo_rating->setEnabled(true);
        ui_->combo_rating->setCurrentIndex(ui_->combo_rating->findText(media.rating()));
    }
    nameByCaption(*ui_->lbl_artist);
    nameByCaption(*ui_->lbl_album);
}

/** Shows what a web lookup found for a line of text. */
void TagForm::fillLine(QLineEdit& field, const QString& text) {
    field.setText(text);
    filled_ += &field;
}

void TagForm::fillRating(const QString& title) {
    const int item = ui_->combo_rating->findText(title);
    if (item >= 0) {
        ui_->combo_rating->setCurrentIndex(item);
        ratingMenuItemChanged(ui_->combo_rating->itemText(item));
    }
}

void TagForm::fillFields(const FormFillInfo* info) {
    if (!info) {
        return;
    }
    const QString comma = QStringLiteral(", ");
    if (info->title) {
        appLog(QStringLiteral("title=") + *info->title + QLatin1Char('\n'));
        fillLine(*ui_->entry_title, *info->title);
    }
    if (info->directors) {
        fillLine(*ui_->entry_album, nsarray_to_nsstring(*info->directors, comma));
    }
    if (info->description) {
        appLog(QStringLiteral("description=") + *info->description + QLatin1Char('\n'));
        setSynopsisText(*info->description);
        filled_ += ui_->entry_desc;
    }
    if (info->year) {
        appLog(QStringLiteral("year=") + *info->year + QLatin1Char('\n'));
        fillLine(*ui_->entry_year, *info->year);
    }
    if (info->rating) {
        appLog(QStringLiteral("rating=") + *info->rating + QLatin1Char('\n'));
        fillRating(*info->rating);
    }
    if (info->releaseDate) {
        ui_->picker_dateTime->setDateTime(info->releaseDate->startOfDay());
    }
    if (info->genres) {
        setGenreText(nsarray_to_nsstring(*info->genres, comma));
        filled_ += ui_->combo_genre;
    }
    if (info->cast) {
        fillLine(*ui_->entry_artist, nsarray_to_nsstring(*info->cast, QStringLiteral("\n")));
    }
    if (info->coverArt) {
        appLog(QStringLiteral("got cover art\n"));
        allowTrimming();
        changeCoverArt(info->coverArt);
    }
    emit filledFieldsChanged();
}

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

QString nsarray_to_nsstring(const QStringList& list, const QString& separator) {
    return list.isEmpty() ? QString() : list.join(separator);
}

} // namespace velmora
