#include "media_list.h"

#include "platform/localisation.h"
#include "platform/symbol.h"
#include "platform/wrapping_layout.h"
#include "ui_media_list.h"

namespace velmora {

MediaList::MediaList(MediaDocument& document, QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::MediaList>()) {
    ui_->setupUi(this);
    auto* const buttons = new WrappingLayout(ui_->box_listButtons);
    for (QPushButton* button : {ui_->btn_addFile, ui_->btn_addFolder, ui_->btn_stop}) {
        buttons->addWidget(button);
    }
    table_ = std::make_unique<MediaTable>(
        *ui_->tbl_mediaFiles, document,
        MediaTable::Form{.clearUI = [this] { emit formToBeCleared(); },
                         .fillUI = [this] { emit formToBeFilled(); },
                         .showError = [this](const Error& error) { emit openFailed(error); }});
    ui_->btn_addFile->setIcon(symbol(QStringLiteral("list-add")));
    ui_->btn_addFolder->setIcon(symbol(QStringLiteral("folder-new")));
    ui_->btn_stop->setIcon(symbol(QStringLiteral("process-stop")));
    setUpHint();
    connect(ui_->btn_addFile, &QPushButton::clicked, this, &MediaList::addFileClicked);
    connect(ui_->btn_addFolder, &QPushButton::clicked, this, &MediaList::addFolderClicked);
    connect(ui_->btn_stop, &QPushButton::clicked, this, &MediaList::stopClicked);
}

MediaList::~MediaList() = default;

/** An empty list says what it is for. */
void MediaList::setUpHint() {
    ui_->lbl_noFiles->setAttribute(Qt::WA_TransparentForMouseEvents);
    ui_->lbl_noFiles->setForegroundRole(QPalette::Text);
    const QAbstractItemModel* const model = ui_->tbl_mediaFiles->model();
    connect(model, &QAbstractItemModel::modelReset, this, &MediaList::updateHint);
    connect(model, &QAbstractItemModel::rowsInserted, this, &MediaList::updateHint);
    updateHint();
}

void MediaList::updateHint() {
    ui_->lbl_noFiles->setVisible(ui_->tbl_mediaFiles->model()->rowCount() == 0);
    ui_->lbl_noFiles->setText(
        searching_
            ? localised("Looking for films and music…")
            : localised("No media files yet. Add files, or a folder to search, with the buttons above."));
}

void MediaList::focusTable() {
    ui_->tbl_mediaFiles->setFocus();
}

void MediaList::setSearchAnimated(bool animated) {
    searching_ = animated;
    updateHint();
    animated ? ui_->progress_mediaSearch->startAnimation() : ui_->progress_mediaSearch->stopAnimation();
}

void MediaList::setStopEnabled(bool enabled) {
    ui_->btn_stop->setEnabled(enabled);
}

void MediaList::setScanStatus(const QString& text) {
    ui_->lbl_scanStatus->setText(text);
}

} // namespace velmora
