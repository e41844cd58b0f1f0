#include "media_table.h"

#include "detail/media_table_columns.h"

#include "platform/file_path.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include <optional>
#include <utility>

namespace velmora {
namespace {

/** An error that a failed open has filled; one that it left alone means that the user cancelled. */
bool isFilled(const Error& error) {
    return !error.domain.isEmpty() || error.code != 0 || !error.userInfo.isEmpty();
}

bool isLeftButton(const QEvent& event) {
    return static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

} // namespace

MediaTable::MediaTable(QTableView& view, MediaDocument& document, Form form, QObject* parent)
    : QObject(parent), view_(view), document_(document), form_(std::move(form)),
      modalLoopWatch_([this] { handleLater(); }) {
    setUpView();
    setUpHeader();
    connect(view_.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MediaTable::noteSelectionChange);
    view_.installEventFilter(this);
    view_.viewport()->installEventFilter(this);
}

void MediaTable::setUpView() {
    view_.setModel(&model_);
    view_.setSelectionBehavior(QAbstractItemView::SelectRows);
    view_.setSelectionMode(QAbstractItemView::SingleSelection);
    view_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    // The Tab key leaves the table instead of selecting rows in it.
    view_.setTabKeyNavigation(false);
    view_.setWordWrap(false);
    view_.setTextElideMode(Qt::ElideMiddle);
    view_.setShowGrid(false);
    view_.setAlternatingRowColors(true);
    view_.setCornerButtonEnabled(false);
    view_.setIconSize(QSize(16, 16));
    view_.verticalHeader()->hide();
    view_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view_.verticalHeader()->setDefaultSectionSize(view_.fontMetrics().height() + 8);
}

void MediaTable::setUpHeader() {
    QHeaderView& header = *view_.horizontalHeader();
    header.setSectionsClickable(true);
    header.setHighlightSections(false);
    header.setSortIndicatorShown(false);
    new MediaTableColumns(view_, this);
    connect(&header, &QHeaderView::sectionClicked, this, &MediaTable::tableViewDidClickTableColumn);
    // The second of two quick clicks is reported as this alone, of any button and also beside the columns.
    connect(&header, &QHeaderView::sectionDoubleClicked, this, [this](int column) {
        if (column >= 0 && QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
            tableViewDidClickTableColumn(column);
        }
    });
}

bool MediaTable::addMediaFile(const QString& path) {
    const ColdataPointer row = mediaRow(path, fileAttributes(pathBytes(path)));
    if (!row) {
        return false;
    }
    addColdataSorted(row);
    reloadData();
    emit fileAdded(row);
    return true;
}

void MediaTable::removeFile(const QString& path) {
    for (std::size_t index = mediaFiles_.count(); index-- > 0;) {
        if (mediaFiles_.at(index)->fullpath != path) {
            continue;
        }
        const int row = static_cast<int>(index);
        model_.beginRemoval(row);
        mediaFiles_.remove(index);
        model_.endRemoval();
        if (row < curSelectedRow_) {
            --curSelectedRow_;
        }
    }
    emit fileRemoved(path);
}

void MediaTable::updateFiles(const QHash<QString, QString>& paths) {
    std::vector<std::pair<std::size_t, ColdataPointer>> changed;
    for (std::size_t index = 0; index < mediaFiles_.count(); ++index) {
        const auto path = paths.constFind(mediaFiles_.at(index)->fullpath);
        if (path == paths.constEnd()) {
            continue;
        }
        if (ColdataPointer row = mediaRow(*path, fileAttributes(pathBytes(*path)))) {
            changed.emplace_back(index, std::move(row));
        }
    }
    mediaFiles_.replace(std::move(changed));
    reloadData();
}

void MediaTable::addColdataSorted(ColdataPointer row) {
    mediaFiles_.addColdataSorted(std::move(row));
}

void MediaTable::reloadData() {
    model_.reloadData();
}

void MediaTable::selectFile(const QString& path) {
    const int row = rowOf(path);
    if (row >= 0) {
        view_.setCurrentIndex(model_.index(row, MediaTableModel::columnIndex(u"filename")));
    }
}

int MediaTable::rowOf(const QString& path) const {
    for (std::size_t row = mediaFiles_.count(); row-- > 0;) {
        if (mediaFiles_.at(row)->fullpath == path) {
            return static_cast<int>(row);
        }
    }
    return -1;
}

void MediaTable::showAsOpen(const QString& path) {
    curSelectedRow_ = rowOf(path);
    model_.setOpenRecord(curSelectedRow_ < 0 ? nullptr
                                             : mediaFiles_.at(static_cast<std::size_t>(curSelectedRow_)));
    restoreSelection();
}

void MediaTable::tableViewDidClickTableColumn(int column) {
    TableColumn sortColumn = MediaTableModel::columns().at(column);
    if (sortColumn.identifier == u"icon") {
        sortColumn.identifier = QStringLiteral("filename");
    }
    mediaFiles_.sortBy(sortColumn);

    // The header has turned its own indicator on the click, and has put it on the column that was clicked.
    const int shownColumn = MediaTableModel::columnIndex(sortColumn.identifier);
    model_.setHighlightedTableColumn(shownColumn);
    view_.horizontalHeader()->setSortIndicator(
        shownColumn, mediaFiles_.tableSortDescending() ? Qt::DescendingOrder : Qt::AscendingOrder);
    view_.horizontalHeader()->setSortIndicatorShown(true);
    reloadData();
}

bool MediaTable::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        leftButtonDown_ = leftButtonDown_ || (watched == view_.viewport() && isLeftButton(*event));
        break;
    case QEvent::MouseButtonRelease:
        if (isLeftButton(*event)) {
            leftButtonDown_ = false;
            handleLater();
        }
        break;
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
        // The release, if there is one, may go elsewhere.
        leftButtonDown_ = false;
        handleLater();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void MediaTable::noteSelectionChange() {
    changeNoted_ = true;
    handleLater();
}

void MediaTable::handleLater() {
    if (!changeNoted_ || handlingPosted_) {
        return;
    }
    handlingPosted_ = true;
    QMetaObject::invokeMethod(this, &MediaTable::handleSelectionChange, Qt::QueuedConnection);
}

bool MediaTable::mustWait() const {
    return handling_ || leftButtonDown_ || ModalLoop::depth() > 0;
}

void MediaTable::handleSelectionChange() {
    handlingPosted_ = false;
    if (changeNoted_ && !mustWait()) {
        tableViewSelectionDidChange();
    }
}

void MediaTable::tableViewSelectionDidChange() {
    if (handling_) {
        changeNoted_ = true;
        return;
    }
    changeNoted_ = false;
    {
        const QScopedValueRollback<bool> handling(handling_, true);
        const int row = selectedRow();
        if (row != curSelectedRow_ && !(row < 0 ? closeFile() : openFile(row))) {
            restoreSelection();
        }
    }
    // Whatever was noted meanwhile, the restored selection for one.
    handleLater();
}

int MediaTable::selectedRow() const {
    const QModelIndexList rows = view_.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

bool MediaTable::closeFile() {
    if (!document_.readFromURL(std::nullopt, QString(), nullptr)) {
        return false;
    }
    curSelectedRow_ = -1;
    showNoneAsOpen();
    form_.clearUI();
    return true;
}

bool MediaTable::openFile(int row) {
    // By its place in the list, also while the table shows the list the other way round.
    const ColdataPointer record = mediaFiles_.at(static_cast<std::size_t>(row));
    if (record->fullpath.isNull()) {
        return false;
    }
    Error error;
    if (document_.readFromURL(fileUrlFromPath(record->fullpath), QStringLiteral("mediafile"), &error)) {
        model_.setOpenRecord(record);
        form_.clearUI();
        form_.fillUI();
        curSelectedRow_ = row;
        return true;
    }
    if (isFilled(error)) {
        form_.showError(error);
    }
    return false;
}

void MediaTable::restoreSelection() {
    if (curSelectedRow_ < 0) {
        view_.clearSelection();
    } else {
        view_.selectRow(curSelectedRow_);
    }
}

} // namespace velmora
