#include "library_view.h"

#include "browser/media_row.h"
#include "platform/localisation.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <limits>

namespace velmora {

namespace {

constexpr std::chrono::milliseconds scrollingPause{20};
constexpr int roomForSortSign = 12; ///< beside a header's text, in pixels

/** On each side of a cell's text, so that texts of neighbouring columns don't touch. */
constexpr int airAroundText = 2;

/** Draws cells with air around their texts, on a ground that goes from edge to edge. Texts of any length are
   edited. */
class AiryDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem ground = option;
        initStyleOption(&ground, index);
        option.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &ground, painter, option.widget);
        QStyleOptionViewItem cell = option;
        cell.rect.adjust(airAroundText, 0, -airAroundText, 0);
        QStyledItemDelegate::paint(painter, cell, index);
    }

    /** An editor that is only looked at cuts nothing off. */
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        QWidget* const editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* const line = qobject_cast<QLineEdit*>(editor)) {
            line->setMaxLength(std::numeric_limits<int>::max());
        }
        return editor;
    }
};

/** Of the shown columns' widths, in average characters. */
int widthInCharacters(LibraryColumn column) {
    switch (column) {
    case LibraryColumn::name:
    case LibraryColumn::title:
        return 28;
    case LibraryColumn::folder:
    case LibraryColumn::artist:
    case LibraryColumn::album:
    case LibraryColumn::synopsis:
        return 22;
    case LibraryColumn::year:
    case LibraryColumn::cover:
        return 8;
    case LibraryColumn::tags:
    case LibraryColumn::date:
        return 18;
    default:
        return 12;
    }
}

/** Of a whole date and what is around it. */
int dateWidth(const QFontMetrics& metrics) {
    constexpr std::int64_t lateInAutumn = 1797721199; // 2026, as long as dates are where months have names
    const int margins = 4 * airAroundText + metrics.averageCharWidth();
    return metrics.horizontalAdvance(createdText({lateInAutumn, 0})) + margins;
}

} // namespace

LibraryView::LibraryView(LibraryModel& model, QWidget* parent) : QTableView(parent), model_(model) {
    setObjectName(QStringLiteral("tbl_library"));
    setAccessibleName(localised("Library"));
    setToolTip(localised("The listed files and what their tags say"));
    setModel(&model_);
    setItemDelegate(new AiryDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed | DoubleClicked);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    const int rowHeight = fontMetrics().height() + 10;
    setIconSize(QSize(rowHeight - 2, rowHeight - 2));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowHeight);
    setUpHeader();
    visibleTimer_.setSingleShot(true);
    visibleTimer_.setInterval(scrollingPause);
    connect(&visibleTimer_, &QTimer::timeout, this, &LibraryView::tellVisibleRows);
    connect(&model_, &QAbstractItemModel::layoutChanged, &visibleTimer_, qOverload<>(&QTimer::start));
    connect(&model_, &QAbstractItemModel::rowsInserted, &visibleTimer_, qOverload<>(&QTimer::start));
    connect(&model_, &LibraryModel::sortKeysChanged, this, &LibraryView::showSortKeys);
}

void LibraryView::setUpHeader() {
    QHeaderView& header = *horizontalHeader();
    header.setSectionsClickable(true);
    header.setSectionsMovable(true);
    header.setHighlightSections(false);
    header.setSortIndicatorShown(false);
    for (const LibraryColumn column : libraryColumns()) {
        const int section = static_cast<int>(column);
        const int usual = widthInCharacters(column) * fontMetrics().averageCharWidth();
        const int least = column == LibraryColumn::date ? dateWidth(fontMetrics()) : 0;
        header.resizeSection(section,
                             std::max({usual, least, header.sectionSizeHint(section) + roomForSortSign}));
        header.setSectionHidden(section, !isShownAtFirst(column));
    }
    connect(&header, &QHeaderView::sectionClicked, this, [this](int section) {
        sortByColumn(static_cast<LibraryColumn>(section),
                     QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier));
    });
}

std::vector<int> LibraryView::selectedFiles() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::transform(rows.begin(), rows.end(), rows.begin(), [this](int row) { return model_.fileAt(row); });
    return rows;
}

QList<LibraryColumn> LibraryView::shownColumns() const {
    QList<LibraryColumn> columns;
    for (int visual = 0; visual < libraryColumnCount; ++visual) {
        const int section = horizontalHeader()->logicalIndex(visual);
        if (!isColumnHidden(section)) {
            columns += static_cast<LibraryColumn>(section);
        }
    }
    return columns;
}

void LibraryView::showColumn(LibraryColumn column, bool shown) {
    if (!shown && shownColumns().size() == 1) {
        return;
    }
    const int section = static_cast<int>(column);
    setColumnHidden(section, !shown);
    if (!shown && currentIndex().column() == section) {
        const int neighbour = static_cast<int>(shownColumns().front());
        selectionModel()->setCurrentIndex(currentIndex().siblingAtColumn(neighbour),
                                          QItemSelectionModel::NoUpdate);
    }
}

void LibraryView::selectAll() {
    model_.finishFiltering();
    QTableView::selectAll();
}

void LibraryView::moveCurrentColumn(int by) {
    const QList<LibraryColumn> columns = shownColumns();
    const qsizetype from = columns.indexOf(static_cast<LibraryColumn>(currentIndex().column()));
    const qsizetype to = from + by;
    if (currentIndex().isValid() && from >= 0 && to >= 0 && to < columns.size()) {
        QHeaderView& header = *horizontalHeader();
        header.moveSection(header.visualIndex(static_cast<int>(columns[from])),
                           header.visualIndex(static_cast<int>(columns[to])));
    }
}

void LibraryView::sortByColumn(LibraryColumn column, bool also) {
    std::vector<SortKey> keys = model_.sortKeys();
    const auto isOfColumn = [column](const SortKey& key) { return key.column == column; };
    const auto found = std::find_if(keys.begin(), keys.end(), isOfColumn);
    const bool turns = found != keys.end() && (also || keys.size() == 1);
    if (turns) {
        found->descending = !found->descending;
    } else if (also) {
        keys.push_back({column, false});
    } else {
        keys = {{column, false}};
    }
    model_.sortBy(keys);
}

/** The header has turned its own indicator on the click. */
void LibraryView::showSortKeys() {
    const std::vector<SortKey>& keys = model_.sortKeys();
    horizontalHeader()->setSortIndicatorShown(!keys.empty());
    if (!keys.empty()) {
        horizontalHeader()->setSortIndicator(static_cast<int>(keys.front().column), keys.front().descending
                                                                                        ? Qt::DescendingOrder
                                                                                        : Qt::AscendingOrder);
    }
}

void LibraryView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    visibleTimer_.start();
}

void LibraryView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    visibleTimer_.start();
}

void LibraryView::tellVisibleRows() {
    const int first = rowAt(0);
    const int last = rowAt(viewport()->height() - 1);
    if (first >= 0) {
        model_.setVisibleRows(first, last < 0 ? model_.rowCount() - 1 : last);
    }
}

void LibraryView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    emit selectedFilesChanged();
}

} // namespace velmora
