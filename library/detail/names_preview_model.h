#pragma once

#include "names_preview.h"

#include <QAbstractTableModel>
#include <QIcon>

namespace velmora {

/** The preview's table: the file's name, what it gets, and a note. */
class NamesPreviewModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit NamesPreviewModel(QObject* parent = nullptr);

    /** Shows ROWS, whose texts stand under TITLES. */
    void setRows(std::vector<NamesPreviewRow> rows, const QStringList& titles);
    [[nodiscard]] const std::vector<NamesPreviewRow>& rows() const { return rows_; }
    /** How many rows apply. */
    [[nodiscard]] int applying() const;
    /** Shows only those that are left alone because something is wrong. */
    void showFailingOnly(bool only);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void choose();
    [[nodiscard]] QString text(const NamesPreviewRow& row, int column) const;

    std::vector<NamesPreviewRow> rows_;
    std::vector<std::size_t> shown_;
    QStringList titles_;
    QIcon warning_;
    bool failingOnly_ = false;
};

} // namespace velmora
