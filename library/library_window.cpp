#include "library_window.h"

#include "names_commands.h"

#include "platform/localisation.h"

#include <QLocale>
#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>

namespace velmora {

LibraryWindow::LibraryWindow(QWidget* parent) : DocumentWindow(parent) {
    setObjectName(QStringLiteral("LibraryWindow"));
    setWindowTitle(localised("Library Table"));
    makeLayout();
    makeMenus();
    resize(1180, 720);
    connect(&model_, &LibraryModel::contentsChanged, this, &LibraryWindow::showStatus);
    connect(view_, &LibraryView::selectedFilesChanged, this, &LibraryWindow::showStatus);
    showStatus();
}

void LibraryWindow::makeLayout() {
    auto* const box = new QWidget(this);
    auto* const layout = new QVBoxLayout(box);
    view_ = new LibraryView(model_, box);
    layout->addWidget(view_);
    setCentralWidget(box);
    status_ = new QLabel(this);
    status_->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(status_, 1);
}

void LibraryWindow::makeMenus() {
    QMenu* const file = menuBar()->addMenu(localised("&File"));
    QAction* const close = file->addAction(localised("&Close"), this, &QWidget::close);
    close->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
    makeViewMenu();
    auto* const names = new NamesCommands(model_, *view_, this);
    names->addTo(*menuBar()->addMenu(localised("&Names")));
}

void LibraryWindow::makeViewMenu() {
    QMenu* const menu = menuBar()->addMenu(localised("&View"));
    QMenu* const sort = menu->addMenu(localised("&Sort By"));
    QMenu* const also = menu->addMenu(localised("&Then By"));
    for (const LibraryColumn column : libraryColumns()) {
        sort->addAction(columnTitle(column), view_, [this, column] { view_->sortByColumn(column, false); });
        also->addAction(columnTitle(column), view_, [this, column] { view_->sortByColumn(column, true); });
    }
}

void LibraryWindow::present() {
    fitScreen();
    show();
    raise();
    activateWindow();
    view_->setFocus();
}

void LibraryWindow::showStatus() {
    const QLocale locale;
    const auto number = [&locale](std::size_t count) {
        return locale.toString(static_cast<qulonglong>(count));
    };
    QStringList parts{localised("%Ln file(s)", static_cast<int>(model_.listed()))};
    const std::size_t shown = model_.shownFiles().size();
    if (shown < model_.listed()) {
        parts += localised("%@ shown", number(shown));
    }
    if (const std::size_t selected = view_->selectedFiles().size(); selected > 0) {
        parts += localised("%@ selected", number(selected));
    }
    if (const std::size_t edited = model_.rows().editedCount(); edited > 0) {
        parts += localised("%@ not applied", number(edited));
    }
    if (const std::size_t unread = model_.unread(); unread > 0) {
        parts += localised("%@ to be read", number(unread));
    }
    status_->setText(parts.join(QStringLiteral(" · ")));
}

} // namespace velmora
