// What the document's window looks like at the start, when the user wanted that to be remembered.

#include "MyDocument.h"
#include "ui_MyDocument.h"
#include "window_layout.h"

#include "browser/media_list.h"
#include "browser/notice_bar.h"
#include "browser/tag_form.h"
#include "library/library_layout.h"
#include "library/library_window.h"
#include "platform/localisation.h"
#include "platform/settings.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr std::chrono::seconds noticeTime{8};

} // namespace

void MyDocument::rememberThisLayout() {
    WindowLayout layout;
    layout.isMaximised = window_->isMaximized();
    layout.size = layout.isMaximised ? window_->normalGeometry().size() : window_->size();
    layout.parts = divisionOf(*window_);
    const QString main = ui_->split_main->objectName();
    if (!showsPage_) {
        layout.parts[main] = sizesWithPage_; // without a page there is nothing to divide
    }
    if (layout.parts[main].isEmpty()) {
        layout.parts.remove(main);
    }
    layout.parts.insert(library_
                            ? libraryLayout(*library_)
                            : libraryPartsOf(rememberedLayout().value_or(WindowLayout()).parts)); // as it was
    const MediaRows& rows = list_->table().mediaFiles();
    if (rows.tableSortColumn()) {
        layout.sortColumn = rows.tableSortColumn()->identifier;
        layout.isDescending = rows.tableSortDescending();
    }
    const bool remembered = rememberLayout(layout);
    tell(remembered, remembered
                         ? localised("The window will look like this at each start.")
                         : localised("The layout can't be remembered: the settings file can't be written."));
}

void MyDocument::forgetEverything() {
    const bool forgotten = velmora::forgetEverything();
    tell(forgotten, forgotten ? localised("Nothing is remembered any more: there is no settings file.")
                              : localised("The settings file can't be removed."));
}

void MyDocument::tell(bool succeeded, const QString& text) {
    form_->notice().show(
        {succeeded ? Notice::Kind::Information : Notice::Kind::Warning, text, {}, noticeTime});
}

void MyDocument::restoreLayout() {
    const std::optional<WindowLayout> layout = rememberedLayout();
    if (!layout) {
        return;
    }
    window_->resize(layout->size.expandedTo(window_->minimumSizeHint()));
    if (layout->isMaximised) {
        window_->setWindowState(Qt::WindowMaximized);
    }
    QMap<QString, QList<int>> parts = layout->parts;
    sizesWithPage_ = parts.take(ui_->split_main->objectName());
    if (sizesWithPage_.size() != ui_->split_main->count()) {
        sizesWithPage_.clear();
    }
    divide(*window_, parts);
    const auto& columns = MediaTableModel::columns();
    const bool isKnown = std::any_of(columns.begin(), columns.end(), [&](const TableColumn& column) {
        return column.identifier == layout->sortColumn;
    });
    for (int turn = 0; isKnown && turn < (layout->isDescending ? 2 : 1); ++turn) {
        list_->table().tableViewDidClickTableColumn(MediaTableModel::columnIndex(layout->sortColumn));
    }
}

} // namespace velmora
