// The document's window: made from its layout, its parts put into their places, its commands connected.

#include "MyDocument.h"
#include "file_drops.h"
#include "help_menu.h"
#include "ui_MyDocument.h"

#include "browser/VelmoraController.h"
#include "browser/media_list.h"
#include "browser/status_line.h"
#include "browser/tag_form.h"
#include "imaging/image_data.h"
#include "platform/accessibility.h"
#include "platform/alt_letters.h"
#include "platform/settings.h"
#include "platform/symbol.h"
#include "weblookup/TagWebBrowser.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QShortcut>

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
    nameControlsByCaptions(*window_);
    window_->setDelegate(this);
    setWindow(window_.get());
    portableTags_ = remembersPortableTags();
    controller_ = std::make_unique<VelmoraController>(*list_, *form_, *webBrowser_, *this);
    connectCommands();
    connect(&controller_->search(), &MediaSearch::searched, status_, &StatusLine::tellSearch);
    connect(&controller_->search(), &MediaSearch::searched, list_, &MediaList::setSearched);
    connect(new FileDrops(*window_), &FileDrops::dropped, controller_.get(), &VelmoraController::addPaths);
    new HelpMenu(*window_, *ui_->action_userGuide, *ui_->action_keyboard, *ui_->action_about);
    setSymbols();
    windowControllerDidLoadNib();
    restoreLayout();
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
    status_ = new StatusLine;
    window_->setStatusBar(status_);
    connect(this, &MediaDocument::saveEnded, status_, &StatusLine::tellSave);
    connect(webBrowser_, &TagWebBrowser::pageShown, this, &MyDocument::makeRoomForWebPage);
}

void MyDocument::windowControllerDidLoadNib() {
    termination_.setDelegate(this);
}

/** The page gets its share of the window once there is a page to see, and gives it back when
   there is none. */
void MyDocument::makeRoomForWebPage(bool shown) {
    showsPage_ = shown;
    if (!shown) {
        sizesWithPage_ = ui_->split_main->sizes();
        ui_->split_main->setSizes({ui_->split_main->height(), 0}); // no less than the panel's bars
        return;
    }
    const int half = ui_->split_main->height() / 2;
    ui_->split_main->setSizes(sizesWithPage_.isEmpty() ? QList<int>{half, half} : sizesWithPage_);
}

void MyDocument::showWindow() {
    window_->fitScreen();
    window_->show();
    list_->focusTable();
}

void MyDocument::setSymbols() {
    for (const auto& [action, name] : {std::pair(ui_->action_addFile, "list-add"),
                                       std::pair(ui_->action_addFolder, "folder-new"),
                                       std::pair(ui_->action_save, "document-save"),
                                       std::pair(ui_->action_revert, "document-revert"),
                                       std::pair(ui_->action_portableTags, "tag"),
                                       std::pair(ui_->action_restoreEdits, "edit-undo"),
                                       std::pair(ui_->action_pasteCover, "edit-paste"),
                                       std::pair(ui_->action_trimBorder, "transform-crop"),
                                       std::pair(ui_->action_deleteCover, "edit-delete"),
                                       std::pair(ui_->action_deleteTags, "edit-delete"),
                                       std::pair(ui_->action_close, "window-close"),
                                       std::pair(ui_->action_quit, "application-exit"),
                                       std::pair(ui_->action_find, "edit-find"),
                                       std::pair(ui_->action_loadCoverArt, "insert-image"),
                                       std::pair(ui_->action_lookUp, "web-browser"),
                                       std::pair(ui_->action_library, "view-list-details"),
                                       std::pair(ui_->action_sortByName, "sort-by-name"),
                                       std::pair(ui_->action_sortBySize, "sort-by-size"),
                                       std::pair(ui_->action_sortByDate, "sort-by-date"),
                                       std::pair(ui_->action_rememberLayout, "view-pin"),
                                       std::pair(ui_->action_forgetEverything, "edit-clear"),
                                       std::pair(ui_->action_userGuide, "help-contents"),
                                       std::pair(ui_->action_keyboard, "input-keyboard"),
                                       std::pair(ui_->action_about, "help-about")}) {
        action->setIcon(symbol(QLatin1String(name)));
    }
}

void MyDocument::connectCoverCommands() {
    connect(ui_->action_pasteCover, &QAction::triggered, form_, &TagForm::pasteAndStoreCover);
    connect(ui_->action_trimBorder, &QAction::triggered, controller_.get(), &VelmoraController::trimBorder);
    connect(ui_->action_deleteCover, &QAction::triggered, controller_.get(), &VelmoraController::deleteCover);
    connect(ui_->action_deleteTags, &QAction::triggered, controller_.get(),
            &VelmoraController::deleteAllTags);
    connect(ui_->menu_edit, &QMenu::aboutToShow, this, &MyDocument::enableEditCommands);
    connect(this, &MediaDocument::openFileChanged, this, &MyDocument::enableEditCommands);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &MyDocument::enableEditCommands);
    connect(form_, &TagForm::shownCoverChanged, this, &MyDocument::enableEditCommands);
    enableEditCommands();
}

/** Commands are active whenever they can do something. */
void MyDocument::enableEditCommands() {
    const QMimeData* const copied = QGuiApplication::clipboard()->mimeData();
    ui_->action_pasteCover->setEnabled(mediaFile_ && copied && offersImageData(*copied));
    ui_->action_trimBorder->setEnabled(mediaFile_ && form_->showsCover());
    ui_->action_deleteCover->setEnabled(mediaFile_ && (form_->showsCover() || mediaFile_->coverArt()));
    ui_->action_deleteTags->setEnabled(mediaFile_ && mediaFile_->canHavePortableTags());
}

void MyDocument::connectCommands() {
    connect(ui_->action_addFile, &QAction::triggered, controller_.get(), &VelmoraController::addFile);
    connect(ui_->action_addFolder, &QAction::triggered, controller_.get(), &VelmoraController::addFolder);
    connect(ui_->action_save, &QAction::triggered, this, &MyDocument::saveDocument);
    ui_->action_portableTags->setChecked(portableTags_);
    connect(ui_->action_portableTags, &QAction::triggered, this, &MyDocument::switchPortableTags);
    connect(this, &MyDocument::portableTagsChanged, ui_->action_portableTags, &QAction::setChecked);
    connect(ui_->action_revert, &QAction::triggered, form_, &TagForm::clickRevert);
    connect(ui_->action_restoreEdits, &QAction::triggered, controller_.get(),
            &VelmoraController::restoreUnsavedEdits);
    connect(this, &MediaDocument::hasUnsavedEditsChanged, ui_->action_restoreEdits, &QAction::setEnabled);
    connect(ui_->action_loadCoverArt, &QAction::triggered, controller_.get(),
            &VelmoraController::loadCoverArt);
    connectCoverCommands();
    // The command only shows the key: it is the button's, which also settles the changes.
    auto* const saveKey = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_S), window_.get());
    connect(saveKey, &QShortcut::activated, form_, &TagForm::clickSave);
    // The toolkit leaves this key to desktops, not all of which know it.
    auto* const menuKey = new QShortcut(QKeySequence(Qt::Key_F10), window_.get());
    connect(menuKey, &QShortcut::activated, this,
            [this] { ui_->menubar->setActiveAction(ui_->menu_file->menuAction()); });
    connect(ui_->action_close, &QAction::triggered, window_.get(), &QWidget::close);
    connect(ui_->action_quit, &QAction::triggered, &termination_, &ApplicationTermination::terminate);
    for (const auto& [action, column] :
         {std::pair(ui_->action_sortByName, u"filename"), std::pair(ui_->action_sortBySize, u"filesize"),
          std::pair(ui_->action_sortByDate, u"created")}) {
        connect(action, &QAction::triggered, this, [this, index = MediaTableModel::columnIndex(column)] {
            list_->table().tableViewDidClickTableColumn(index);
        });
    }
    connect(ui_->action_library, &QAction::triggered, this, &MyDocument::showLibrary);
    connect(ui_->action_rememberLayout, &QAction::triggered, this, &MyDocument::rememberThisLayout);
    connect(ui_->action_forgetEverything, &QAction::triggered, this, &MyDocument::forgetEverything);
    connect(ui_->action_find, &QAction::triggered, list_, &MediaList::focusTable);
    connect(ui_->action_lookUp, &QAction::triggered, webBrowser_, &TagWebBrowser::focusSearchField);
}

} // namespace velmora
