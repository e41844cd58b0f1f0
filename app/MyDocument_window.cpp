// The document's window: made from its layout, its controls handed to their controllers, its commands
// connected.

#include "MyDocument.h"

#include "browser/VelmoraController.h"
#include "platform/localisation.h"
#include "ui_MyDocument.h"
#include "weblookup/TagWebBrowser.h"

#include <QAction>

namespace velmora {

namespace {

VelmoraOutlets outletsOf(const Ui::MyDocument& ui, TagWebBrowser* browser) {
    VelmoraOutlets outlets;
    outlets.entry_title = ui.entry_title;
    outlets.entry_artist = ui.entry_artist;
    outlets.entry_album = ui.entry_album;
    outlets.entry_year = ui.entry_year;
    outlets.lbl_artist = ui.lbl_artist;
    outlets.lbl_album = ui.lbl_album;
    outlets.combo_genre = ui.combo_genre;
    outlets.combo_rating = ui.combo_rating;
    outlets.picker_dateTime = ui.picker_dateTime;
    outlets.entry_desc = ui.entry_desc;
    outlets.img_coverArt = ui.img_coverArt;
    outlets.btn_saveTag = ui.btn_saveTag;
    outlets.btn_revertTag = ui.btn_revertTag;
    outlets.btn_removeTag = ui.btn_removeTag;
    outlets.btn_loadCoverArt = ui.btn_loadCoverArt;
    outlets.btn_captureFrame = ui.btn_captureFrame;
    outlets.btn_trimBorder = ui.btn_trimBorder;
    outlets.btn_addFile = ui.btn_addFile;
    outlets.btn_addFolder = ui.btn_addFolder;
    outlets.btn_stop = ui.btn_stop;
    outlets.progress_mediaSearch = ui.progress_mediaSearch;
    outlets.lbl_scanStatus = ui.lbl_scanStatus;
    outlets.tbl_mediaFiles = ui.tbl_mediaFiles;
    outlets.view_preview = ui.view_preview;
    outlets.lbl_previewFailed = ui.lbl_previewFailed;
    outlets.twb_browser = browser;
    return outlets;
}

} // namespace

QString MyDocument::windowNibName() {
    return QStringLiteral("MyDocument");
}

void MyDocument::makeWindow() {
    window_ = std::make_unique<DocumentWindow>();
    ui_ = std::make_unique<Ui::MyDocument>();
    ui_->setupUi(window_.get());
    ui_->split_upper->setSizes({400, 600}); // a proportion, whatever the window's width
    window_->setObjectName(windowNibName());
    window_->setWindowTitle(displayName());
    window_->setDelegate(this);
    setWindow(window_.get());
    connectController();
    connectCommands();
    windowControllerDidLoadNib();
    controller_->awakeFromNib();
}

void MyDocument::windowControllerDidLoadNib() {
    termination_.setDelegate(this);
}

/** The page gets its share of the window once there is a page to see. */
void MyDocument::makeRoomForWebPage() {
    disconnect(ui_->webview_search, &WebView::didStartProvisionalLoad, this, nullptr);
    const int height = ui_->split_main->height();
    if (ui_->box_web->height() < height / 3) {
        ui_->split_main->setSizes({height / 2, height / 2});
    }
}

void MyDocument::showWindow() {
    window_->show();
    ui_->tbl_mediaFiles->setFocus();
}

void MyDocument::connectController() {
    webBrowser_ = std::make_unique<TagWebBrowser>();
    controller_ = std::make_unique<VelmoraController>(outletsOf(*ui_, webBrowser_.get()), *this);
    webBrowser_->btn_formFill = ui_->btn_formFill;
    webBrowser_->btn_search = ui_->btn_search;
    webBrowser_->btn_searchBack = ui_->btn_searchBack;
    webBrowser_->combo_search = ui_->combo_search;
    webBrowser_->controller = controller_.get();
    webBrowser_->entry_search = ui_->entry_search;
    webBrowser_->lbl_movieName = ui_->lbl_movieName;
    webBrowser_->progress_search = ui_->progress_search;
    webBrowser_->webview_search = ui_->webview_search;
    webBrowser_->awakeFromNib();
    connect(ui_->webview_search, &WebView::didStartProvisionalLoad, this, &MyDocument::makeRoomForWebPage);
}

void MyDocument::connectCommands() {
    connect(ui_->action_addFile, &QAction::triggered, controller_.get(), &VelmoraController::addFile);
    connect(ui_->action_addFolder, &QAction::triggered, controller_.get(), &VelmoraController::addFolder);
    connect(ui_->action_save, &QAction::triggered, this, &MyDocument::saveDocument);
    connect(ui_->action_revert, &QAction::triggered, ui_->btn_revertTag, &QPushButton::click);
    connect(ui_->action_loadCoverArt, &QAction::triggered, controller_.get(),
            &VelmoraController::loadCoverArt);
    connect(ui_->action_close, &QAction::triggered, window_.get(), &QWidget::close);
    connect(ui_->action_quit, &QAction::triggered, &termination_, &ApplicationTermination::terminate);
    for (const auto& [action, column] :
         {std::pair(ui_->action_sortByName, u"filename"), std::pair(ui_->action_sortBySize, u"filesize"),
          std::pair(ui_->action_sortByDate, u"created")}) {
        connect(action, &QAction::triggered, this, [this, index = MediaTableModel::columnIndex(column)] {
            controller_->table().tableViewDidClickTableColumn(index);
        });
    }
    connect(ui_->action_find, &QAction::triggered, ui_->tbl_mediaFiles, qOverload<>(&QWidget::setFocus));
    connect(ui_->action_lookUp, &QAction::triggered, ui_->entry_search, qOverload<>(&QWidget::setFocus));
}

} // namespace velmora
