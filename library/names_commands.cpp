#include "names_commands.h"

#include "names_dialog.h"

#include "platform/localisation.h"

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

std::vector<NamesSource> NamesCommands::sources() const {
    std::vector<int> files = view_.selectedFiles();
    if (files.empty()) {
        files = model_.shownFiles();
    }
    std::vector<NamesSource> sources;
    sources.reserve(files.size());
    for (const int file : files) {
        sources.push_back(namesSource(file, model_.rows().at(file), model_.rows().edits(file)));
    }
    return sources;
}

void NamesCommands::ask(NamePattern::Use use) {
    QStringList& history = use == NamePattern::Use::read ? readHistory_ : writeHistory_;
    auto* const dialog = new NamesDialog(use, sources(), history, window_);
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
