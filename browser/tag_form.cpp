#include "tag_form.h"

#include "media_document.h"

#include "imaging/CoverArtView.h"
#include "model/MediaFile.h"
#include "model/media_type.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/log.h"
#include "weblookup/form_fill_info.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <limits>

namespace velmora {

namespace {

/** Combo boxes follow the wheel only while they have the focus, which the wheel does not give them: scrolling
   past one must not edit the file. */
class WheelNeedsFocus : public QObject {
public:
    using QObject::QObject;
    void watch(QComboBox& box) {
        box.setFocusPolicy(Qt::StrongFocus);
        box.installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) {
            return false;
        }
        event->ignore(); // whatever the box lies on may scroll
        return true;
    }
};

} // namespace

TagForm::TagForm(const TagFormOutlets& outlets, MediaDocument& document, QObject* parent)
    : QObject(parent), outlets_(outlets), document_(document), genres_(localisedGenres()) {
    setUpControls();
}

void TagForm::setUpControls() {
    QComboBox* const rating = outlets_.combo_rating;
    rating->clear();
    rating->addItems(ratingTitles());
    connect(rating, &QComboBox::activated, this,
            [this, rating](int index) { ratingMenuItemChanged(rating->itemText(index)); });

    QComboBox* const genre = outlets_.combo_genre;
    genre->setEditable(true);
    genre->setInsertPolicy(QComboBox::NoInsert);
    genre->setModel(new ComboBoxModel(*this, this));
    genre->setCompleter(nullptr); // it would rewrite "drama" to "Drama" behind the person's back
    setGenreText(QString());
    // Leaving the box would pick the item whose name it shows, which is no edit of the person's.
    disconnect(genre->lineEdit(), &QLineEdit::editingFinished, genre, nullptr);
    genre->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
    connect(genre->lineEdit(), &QLineEdit::textEdited, this, [this, genre] { controlTextDidChange(genre); });
    connect(genre, &QComboBox::textActivated, this, [this, genre] { controlTextDidChange(genre); });

    for (QLineEdit* field :
         {outlets_.entry_title, outlets_.entry_artist, outlets_.entry_album, outlets_.entry_year}) {
        field->setMaxLength(std::numeric_limits<int>::max());
        connect(field, &QLineEdit::textEdited, this, [this, field] { controlTextDidChange(field); });
    }
    connect(outlets_.entry_desc, &QPlainTextEdit::textChanged, this,
            [this] { textDidChange(outlets_.entry_desc); });

    auto* wheelFilter = new WheelNeedsFocus(this);
    wheelFilter->watch(*rating);
    wheelFilter->watch(*genre);
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
    outlets_.combo_genre->setCurrentIndex(outlets_.combo_genre->findText(text));
    outlets_.combo_genre->setEditText(text);
}

void TagForm::setSynopsisText(const QString& text) {
    const QSignalBlocker blocker(outlets_.entry_desc);
    outlets_.entry_desc->setPlainText(text);
}

void TagForm::clearFields() {
    const QString none;
    outlets_.entry_title->setText(none);
    outlets_.entry_artist->setText(none);
    outlets_.entry_album->setText(none);
    setGenreText(none);
    outlets_.entry_year->setText(none);
    outlets_.combo_rating->setCurrentIndex(0);
    setSynopsisText(none);
}

void TagForm::clearCoverArt() {
    outlets_.img_coverArt->setImage(QImage());
}

void TagForm::disableButtons() {
    outlets_.btn_trimBorder->setEnabled(false);
    outlets_.btn_loadCoverArt->setEnabled(false);
    outlets_.btn_removeTag->setEnabled(false);
    disableSaveAndRevert();
}

void TagForm::show(const MediaFile& media) {
    showCaptions(media);
    outlets_.entry_title->setText(media.title());
    emit searchTextChanged(media.title().isEmpty() ? pathWithoutExtension(lastPathComponent(media.filename()))
                                                   : media.title());
    setGenreText(media.genre());
    if (media.year() != 0) {
        outlets_.entry_year->setText(QString::number(media.year()));
    }
    outlets_.picker_dateTime->setDateTime(media.dateTime());
    setSynopsisText(media.synopsis());
    showCoverArt(media);
}

void TagForm::enableFileButtons() {
    outlets_.btn_removeTag->setEnabled(true);
    outlets_.btn_loadCoverArt->setEnabled(true);
}

/** Images and other files keep the captions of the file before them, and the two fields empty. */
void TagForm::showCaptions(const MediaFile& media) {
    if (media.mediaType() == audioMedia) {
        outlets_.lbl_artist->setText(localised("Artist:"));
        outlets_.lbl_album->setText(localised("Album:"));
        outlets_.entry_artist->setText(media.artist());
        outlets_.entry_album->setText(media.album());
        outlets_.combo_rating->setEnabled(false);
    } else if (media.mediaType() == videoMedia) {
        outlets_.lbl_artist->setText(localised("Cast:"));
        outlets_.lbl_album->setText(localised("Director:"));
        outlets_.entry_artist->setText(media.cast());
        outlets_.entry_album->setText(media.director());
        outlets_.combo_rating->setEnabled(true);
        outlets_.combo_rating->setCurrentIndex(outlets_.combo_rating->findText(media.rating()));
    }
}

void TagForm::showCoverArt(const MediaFile& media) {
    QImage image = media.coverArt().toQImage();
    if (!media.coverArt()) {
        image = imageFromFile(pathFolder(media.filename()) + QStringLiteral("/folder.jpg"));
        if (!image.isNull()) {
            outlets_.img_coverArt->setImage(image);
            coverArtImageChanged(this);
        }
    } else {
        outlets_.img_coverArt->setImage(image);
    }
    outlets_.btn_trimBorder->setEnabled(!image.isNull());
}

void TagForm::fillFields(const FormFillInfo* info) {
    if (!info) {
        return;
    }
    const QString comma = QStringLiteral(", ");
    if (info->title) {
        appLog(QStringLiteral("title=") + *info->title + QLatin1Char('\n'));
        outlets_.entry_title->setText(*info->title);
    }
    if (info->directors) {
        outlets_.entry_album->setText(nsarray_to_nsstring(*info->directors, comma));
    }
    if (info->description) {
        appLog(QStringLiteral("description=") + *info->description + QLatin1Char('\n'));
        setSynopsisText(*info->description);
    }
    if (info->year) {
        appLog(QStringLiteral("year=") + *info->year + QLatin1Char('\n'));
        outlets_.entry_year->setText(*info->year);
    }
    if (info->rating) {
        appLog(QStringLiteral("rating=") + *info->rating + QLatin1Char('\n'));
        const int item = outlets_.combo_rating->findText(*info->rating);
        if (item >= 0) {
            outlets_.combo_rating->setCurrentIndex(item);
            ratingMenuItemChanged(outlets_.combo_rating->itemText(item));
        }
    }
    if (info->releaseDate) {
        outlets_.picker_dateTime->setDateTime(info->releaseDate->startOfDay());
    }
    if (info->genres) {
        setGenreText(nsarray_to_nsstring(*info->genres, comma));
    }
    if (info->cast) {
        outlets_.entry_artist->setText(nsarray_to_nsstring(*info->cast, QStringLiteral("\n")));
    }
    if (!info->coverArt.isNull()) {
        appLog(QStringLiteral("got cover art\n"));
        outlets_.img_coverArt->setImage(info->coverArt);
        outlets_.btn_trimBorder->setEnabled(true);
        coverArtImageChanged(this);
    }
}

QString nsarray_to_nsstring(const QStringList& list, const QString& separator) {
    return list.isEmpty() ? QString() : list.join(separator);
}

} // namespace velmora
