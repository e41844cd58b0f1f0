#include "names_preview_model.h"

#include "platform/localisation.h"

#include <QApplication>
#include <QStyle>

#include <algorithm>

namespace velmora {

NamesPreviewModel::NamesPreviewModel(QObject* parent)
    : QAbstractTableModel(parent),
      warning_(QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning)) {}

void NamesPreviewModel::setRows(std::vector<NamesPreviewRow> rows, const QStringList& titles) {
    beginResetModel();
    rows_ = std::move(rows);
    titles_ = titles;
    choose();
    endResetModel();
}

int NamesPreviewModel::applying() const {
    return static_cast<int>(
        std::count_if(rows_.begin(), rows_.end(), [](const auto& row) { return row.applies; }));
}

void NamesPreviewModel::showFailingOnly(bool only) {
    beginResetModel();
    failingOnly_ = only;
    choose();
    endResetModel();
}

void NamesPreviewModel::choose() {
    shown_.clear();
    for (std::size_t index = 0; index < rows_.size(); ++index) {
        if (!failingOnly_ || rows_[index].fails) {
            shown_.push_back(index);
        }
    }
}

int NamesPreviewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int NamesPreviewModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(titles_.size()) + 2;
}

QString NamesPreviewModel::text(const NamesPreviewRow& row, int column) const {
    if (column == 0) {
        return row.name;
    }
    return column <= titles_.size() ? row.texts.value(column - 1) : row.note;
}

QVariant NamesPreviewModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    const NamesPreviewRow& row = rows_[shown_[static_cast<std::size_t>(index.row())]];
    const bool note = index.column() > titles_.size();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text(row, index.column());
    case Qt::DecorationRole:
        return note && row.fails ? QVariant(warning_) : QVariant();
    default:
        return {};
    }
}

QVariant NamesPreviewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    if (section == 0) {
        return localised("Name");
    }
    return section <= titles_.size() ? titles_.value(section - 1) : localised("Note");
}

} // namespace velmora
