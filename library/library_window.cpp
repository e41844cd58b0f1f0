#include "library_window.h"

#include "detail/edit_panel.h"

#include "platform/accessibility.h"
#include "platform/alt_letters.h"
#include "platform/localisation.h"
#include "platform/symbol.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLocale>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

namespace velmora {

namespace {

/** The panel looks at all selected files, which may be many. */
constexpr std::chrono::milliseconds panelPause{50};
constexpr int messageMilliseconds = 6000;

} // namespace

LibraryWindow::LibraryWindow(QWidget* parent) : DocumentWindow(parent) {
    setObjectName(QStringLiteral("LibraryWindow"));
    setWindowTitle(localised("Library Table"));
    makeLayout();
    makeMenus();
    keepAltLettersFromTyping(*this);
    nameControlsByCaptions(*this);
    resize(1280, 760);
    panelTimer_.setSingleShot(true);
    panelTimer_.setInterval(panelPause);
    filterTimer_.setSingleShot(true);
    filterTimer_.setInterval(0);
    connect(&filterTimer_, &QTimer::timeout, this, &LibraryWindow::filterTyped);
    connect(&panelTimer_, &QTimer::timeout, this, &LibraryWindow::refreshPanel);
    connect(&model_, &LibraryModel::contentsChanged, this, &LibraryWindow::refreshPanelLater);
    connect(&model_, &LibraryModel::contentsChanged, this, &LibraryWindow::updateCommands);
    connect(view_, &LibraryView::selectedFilesChanged, this, [this] {
        panel_->flush();
        refreshPanelLater();
    });
    showStatus();
    updateCommands();
}

void LibraryWindow::makeLayout() {
    auto* const box = new QWidget(this);
    auto* const layout = new QVBoxLayout(box);
    layout->setContentsMargins(8, 8, 8, 0);
    layout->addWidget(makeFilter());
    auto* const split = new QSplitter(Qt::Horizontal, box);
    split->setChildrenCollapsible(false);
    view_ = new LibraryView(model_, split);
    panel_ = new EditPanel(model_);
    showThumbnails();
    auto* const side = makeSide(split);
    split->addWidget(view_);
    split->addWidget(side);
    split->setStretchFactor(0, 1);
    split->setSizes({960, 300});
    layout->addWidget(split, 1);
    setCentralWidget(box);
    status_ = new QLabel(this);
    status_->setObjectName(QStringLiteral("lbl_libraryStatus"));
    status_->setTextFormat(Qt::PlainText);
    status_->setContentsMargins(6, 0, 0, 0); // below the filter's label, as messages are
    statusBar()->addWidget(status_, 1);
}

/** The table asks for small covers as the screen has them. */
void LibraryWindow::showThumbnails() {
    const double ratio = devicePixelRatioF();
    thumbnails_ =
        std::make_unique<CoverThumbnails>(model_, static_cast<int>(view_->iconSize().height() * ratio));
    model_.setThumbnails([this, ratio](int file) {
        QVariant picture = thumbnails_->picture(file);
        if (picture.isValid()) {
            auto pixels = picture.value<QPixmap>();
            pixels.setDevicePixelRatio(ratio);
            picture = pixels;
        }
        return picture;
    });
}

/** What is beside the table: the edit panel, and the buttons below it. */
QWidget* LibraryWindow::makeSide(QWidget* parent) {
    auto* const side = new QWidget(parent);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const area = new QScrollArea(side);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(panel_);
    layout->addWidget(area);
    layout->addWidget(makeButtons());
    return side;
}

QWidget* LibraryWindow::makeFilter() {
    auto* const box = new QWidget;
    auto* const layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    filter_ = new QLineEdit;
    filter_->setObjectName(QStringLiteral("entry_filter"));
    filter_->setPlaceholderText(localised("Words, artist:name, year:1990-1999, missing:cover"));
    filter_->setToolTip(localised("Show only the files that have these words in any column; "
                                  "artist:, year:1990-1999, missing:cover and the like look closer"));
    filter_->setClearButtonEnabled(true);
    auto* const caption = new QLabel(localised("Fi&lter:"));
    caption->setBuddy(filter_);
    layout->addWidget(caption);
    layout->addWidget(filter_, 1);
    connect(filter_, &QLineEdit::textChanged, &filterTimer_, qOverload<>(&QTimer::start));
    connect(filter_, &QLineEdit::editingFinished, this, &LibraryWindow::takeTypedFilter);
    connect(filter_, &QLineEdit::returnPressed, this, [this] { view_->setFocus(); });
    return box;
}

QWidget* LibraryWindow::makeButtons() {
    auto* const box = new QWidget;
    auto* const layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    revertButton_ = new QPushButton(symbol(QStringLiteral("document-revert")), localised("&Revert"));
    revertButton_->setObjectName(QStringLiteral("btn_revertLibrary"));
    revertButton_->setToolTip(localised("Drop what was edited in the selected files and not applied"));
    applyButton_ = new QPushButton(symbol(QStringLiteral("document-save")), localised("A&pply"));
    applyButton_->setObjectName(QStringLiteral("btn_apply"));
    applyButton_->setToolTip(localised("Write what was edited into the files"));
    layout->addStretch();
    layout->addWidget(revertButton_);
    layout->addWidget(applyButton_);
    connect(revertButton_, &QPushButton::clicked, this, &LibraryWindow::revert);
    connect(applyButton_, &QPushButton::clicked, this, &LibraryWindow::apply);
    return box;
}

void LibraryWindow::present() {
    if (!isVisible()) {
        fitScreen();
        show();
    }
    raise();
    activateWindow();
    view_->setFocus();
}

void LibraryWindow::filterTyped() {
    model_.setFilter(FilterQuery(filter_->text()));
}

/** What is done next is done with the files that match it. */
void LibraryWindow::takeTypedFilter() {
    if (filterTimer_.isActive()) {
        filterTimer_.stop();
        filterTyped();
    }
}

/** A change that follows does not put it off: while files are read, there is always one. */
void LibraryWindow::refreshPanelLater() {
    if (!panelTimer_.isActive()) {
        panelTimer_.start();
    }
}

void LibraryWindow::refreshPanel() {
    panel_->showFiles(view_->selectedFiles());
    showStatus();
}

void LibraryWindow::updateCommands() {
    applyButton_->setEnabled(hasEdits());
    revertButton_->setEnabled(hasEdits());
    undoAction_->setEnabled(!undo_.empty());
}

void LibraryWindow::takeTyped() {
    panel_->flush();
    if (view_->viewport()->isAncestorOf(QApplication::focusWidget())) {
        view_->setFocus(); // a cell that loses the keyboard is done with
    }
}

void LibraryWindow::revert() {
    takeTyped();
    std::vector<int> files = view_->selectedFiles();
    if (files.empty()) {
        files = model_.rows().editedRows();
    }
    model_.revertEdits(files);
}

void LibraryWindow::showMessage(const QString& text) {
    statusBar()->showMessage(text, messageMilliseconds);
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
