#include "media_list.h"

#include "search_summary.h"
#include "ui_media_list.h"

#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/symbol.h"
#include "platform/wrapping_layout.h"

#include <algorithm>

namespace velmora {

namespace {

/** Says where was looked, a folder a line; of many, the first ones. */
QString searchedFolders(const QStringList& folders) {
    constexpr int most = 6;
    QStringList lines = {localised("Looked in:")};
    for (const QString& folder : folders.first(std::min<qsizetype>(folders.size(), most))) {
        lines += fileExists(folder) ? folder : localised("%@ (not there)", folder);
    }
    if (folders.size() > most) {
        lines += QString(QChar(0x2026));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

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
    ui_->box_noFiles->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (QLabel* const label : {ui_->lbl_noFiles, ui_->lbl_searchedFolders}) {
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->setForegroundRole(QPalette::Text);
    }
    const QAbstractItemModel* const model = ui_->tbl_mediaFiles->model();
    connect(model, &QAbstractItemModel::modelReset, this, &MediaList::updateHint);
    connect(model, &QAbstractItemModel::rowsInserted, this, &MediaList::updateHint);
    updateHint();
}

void MediaList::updateHint() {
    ui_->box_noFiles->setVisible(ui_->tbl_mediaFiles->model()->rowCount() == 0);
    ui_->lbl_searchedFolders->setVisible(!searching_ && !ui_->lbl_searchedFolders->text().isEmpty());
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

void MediaList::setSearched(const SearchSummary& summary) {
    ui_->lbl_searchedFolders->setText(summary.folders.isEmpty() ? QString()
                                                                : searchedFolders(summary.folders));
    updateHint();
}

void MediaList::setScanStatus(const QString& text) {
    ui_->lbl_scanStatus->setText(text);
}

} // namespace velmora
