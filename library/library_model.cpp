#include "library_model.h"

#include "platform/localisation.h"

#include <QFont>

#include <algorithm>

namespace velmora {

namespace {

bool isControlOrLineBreak(QChar character) {
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

/** TEXT with blanks for control characters and line breaks: a cell shows no more than one line. */
QString onOneLine(QString text) {
    constexpr qsizetype longest = 1000;
    text.truncate(longest);
    std::replace_if(text.begin(), text.end(), isControlOrLineBreak, QChar(u' '));
    return text;
}

/** TEXT for a place that takes rich text whenever a text looks like it. */
QString literally(const QString& text) {
    return QStringLiteral("<span>") + text.toHtmlEscaped() + QStringLiteral("</span>");
}

/** TEXT, or where it is very long its beginning: a tip is laid out anew each time, and nobody reads on. */
QString beginningOf(const QString& text) {
    constexpr qsizetype longest = 2000;
    return text.size() <= longest ? text : text.first(longest) + u'…';
}

LibraryColumn columnAt(int section) {
    return static_cast<LibraryColumn>(section);
}

/** What is changed in place: of a name all but the extension, which stays. */
QString editableText(const QString& text, LibraryColumn column) {
    const qsizetype dot = column == LibraryColumn::name ? text.lastIndexOf(u'.') : -1;
    return dot > 0 ? text.first(dot) : text;
}

} // namespace

int LibraryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int LibraryModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : libraryColumnCount;
}

QVariant LibraryModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const int file = fileAt(index.row());
    const LibraryColumn column = columnAt(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return column == LibraryColumn::cover ? QVariant() : onOneLine(shownText(file, column));
    case Qt::EditRole:
        return editableText(rows_.text(file, column), column);
    case Qt::DecorationRole:
        return column == LibraryColumn::cover && thumbnails_ ? thumbnails_(file) : QVariant();
    case Qt::FontRole:
        return font(file, column);
    case Qt::ToolTipRole:
        return tip(file, column);
    case Qt::AccessibleTextRole:
        return spokenText(file, column);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue((isNumeric(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return {};
    }
}

/** Whether an edit deletes what the column says of the file. */
bool LibraryModel::isDeleted(int file, LibraryColumn column) const {
    return isEdited(rows_.at(file), rows_.edits(file), column) && rows_.text(file, column).isEmpty();
}

/** What is to be deleted is seen until it is. */
QString LibraryModel::shownText(int file, LibraryColumn column) const {
    return isDeleted(file, column) ? columnText(rows_.at(file), nullptr, column) : rows_.text(file, column);
}

/** What is not written into its file yet is bold, and struck out where it is to be deleted. */
QVariant LibraryModel::font(int file, LibraryColumn column) const {
    if (!isEdited(rows_.at(file), rows_.edits(file), column)) {
        return {};
    }
    QFont font;
    font.setBold(true);
    font.setStrikeOut(isDeleted(file, column));
    return font;
}

QString LibraryModel::tip(int file, LibraryColumn column) const {
    const bool saysItself = column != LibraryColumn::name && column != LibraryColumn::cover;
    return literally(saysItself ? beginningOf(rows_.text(file, column)) : rows_.at(file).path());
}

QString LibraryModel::spokenText(int file, LibraryColumn column) const {
    const QString text = onOneLine(rows_.text(file, column));
    return isEdited(rows_.at(file), rows_.edits(file), column) ? localised("%@, not applied", text) : text;
}

bool LibraryModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole) {
        return false;
    }
    const int file = fileAt(index.row());
    const RowEdits* const before = rows_.edits(file);
    RowEdits edits = before ? *before : RowEdits();
    if (!editText(edits, rows_.at(file), columnAt(index.column()), value.toString())) {
        return false;
    }
    setEdits(file, std::move(edits));
    return true;
}

Qt::ItemFlags LibraryModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && isEditable(columnAt(index.column()), rows_.at(fileAt(index.row())).media)) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

QVariant LibraryModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= libraryColumnCount) {
        return {};
    }
    const LibraryColumn column = columnAt(section);
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue((isNumeric(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    const auto key = std::find_if(keys_.begin(), keys_.end(),
                                  [column](const SortKey& sortKey) { return sortKey.column == column; });
    if (keys_.size() < 2 || key == keys_.end()) {
        return columnTitle(column);
    }
    // The view's own arrow is for the first key alone.
    return QStringLiteral("%1 %2%3").arg(columnTitle(column),
                                         key->descending ? QStringLiteral("↓") : QStringLiteral("↑"),
                                         QString::number(key - keys_.begin() + 1));
}

} // namespace velmora
