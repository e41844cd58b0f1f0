// How the form is put together, and what it shows of a file or of a web lookup.

#include "tag_form.h"

#include "detail/image_file_drops.h"
#include "media_document.h"
#include "notice_bar.h"
#include "pick_lists.h"
#include "ui_tag_form.h"

#include "model/MediaFile.h"
#include "model/media_type.h"
#include "platform/accessibility.h"
#include "platform/alt_letters.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/log.h"
#include "platform/symbol.h"
#include "platform/wheel_needs_focus.h"
#include "weblookup/form_fill_info.h"

#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStringListModel>

#include <limits>

namespace velmora {

TagForm::TagForm(MediaDocument& document, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::TagForm>()), document_(document), genres_(localisedGenres()) {
    ui_->setupUi(this);
    setUpRating();
    setUpGenre();
    setUpFields();
    connectButtons();
    setSymbols();
    auto* wheelFilter = new WheelNeedsFocus(this);
    wheelFilter->watch(*ui_->combo_rating);
    wheelFilter->watch(*ui_->combo_genre);
    new ImageFileDrops(*this, *ui_->img_coverArt);
}

TagForm::~TagForm() = default;

void TagForm::setUpRating() {
    QComboBox* const rating = ui_->combo_rating;
    rating->clear();
    rating->addItems(ratingTitles());
    connect(rating, &QComboBox::activated, this,
            [this, rating](int index) { ratingMenuItemChanged(rating->itemText(index)); });
}

void TagForm::setUpGenre() {
    QComboBox* const genre = ui_->combo_genre;
    genre->setInsertPolicy(QComboBox::NoInsert);
    genre->setModel(new QStringListModel(genres_, this));
    genre->setCompleter(nullptr); // it would rewrite "drama" to "Drama" behind the user's back
    setGenreText(QString());
    // Leaving the box would pick the item whose name it shows, which is no edit of the user's.
    disconnect(genre->lineEdit(), &QLineEdit::editingFinished, genre, nullptr);
    genre->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
    connect(genre->lineEdit(), &QLineEdit::textEdited, this, [this, genre] { controlTextDidChange(genre); });
    connect(genre, &QComboBox::textActivated, this, [this, genre] { controlTextDidChange(genre); });
}

void TagForm::setUpFields() {
    // Their captions change with the file, and no letter is in both of each.
    giveAltLetter(*ui_->entry_artist, localised("Alt+J"));
    giveAltLetter(*ui_->entry_album, localised("Alt+Q"));
    for (QLineEdit* field : {ui_->entry_title, ui_->entry_artist, ui_->entry_album, ui_->entry_year}) {
        field->setMaxLength(std::numeric_limits<int>::max());
        connect(field, &QLineEdit::textEdited, this, [this, field] { controlTextDidChange(field); });
    }
    // Before the first file there is no date to show.
    ui_->picker_dateTime->setSpecialValueText(QStringLiteral(" "));
    ui_->picker_dateTime->setDateTime(ui_->picker_dateTime->minimumDateTime());
    connect(ui_->entry_desc, &QPlainTextEdit::textChanged, this, [this] { textDidChange(ui_->entry_desc); });
    connect(ui_->img_coverArt, &CoverArtView::coverArtImageChanged, this, &TagForm::coverArtImageChanged);
    connect(ui_->img_coverArt, &CoverArtView::imageChanged, this, [this] {
        if (document_.portableTags() && !showing_) {
            storeShownCover();
        }
        // Later: a cover that was loaded or dropped is about to be the open file's.
        QMetaObject::invokeMethod(this, &TagForm::shownCoverChanged, Qt::QueuedConnection);
    });
    connect(ui_->entry_year, &QLineEdit::textChanged, this, &TagForm::markYear);
    connect(ui_->img_coverArt, &CoverArtView::shownImageChanged, this,
            [this] { ui_->box_preview->setCover(ui_->img_coverArt->shownImage()); });
    // What nobody sees nobody trims.
    connect(ui_->img_coverArt, &CoverArtView::tooLargeToShow, this,
            [this] { ui_->btn_trimBorder->setEnabled(false); });
}

void TagForm::connectButtons() {
    connect(ui_->btn_saveTag, &QPushButton::clicked, this, &TagForm::saveClicked);
    connect(ui_->btn_revertTag, &QPushButton::clicked, this, &TagForm::revertClicked);
    connect(ui_->btn_removeTag, &QPushButton::clicked, this, &TagForm::removeClicked);
    connect(ui_->btn_loadCoverArt, &QPushButton::clicked, this, &TagForm::loadCoverArtClicked);
    connect(ui_->btn_trimBorder, &QPushButton::clicked, this, &TagForm::trimBorderClicked);
}

void TagForm::setSymbols() {
    ui_->btn_loadCoverArt->setIcon(symbol(QStringLiteral("insert-image")));
    ui_->btn_trimBorder->setIcon(symbol(QStringLiteral("transform-crop")));
    ui_->btn_removeTag->setIcon(symbol(QStringLiteral("edit-clear")));
    ui_->btn_revertTag->setIcon(symbol(QStringLiteral("document-revert")));
    ui_->btn_saveTag->setIcon(symbol(QStringLiteral("document-save")));
}

MoviePreview& TagForm::preview() {
    return *ui_->box_preview;
}

NoticeBar& TagForm::notice() {
    return *ui_->bar_notice;
}

MediaFile* TagForm::file() const {
    return document_.mediaFile();
}

int TagForm::numberOfItemsInComboBox() const {
    return static_cast<int>(genres_.size());
}

QString TagForm::comboBoxObjectValueForItemAtIndex(int index) const {
    return genres_.at(index);
}

/** Also picks the genre's item, so that the arrow keys start from there. */
void TagForm::setGenreText(const QString& text) {
    ui_->combo_genre->setCurrentIndex(ui_->combo_genre->findText(text));
    ui_->combo_genre->setEditText(text);
}

void TagForm::setSynopsisText(const QString& text) {
    const QSignalBlocker blocker(ui_->entry_desc);
    ui_->entry_desc->setPlainText(text);
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

void TagForm::clearCoverArt() {
    const QScopedValueRollback<bool> showing(showing_, true);
    ui_->img_coverArt->setImage(QImage());
}

void TagForm::disableButtons() {
    ui_->btn_trimBorder->setEnabled(false);
    ui_->btn_loadCoverArt->setEnabled(false);
    ui_->btn_removeTag->setEnabled(false);
    disableSaveAndRevert();
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

void TagForm::enableFileButtons() {
    ui_->btn_removeTag->setEnabled(true);
    ui_->btn_loadCoverArt->setEnabled(true);
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

void TagForm::showCoverArt(const MediaFile& media) {
    const QScopedValueRollback<bool> showing(showing_, true);
    if (media.coverArt()) {
        ui_->img_coverArt->setCover(media.coverArt());
    } else if (!document_.portableTags()) {
        if (const ImageRef folderImage =
                ImageRef::fromFile(pathFolder(media.filename()) + QStringLiteral("/folder.jpg"))) {
            changeCoverArt(folderImage);
            emit folderImageTaken();
        }
    }
    ui_->btn_trimBorder->setEnabled(static_cast<bool>(ui_->img_coverArt->cover()));
}

void TagForm::fillFields(const FormFillInfo* info) {
    if (!info) {
        return;
    }
    const QString comma = QStringLiteral(", ");
    if (info->title) {
        appLog(QStringLiteral("title=") + *info->title + QLatin1Char('\n'));
        ui_->entry_title->setText(*info->title);
        filled_ += ui_->entry_title;
    }
    if (info->directors) {
        ui_->entry_album->setText(nsarray_to_nsstring(*info->directors, comma));
        filled_ += ui_->entry_album;
    }
    if (info->description) {
        appLog(QStringLiteral("description=") + *info->description + QLatin1Char('\n'));
        setSynopsisText(*info->description);
        filled_ += ui_->entry_desc;
    }
    if (info->year) {
        appLog(QStringLiteral("year=") + *info->year + QLatin1Char('\n'));
        ui_->entry_year->setText(*info->year);
        filled_ += ui_->entry_year;
    }
    if (info->rating) {
        appLog(QStringLiteral("rating=") + *info->rating + QLatin1Char('\n'));
        const int item = ui_->combo_rating->findText(*info->rating);
        if (item >= 0) {
            ui_->combo_rating->setCurrentIndex(item);
            ratingMenuItemChanged(ui_->combo_rating->itemText(item));
        }
    }
    if (info->releaseDate) {
        ui_->picker_dateTime->setDateTime(info->releaseDate->startOfDay());
    }
    if (info->genres) {
        setGenreText(nsarray_to_nsstring(*info->genres, comma));
        filled_ += ui_->combo_genre;
    }
    if (info->cast) {
        ui_->entry_artist->setText(nsarray_to_nsstring(*info->cast, QStringLiteral("\n")));
        filled_ += ui_->entry_artist;
    }
    if (info->coverArt) {
        appLog(QStringLiteral("got cover art\n"));
        allowTrimming();
        changeCoverArt(info->coverArt);
    }
    emit filledFieldsChanged();
}

QString nsarray_to_nsstring(const QStringList& list, const QString& separator) {
    return list.isEmpty() ? QString() : list.join(separator);
}

} // namespace velmora
