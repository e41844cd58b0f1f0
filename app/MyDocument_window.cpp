// The document's window: made from its layout, its parts put into their places, its commands connected.

#include "MyDocument.h"

#include "browser/VelmoraController.h"
#include "browser/media_list.h"
#include "browser/tag_form.h"
#include "platform/alt_letters.h"
#include "ui_MyDocument.h"
#include "weblookup/TagWebBrowser.h"

namespace velmora {

QString MyDocument::windowNibName() {
    return QStringLiteral("MyDocument");
}

void MyDocument::makeWindow() {
    window_ = std::make_unique<DocumentWindow>();
    ui_ = std::make_unique<Ui::MyDocument>();
    ui_->setupUi(window_.get());
    makeForms();
    window_->setObjectName(windowNibName());
    window_->setWindowTitle(displayName());
    keepAltLettersFromTyping(*window_);
    window_->setDelegate(this);
    setWindow(window_.get());
    controller_ = std::make_unique<VelmoraController>(*list_, *form_, *webBrowser_, *this);
    connectCommands();
    windowControllerDidLoadNib();
    controller_->awakeFromNib();
}

void MyDocument::makeForms() {
    list_ = new MediaList(*this);
    form_ = new TagForm(*this);
    webBrowser_ = new TagWebBrowser;
    ui_->split_upper->addWidget(list_);
    ui_->split_upper->addWidget(form_);
    ui_->split_upper->setSizes({400, 600}); // a proportion, whatever the window's width
    ui_->split_main->addWidget(webBrowser_);
    connect(webBrowser_, &TagWebBrowser::loadStarted, this, &MyDocument::makeRoomForWebPage);
}

void MyDocument::windowControllerDidLoadNib() {
    termination_.setDelegate(this);
}

/** The page gets its share of the window once there is a page to see. */
void MyDocument::makeRoomForWebPage() {
    disconnect(webBrowser_, &TagWebBrowser::loadStarted, this, nullptr);
    const int height = ui_->split_main->height();
    if (webBrowser_->height() < height / 3) {
        ui_->split_main->setSizes({height / 2, height / 2});
    }
}

void MyDocument::showWindow() {
    window_->show();
    list_->focusTable();
}

void MyDocument::connectCommands() {
    connect(ui_->action_addFile, &QAction::triggered, controller_.get(), &VelmoraController::addFile);
    connect(ui_->action_addFolder, &QAction::triggered, controller_.get(), &VelmoraController::addFolder);
    connect(ui_->action_save, &QAction::triggered, this, &MyDocument::saveDocument);
    connect(ui_->action_revert, &QAction::triggered, form_, &TagForm::clickRevert);
    connect(ui_->action_loadCoverArt, &QAction::triggered, controller_.get(),
            &VelmoraController::loadCoverArt);
    connect(ui_->action_close, &QAction::triggered, window_.get(), &QWidget::close);
    connect(ui_->action_quit, &QAction::triggered, &termination_, &ApplicationTermination::terminate);
    for (const auto& [action, column] :
         {std::pair(ui_->action_sortByName, u"filename"), std::pair(ui_->action_sortBySize, u"filesize"),
          std::pair(ui_->action_sortByDate, u"created")}) {
        connect(action, &QAction::triggered, this, [this, index = MediaTableModel::columnIndex(column)] {
            list_->table().tableViewDidClickTableColumn(index);
        });
    }
    connect(ui_->action_find, &QAction::triggered, list_, &MediaList::focusTable);
    connect(ui_->action_lookUp, &QAction::triggered, webBrowser_, &TagWebBrowser::focusSearchField);
}

} // namespace velmora
