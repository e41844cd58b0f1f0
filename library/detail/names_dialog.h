#pragma once

#include "names_preview_model.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QThreadPool>

#include <memory>

namespace velmora {

/** Asks for a pattern and shows what it makes of every file before anything happens. */
class NamesDialog : public QDialog {
    Q_OBJECT
public:
    /** For tags from names (read) or names from tags (write) of SOURCES. OTHERS are further files, which are
       to get other names. HISTORY has the patterns that were used before, the last one first; a dialog that
       is accepted adds its own. It outlives the dialog. */
    NamesDialog(NamePattern::Use use, std::vector<NamesSource> sources, std::vector<FileRename> others,
                QStringList& history, QWidget* parent);
    /** Waits for a preview that is being made. */
    ~NamesDialog() override;

    /** What is to be done, once the dialog is accepted. */
    [[nodiscard]] const std::vector<NamesPreviewRow>& rows() const { return model_.rows(); }
    /** The fields that the rows' texts are the values of. */
    [[nodiscard]] std::vector<portable::Field> fields() const;

    void accept() override;

private:
    void makePatternLine();
    void makePreview();
    void makeButtons();
    void insertPlace(const QString& place);
    void readPattern();
    void makeRows(const NamePattern& pattern);
    void take(std::vector<NamesPreviewRow> rows);
    void tell(const QString& text);
    [[nodiscard]] QStringList titles() const;

    const NamePattern::Use use_;
    const std::shared_ptr<const std::vector<NamesSource>> sources_;
    const std::shared_ptr<const std::vector<FileRename>> others_;
    QStringList& history_;
    std::optional<NamePattern> pattern_;
    NamesPreviewModel model_;
    QComboBox* patternBox_ = nullptr;
    QPushButton* placeButton_ = nullptr;
    QLabel* summary_ = nullptr;
    QCheckBox* failingOnly_ = nullptr;
    QTableView* preview_ = nullptr;
    QPushButton* set_ = nullptr;
    unsigned version_ = 0; ///< of the pattern, so that a preview of an older one is not shown
    QThreadPool thread_;
};

} // namespace velmora
