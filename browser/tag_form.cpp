// How the form is put together, and which of its buttons can be pressed.

#include "tag_form.h"

#include "media_document.h"
#include "notice_bar.h"
#include "pick_lists.h"
#include "ui_tag_form.h"

#include "platform/alt_letters.h"
#include "platform/localisation.h"
#include "platform/symbol.h"
#include "platform/wheel_needs_focus.h"

#include <QLineEdit>
#include <QStringListModel>

#include <limits>

namespace velmora {

TagForm::TagForm(MediaDocument& document, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::TagForm>()), document_(document), genres_(localisedGenres()) {
    ui_->setupUi(this);
    setUpRating();
    setUpGenre();
    setUpFields();
    setUpCover();
    connectButtons();
    setSymbols();
    auto* wheelFilter = new WheelNeedsFocus(this);
    wheelFilter->watch(*ui_->combo_rating);
    wheelFilter->watch(*ui_->combo_genre);
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
    connect(ui_->entry_year, &QLineEdit::textChanged, this, &TagForm::markYear);
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

void TagForm::enableFileButtons() {
    ui_->btn_removeTag->setEnabled(true);
    ui_->btn_loadCoverArt->setEnabled(true);
}

void TagForm::disableButtons() {
    ui_->btn_trimBorder->setEnabled(false);
    ui_->btn_loadCoverArt->setEnabled(false);
    ui_->btn_removeTag->setEnabled(false);
    disableSaveAndRevert();
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

void TagForm::clickSave() {
    ui_->btn_saveTag->click();
}

void TagForm::clickRevert() {
    ui_->btn_revertTag->click();
}

} // namespace velmora
