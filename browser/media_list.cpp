#include "media_list.h"

#include "ui_media_list.h"

namespace velmora {

MediaList::MediaList(MediaDocument& document, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::MediaList>()) {
    ui_->setupUi(this);
    table_ = std::make_unique<MediaTable>(
        *ui_->tbl_mediaFiles, document,
        MediaTable::Form{.clearUI = [this] { emit formToBeCleared(); },
                         .fillUI = [this] { emit formToBeFilled(); },
                         .showError = [this](const Error& error) { emit openFailed(error); }});
    connect(ui_->btn_addFile, &QPushButton::clicked, this, &MediaList::addFileClicked);
    connect(ui_->btn_addFolder, &QPushButton::clicked, this, &MediaList::addFolderClicked);
    connect(ui_->btn_stop, &QPushButton::clicked, this, &MediaList::stopClicked);
}

MediaList::~MediaList() = default;

void MediaList::focusTable() {
    ui_->tbl_mediaFiles->setFocus();
}

void MediaList::setSearchAnimated(bool animated) {
    animated ? ui_->progress_mediaSearch->startAnimation() : ui_->progress_mediaSearch->stopAnimation();
}

void MediaList::setStopEnabled(bool enabled) {
    ui_->btn_stop->setEnabled(enabled);
}

void MediaList::setScanStatus(const QString& text) {
    ui_->lbl_scanStatus->setText(text);
}

} // namespace velmora
