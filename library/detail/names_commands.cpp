#include "names_commands.h"

#include "names_dialog.h"

#include "platform/file_path.h"
#include "platform/localisation.h"

#include <unordered_set>

namespace velmora {

NamesCommands::NamesCommands(LibraryModel& model, LibraryView& view, QWidget* window)
    : QObject(window), model_(model), view_(view), window_(window) {}

void NamesCommands::addTo(QMenu& menu) {
    QAction* const tags =
        menu.addAction(localised("&Tags from Names…"), this, [this] { ask(NamePattern::Use::read); });
    tags->setObjectName(QStringLiteral("action_tagsFromNames"));
    tags->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T));
    tags->setStatusTip(localised("Take the tags of the selected files from their names, by a pattern"));
    QAction* const names =
        menu.addAction(localised("&Names from Tags…"), this, [this] { ask(NamePattern::Use::write); });
    names->setObjectName(QStringLiteral("action_namesFromTags"));
    names->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N));
    names->setStatusTip(localised("Give the selected files names made of their tags, by a pattern"));
}

std::vector<int> NamesCommands::files() const {
    const std::vector<int> selected = view_.selectedFiles();
    if (!selected.empty()) {
        return selected;
    }
    model_.finishFiltering();
    return model_.shownFiles();
}

std::vector<NamesSource> NamesCommands::sources(const std::vector<int>& files) const {
    std::vector<NamesSource> sources;
    sources.reserve(files.size());
    for (const int file : files) {
        sources.push_back(namesSource(file, model_.rows().at(file), model_.rows().edits(file)));
    }
    return sources;
}

/** The names that files besides FILES are to get. */
std::vector<FileRename> NamesCommands::otherNames(const std::vector<int>& files) const {
    const std::unordered_set<int> asked(files.begin(), files.end());
    std::vector<FileRename> others;
    for (const int file : model_.rows().editedRows()) {
        const std::optional<QString>& name = model_.rows().edits(file)->name;
        if (name && asked.count(file) == 0) {
            const LibraryRow& row = model_.rows().at(file);
            others.push_back({pathBytes(row.path()),
                              joinedPath(pathBytes(row.folder()), pathBytes(*name).toStdString()),
                              {}});
        }
    }
    return others;
}

void NamesCommands::ask(NamePattern::Use use) {
    QStringList& history = use == NamePattern::Use::read ? readHistory_ : writeHistory_;
    const std::vector<int> files = this->files();
    auto* const dialog = new NamesDialog(use, sources(files), otherNames(files), history, window_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, use, dialog] { take(use, *dialog); });
    dialog->open();
}

void NamesCommands::take(NamePattern::Use use, const NamesDialog& dialog) {
    const std::vector<portable::Field> fields = dialog.fields();
    std::vector<std::pair<int, RowEdits>> all;
    for (const NamesPreviewRow& preview : dialog.rows()) {
        const LibraryRow& row = model_.rows().at(preview.file);
        if (!preview.applies || row.removed) {
            continue;
        }
        const RowEdits* const before = model_.rows().edits(preview.file);
        RowEdits edits = before ? *before : RowEdits();
        all.emplace_back(preview.file, use == NamePattern::Use::read
                                           ? withTags(std::move(edits), row, fields, preview)
                                           : withName(std::move(edits), row, preview));
    }
    model_.setEdits(all);
}

} // namespace velmora
