// What the library table's commands do with its rows: blocks of cells, export, and files elsewhere.

#include "library_window.h"

#include "detail/cell_block.h"
#include "detail/table_export.h"

#include "model/new_file_obstacle.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/sentences.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QHeaderView>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>

namespace velmora {

namespace {

ExportColumn exportColumn(LibraryColumn column) {
    return {columnKey(column), columnTitle(column)};
}

QVariant exportValue(const LibraryRow& row, const RowEdits* edits, LibraryColumn column) {
    if (column == LibraryColumn::cover) {
        return hasCover(row, edits);
    }
    if (column == LibraryColumn::year) {
        const int year = yearOf(row, edits);
        return year == 0 ? QVariant() : QVariant(year);
    }
    if (column == LibraryColumn::size) {
        return QVariant::fromValue<quint64>(row.size);
    }
    const QString text = columnText(row, edits, column);
    return text.isEmpty() ? QVariant() : QVariant(text);
}

/** The name in PANEL gets the extension of the chosen KIND, as the panel's filters have it. */
void giveKind(QFileDialog& panel, const QString& kind) {
    const QString extension =
        kind.startsWith(QLatin1String("JSON")) ? QStringLiteral("json") : QStringLiteral("csv");
    panel.setDefaultSuffix(extension);
    const QString name = lastPathComponent(panel.selectedFiles().value(0));
    if (!name.isEmpty()) {
        panel.selectFile(pathWithoutExtension(name) + u'.' + extension);
    }
}

} // namespace

QStringList LibraryWindow::selectedPaths() const {
    QStringList paths;
    for (const int file : view_->selectedFiles()) {
        paths += model_.rows().at(file).path();
    }
    return paths;
}

void LibraryWindow::copy(bool currentColumnOnly) {
    QList<LibraryColumn> columns = view_->shownColumns();
    if (currentColumnOnly) {
        columns = {static_cast<LibraryColumn>(std::max(view_->currentIndex().column(), 0))};
    }
    CellBlock block;
    for (const int file : view_->selectedFiles()) {
        QStringList cells;
        for (const LibraryColumn column : columns) {
            cells += model_.rows().text(file, column);
        }
        block.push_back(cells);
    }
    if (!block.empty()) {
        QApplication::clipboard()->setText(blockText(block));
    }
}

void LibraryWindow::paste() {
    CellBlock block = blockFromText(QApplication::clipboard()->text());
    const QModelIndex current = view_->currentIndex();
    if (block.empty() || !current.isValid()) {
        return;
    }
    const std::vector<int> selected = view_->selectedFiles();
    const bool fills = block.size() == 1 && block.front().size() == 1 && !selected.empty();
    std::vector<int> files;
    for (int row = current.row(); !fills && row < model_.rowCount() && files.size() < block.size(); ++row) {
        files.push_back(model_.fileAt(row));
    }
    if (fills) {
        files = selected;
        block.resize(files.size(), block.front());
    }
    const QList<LibraryColumn> columns = view_->shownColumns();
    const qsizetype first = columns.indexOf(static_cast<LibraryColumn>(current.column()));
    std::vector<std::pair<int, RowEdits>> all;
    std::size_t refused = 0;
    for (std::size_t i = 0; i < files.size(); ++i) {
        const RowEdits* const before = model_.rows().edits(files[i]);
        RowEdits edits = before ? *before : RowEdits();
        for (qsizetype cell = 0; cell < block[i].size() && first + cell < columns.size(); ++cell) {
            const LibraryColumn column = columns[first + cell];
            const bool same = model_.rows().text(files[i], column) == block[i][cell];
            refused += same || editText(edits, model_.rows().at(files[i]), column, block[i][cell]) ? 0 : 1;
        }
        all.emplace_back(files[i], std::move(edits));
    }
    model_.setEdits(all);
    if (refused > 0) {
        showMessage(localised("Cells that can't take what was pasted: %@",
                              QLocale().toString(static_cast<qulonglong>(refused))));
    }
}

ExportTable LibraryWindow::tableToExport() {
    takeTypedFilter();
    model_.finishFiltering();
    const QList<LibraryColumn> columns = view_->shownColumns();
    ExportTable table;
    for (const LibraryColumn column : columns) {
        table.columns.push_back(exportColumn(column));
    }
    table.rows = model_.rowCount();
    table.cell = [this, columns](int row, int column) {
        const int file = model_.fileAt(row);
        return exportValue(model_.rows().at(file), model_.rows().edits(file), columns[column]);
    };
    return table;
}

QString LibraryWindow::exportTo(const QString& path) {
    QBuffer contents;
    contents.open(QIODevice::WriteOnly);
    const bool json = path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
    static_cast<void>(json ? exportJson(tableToExport(), contents) : exportCsv(tableToExport(), contents));
    QSaveFile file(path);
    errno = 0;
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.write(contents.data()) == contents.data().size() && file.flush() &&
                         file.commit();
    // A folder of that name is refused without a call of the system.
    return written ? QString() : newFileObstacle(errno != 0 ? errno : EISDIR, path);
}

/** Asks where to. The chosen kind gives the name its extension, before the panel asks about a file that has
   that name. */
void LibraryWindow::exportTable() {
    auto* const panel =
        new QFileDialog(this, localised("Export"), QString(), QStringLiteral("CSV (*.csv);;JSON (*.json)"));
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowModality(Qt::WindowModal);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->setDefaultSuffix(QStringLiteral("csv"));
    panel->selectFile(QStringLiteral("library.csv"));
    connect(panel, &QFileDialog::filterSelected, panel,
            [panel](const QString& kind) { giveKind(*panel, kind); });
    connect(panel, &QFileDialog::fileSelected, this, &LibraryWindow::exportAndTell);
    panel->open();
}

void LibraryWindow::exportAndTell(const QString& path) {
    if (const QString reason = exportTo(path); !reason.isEmpty()) {
        const QString what = localised("\"%@\" can't be written.", lastPathComponent(path));
        presentErrorSheet(
            {NSMachErrorDomain,
             0,
             {{NSLocalizedDescriptionKey, localised("The table could not be exported.")},
              {NSLocalizedRecoverySuggestionErrorKey, joinedSentences({what, asSentence(reason)})}}},
            this);
    }
}

void LibraryWindow::openSelected() {
    const QModelIndex current = view_->currentIndex();
    if (current.isValid()) {
        emit openRequested(model_.rows().at(model_.fileAt(current.row())).path());
    }
}

void LibraryWindow::showInFolder() {
    const QModelIndex current = view_->currentIndex();
    if (current.isValid()) {
        QDesktopServices::openUrl(fileUrlFromPath(model_.rows().at(model_.fileAt(current.row())).folder()));
    }
}

void LibraryWindow::copyPaths() {
    const QStringList paths = selectedPaths();
    if (!paths.isEmpty()) {
        QApplication::clipboard()->setText(paths.join(QLatin1Char('\n')));
    }
}

/** Edits go with their rows, and nothing brings them back. */
void LibraryWindow::removeSelected() {
    takeTyped();
    const std::vector<int> files = view_->selectedFiles();
    const QStringList paths = selectedPaths();
    const auto edited = std::count_if(files.begin(), files.end(),
                                      [this](int file) { return model_.rows().edits(file) != nullptr; });
    if (edited == 0) {
        removeFromList(paths);
        return;
    }
    question_ = std::make_unique<Alert>();
    question_->setMessageText(localised("Do you want to remove files with edits that are not applied?"));
    question_->setInformativeText(
        localised("The edits of %Ln file(s) will be lost.", static_cast<int>(edited)));
    question_->addButton(localised("Remove"), Qt::CTRL | Qt::Key_D);
    question_->addButton(localised("Cancel"), Qt::Key_Escape);
    question_->beginSheetModalForWindow(this, [this, paths](int answer) {
        if (answer == Alert::firstButtonReturn) {
            removeFromList(paths);
        }
    });
}

void LibraryWindow::removeFromList(const QStringList& paths) {
    if (!paths.isEmpty()) {
        emit removeRequested(paths);
    }
}

} // namespace velmora
