#include "media_table_model.h"

#include "model/media_type.h"
#include "platform/assertion.h"
#include "platform/localisation.h"

#include <QFont>

#include <algorithm>
#include <utility>

namespace velmora {
namespace {

QString columnTitle(const TableColumn& column) {
    if (column.identifier == u"filename") {
        return localised("Name");
    }
    if (column.identifier == u"filesize") {
        return localised("Size");
    }
    if (column.identifier == u"created") {
        return localised("Date");
    }
    return {};
}

bool isNumeric(const TableColumn& column) {
    return column.identifier == u"filesize";
}

QVariant alignment(const TableColumn& column) {
    const Qt::Alignment horizontal = isNumeric(column) ? Qt::AlignRight : Qt::AlignLeft;
    return QVariant::fromValue(horizontal | Qt::AlignVCenter);
}

bool isControlOrLineBreak(QChar character) {
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

/** TEXT with blanks for control characters and line breaks: a cell shows no more than one line. */
QString onOneLine(QString text) {
    std::replace_if(text.begin(), text.end(), isControlOrLineBreak, QChar(u' '));
    return text;
}

/** What kind of file one with this NAME is. */
QString typeName(const QString& name) {
    switch (mediaKindOfPath(name).type) {
    case imageMedia:
        return localised("Picture");
    case audioMedia:
        return localised("Song");
    case videoMedia:
        return localised("Film");
    default:
        return localised("Other file");
    }
}

QFont boldFont() {
    QFont font;
    font.setBold(true);
    return font;
}

/** TEXT for a place that takes rich text whenever a text looks like it. */
QString literally(const QString& text) {
    return QStringLiteral("<span>") + text.toHtmlEscaped() + QStringLiteral("</span>");
}

} // namespace

MediaTableModel::MediaTableModel(const MediaRows& rows, QObject* parent)
    : QAbstractTableModel(parent), rows_(rows), reportedRows_(numberOfRowsInTableView()) {}

const QList<TableColumn>& MediaTableModel::columns() {
    static const QList<TableColumn> list = {
        TableColumn{QStringLiteral("icon")}, TableColumn{QStringLiteral("filename")},
        TableColumn{QStringLiteral("filesize")}, TableColumn{QStringLiteral("created")}};
    return list;
}

int MediaTableModel::columnIndex(QStringView identifier) {
    return static_cast<int>(columns().indexOf(TableColumn{identifier.toString()}));
}

int MediaTableModel::numberOfRowsInTableView() const {
    return static_cast<int>(rows_.count());
}

QVariant MediaTableModel::tableViewObjectValueForTableColumn(const TableColumn& column, int row) const {
    const int count = numberOfRowsInTableView();
    if (row < 0 || row >= count) {
        assertionFailed({QStringLiteral("Invalid parameter not satisfying: "
                                        "rowIndex >= 0 && rowIndex < [mediaFiles count]"),
                         QStringLiteral("VelmoraController"), 430});
        return {};
    }
    return recordAt(row)->valueForKey(column.identifier);
}

const ColdataPointer& MediaTableModel::recordAt(int row) const {
    const int index = rows_.tableSortDescending() ? numberOfRowsInTableView() - row - 1 : row;
    return rows_.at(static_cast<std::size_t>(index));
}

bool MediaTableModel::isOpen(int row) const {
    return openRecord_ && row < numberOfRowsInTableView() && recordAt(row) == openRecord_;
}

void MediaTableModel::setOpenRecord(ColdataPointer record) {
    openRecord_ = std::move(record);
    if (reportedRows_ > 0) {
        emit dataChanged(index(0, 0), index(reportedRows_ - 1, columnCount() - 1), {Qt::FontRole});
    }
}

void MediaTableModel::beginRemoval(int row) {
    beginRemoveRows({}, row, row);
    --reportedRows_;
}

void MediaTableModel::endRemoval() {
    endRemoveRows();
    reloadData();
}

void MediaTableModel::reloadData() {
    const int count = numberOfRowsInTableView();
    if (count > reportedRows_) {
        beginInsertRows({}, reportedRows_, count - 1);
        reportedRows_ = count;
        endInsertRows();
    }
    if (count > 0) {
        emit dataChanged(index(0, 0), index(count - 1, columnCount() - 1));
    }
}

void MediaTableModel::setHighlightedTableColumn(int column) {
    highlightedColumn_ = column;
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int MediaTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : reportedRows_;
}

int MediaTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns().size());
}

QVariant MediaTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const TableColumn& column = columns().at(index.column());
    const bool isIcon = column.identifier == u"icon";
    switch (role) {
    case Qt::DisplayRole:
        return isIcon ? QVariant()
                      : onOneLine(tableViewObjectValueForTableColumn(column, index.row()).toString());
    case Qt::DecorationRole:
        return isIcon ? tableViewObjectValueForTableColumn(column, index.row()) : QVariant();
    case Qt::ToolTipRole: {
        // The date may be cut off in its cell; the others tell where the file is.
        const bool isDate = column.identifier == u"created";
        const TableColumn shown{isDate ? column.identifier : QStringLiteral("fullpath")};
        return literally(tableViewObjectValueForTableColumn(shown, index.row()).toString());
    }
    case Qt::AccessibleTextRole:
        return spokenText(column, index.row());
    case Qt::AccessibleDescriptionRole:
        return isOpen(index.row()) ? localised("open in the form") : QVariant();
    case Qt::TextAlignmentRole:
        return alignment(column);
    case Qt::FontRole:
        return isOpen(index.row()) ? boldFont() : QVariant();
    default:
        return {};
    }
}

QString MediaTableModel::spokenText(const TableColumn& column, int row) const {
    const auto text = [&](const TableColumn& of) {
        return onOneLine(tableViewObjectValueForTableColumn(of, row).toString());
    };
    if (column.identifier != u"icon" && column.identifier != u"filename") {
        return text(column);
    }
    const QString name = text({QStringLiteral("filename")});
    return QStringList{name, typeName(name), text({QStringLiteral("filesize")})}.join(QLatin1String(", "));
}

QVariant MediaTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const TableColumn& column = columns().at(section);
    if (role == Qt::DisplayRole) {
        return columnTitle(column);
    }
    if (role == Qt::TextAlignmentRole) {
        return alignment(column);
    }
    if (role == Qt::FontRole && highlightedColumn_ == section) {
        return boldFont();
    }
    return {};
}

QModelIndexList MediaTableModel::match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                       Qt::MatchFlags flags) const {
    const bool isTyping = start.isValid() && role == Qt::DisplayRole;
    const QModelIndex from = isTyping ? start.siblingAtColumn(columnIndex(u"filename")) : start;
    return QAbstractTableModel::match(from, role, value, hits, flags);
}

} // namespace velmora
