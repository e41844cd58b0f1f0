// The library table's menus.

#include "library_window.h"

#include "detail/names_commands.h"

#include "platform/localisation.h"

#include <QHeaderView>
#include <QMenuBar>

namespace velmora {

namespace {

void checkShownColumns(const QMenu& menu, const LibraryView& view) {
    const QList<LibraryColumn> shown = view.shownColumns();
    for (QAction* const action : menu.actions()) {
        action->setChecked(action->isCheckable() &&
                           shown.contains(static_cast<LibraryColumn>(action->data().toInt())));
    }
}

} // namespace

QAction* LibraryWindow::addCommand(QMenu& menu, const QString& text, const QString& tip,
                                   const QKeySequence& keys, void (LibraryWindow::*command)()) {
    QAction* const action = menu.addAction(text, this, command);
    action->setToolTip(tip);
    action->setStatusTip(tip);
    action->setShortcut(keys);
    return action;
}

void LibraryWindow::makeMenus() {
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    auto* const names = new NamesCommands(model_, *view_, this);
    names->addTo(*menuBar()->addMenu(localised("Name&s")));
    makeContextMenu();
}

void LibraryWindow::makeFileMenu() {
    QMenu& menu = *menuBar()->addMenu(localised("&File"));
    addCommand(menu, localised("&Apply"), localised("Write what was edited into the files"),
               QKeySequence(Qt::CTRL | Qt::Key_S), &LibraryWindow::apply);
    addCommand(menu, localised("&Export…"),
               localised("Write the rows and columns that are shown into a file, as CSV or JSON"),
               QKeySequence(Qt::CTRL | Qt::Key_E), &LibraryWindow::exportTable);
    menu.addSeparator();
    QAction* const close = menu.addAction(localised("&Close"), this, &QWidget::close);
    close->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
}

void LibraryWindow::makeEditMenu() {
    QMenu& menu = *menuBar()->addMenu(localised("&Edit"));
    undoAction_ = addCommand(menu, localised("&Undo Apply"),
                             localised("Give the files of the last apply their old values and names back"),
                             QKeySequence(Qt::CTRL | Qt::Key_Z), &LibraryWindow::undoApply);
    addCommand(menu, localised("&Revert"),
               localised("Drop what was edited in the selected files and not applied"), {},
               &LibraryWindow::revert);
    menu.addSeparator();
    const qsizetype firstOfTable = menu.actions().size();
    addCommand(menu, localised("&Edit Cell"), localised("Edit the text of the current cell"), {},
               &LibraryWindow::editCell);
    addCommand(menu, localised("&Copy Rows"),
               localised("Copy the selected rows with the columns that are shown, for a spreadsheet"),
               QKeySequence(Qt::CTRL | Qt::Key_C), &LibraryWindow::copyRows);
    addCommand(menu, localised("Copy Co&lumn"), localised("Copy the current column of the selected rows"),
               QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), &LibraryWindow::copyColumn);
    addCommand(menu, localised("&Paste Cells"),
               localised("Put the cells of the clipboard into the table from the current cell on"),
               QKeySequence(Qt::CTRL | Qt::Key_V), &LibraryWindow::paste);
    // These keys have a meaning of their own in the fields and in the cover.
    for (QAction* const action : menu.actions().sliced(firstOfTable)) {
        action->setShortcutContext(Qt::WidgetShortcut);
        view_->addAction(action);
    }
    menu.addSeparator();
    addCommand(menu, localised("&Filter"), localised("Type what is to be shown"),
               QKeySequence(Qt::CTRL | Qt::Key_F), &LibraryWindow::findText);
}

void LibraryWindow::makeViewMenu() {
    QMenu& menu = *menuBar()->addMenu(localised("&View"));
    QMenu* const sort = menu.addMenu(localised("&Sort By"));
    QMenu* const also = menu.addMenu(localised("&Then By"));
    columnMenu_ = menu.addMenu(localised("&Columns"));
    columnMenu_->menuAction()->setObjectName(QStringLiteral("action_columns"));
    for (const LibraryColumn column : libraryColumns()) {
        sort->addAction(columnTitle(column), view_, [this, column] { view_->sortByColumn(column, false); });
        also->addAction(columnTitle(column), view_, [this, column] { view_->sortByColumn(column, true); });
        QAction* const shown = columnMenu_->addAction(columnTitle(column));
        shown->setCheckable(true);
        shown->setData(static_cast<int>(column));
        connect(shown, &QAction::triggered, view_, [this, column, shown](bool checked) {
            view_->showColumn(column, checked);
            shown->setChecked(view_->shownColumns().contains(column));
        });
    }
    connect(columnMenu_, &QMenu::aboutToShow, this, [this] { checkShownColumns(*columnMenu_, *view_); });
    columnMenu_->addSeparator();
    const auto addMove = [this](const QString& text, Qt::Key key, int by) {
        QAction* const move =
            columnMenu_->addAction(text, view_, [this, by] { view_->moveCurrentColumn(by); });
        move->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | key));
    };
    addMove(localised("Move Column Left"), Qt::Key_Left, -1);
    addMove(localised("Move Column Right"), Qt::Key_Right, 1);
    QHeaderView& header = *view_->horizontalHeader();
    header.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&header, &QWidget::customContextMenuRequested, this, &LibraryWindow::showColumnMenu);
}

void LibraryWindow::showColumnMenu(const QPoint& position) {
    columnMenu_->popup(view_->horizontalHeader()->mapToGlobal(position));
}

void LibraryWindow::makeContextMenu() {
    rowMenu_ = menuBar()->addMenu(localised("Ro&w"));
    addCommand(*rowMenu_, localised("&Open in Editor"),
               localised("Open the file in the program's main window"), QKeySequence(Qt::CTRL | Qt::Key_O),
               &LibraryWindow::openSelected);
    addCommand(*rowMenu_, localised("&Show in Folder"), localised("Open the folder in which the file is"), {},
               &LibraryWindow::showInFolder);
    addCommand(*rowMenu_, localised("&Copy Path"), localised("Copy the paths of the selected files"), {},
               &LibraryWindow::copyPaths);
    rowMenu_->addSeparator();
    addCommand(*rowMenu_, localised("&Remove from List"),
               localised("Take the selected files off the list; they stay where they are"),
               QKeySequence(Qt::CTRL | Qt::Key_Backspace), &LibraryWindow::removeSelected)
        ->setShortcutContext(Qt::WidgetShortcut);
    view_->addActions(rowMenu_->actions());
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(view_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& position) { rowMenu_->popup(view_->viewport()->mapToGlobal(position)); });
}

void LibraryWindow::findText() {
    filter_->setFocus();
    filter_->selectAll();
}

void LibraryWindow::editCell() {
    if (view_->currentIndex().isValid()) {
        view_->edit(view_->currentIndex());
    }
}

} // namespace velmora
