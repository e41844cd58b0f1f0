// The library table's edits written into their files, and taken back.

#include "library_window.h"

#include "detail/edit_panel.h"

#include "platform/localisation.h"

namespace velmora {

namespace {

bool isDone(const ApplyResult& result) {
    return result.end == ApplyEnd::done || result.end == ApplyEnd::unchanged;
}

QStringList pathsOf(const std::vector<ApplyItem>& items) {
    QStringList paths;
    for (const ApplyItem& item : items) {
        paths += item.path;
    }
    return paths;
}

QStringList pathsOf(const UndoStep& step) {
    QStringList paths;
    for (const UndoEntry& entry : step) {
        paths += entry.newPath;
    }
    return paths;
}

} // namespace

bool LibraryWindow::mayWrite(const QStringList& paths) const {
    return !mayWrite_ || mayWrite_(paths);
}

std::vector<ApplyItem> LibraryWindow::items() const {
    std::vector<ApplyItem> items;
    for (const int file : model_.rows().editedRows()) {
        items.push_back({file, model_.rows().at(file).path(), *model_.rows().edits(file)});
    }
    return items;
}

void LibraryWindow::apply() {
    takeTyped();
    if (isWriting() || !hasEdits() || !mayWrite(pathsOf(items()))) {
        return;
    }
    // There Ctrl+Z takes back what is applied; in a field it would take back what was typed.
    panel_->forgetTyping();
    view_->setFocus();
    showDialog(localised("Apply"));
    connect(dialog_.get(), &ApplyDialog::ended, this, &LibraryWindow::applyEnded);
    // Meanwhile one of the files may have been opened and edited elsewhere.
    connect(dialog_.get(), &ApplyDialog::tryAgain, this, [this] {
        if (mayWrite(pathsOf(items()))) {
            runApply();
        }
    });
    runApply();
}

void LibraryWindow::showDialog(const QString& title) {
    dialog_ = std::make_unique<ApplyDialog>(title, this);
}

void LibraryWindow::runApply() {
    running_.clear();
    dialog_->start([this, all = items()](const ApplyProgress& progress) {
        return applyItems(all, progress, running_, kept_);
    });
}

void LibraryWindow::applyEnded(const std::vector<ApplyResult>& results) {
    if (!running_.empty()) {
        undo_.push_back(std::move(running_));
    }
    // What was done is no edit any more; of a file that kept its name, the name still is one.
    std::vector<std::pair<int, RowEdits>> edits;
    for (const ApplyResult& result : results) {
        const RowEdits* const before = model_.rows().edits(result.file);
        if (before && (isDone(result) || result.tagsDone)) {
            RowEdits rest;
            rest.name = isDone(result) ? std::nullopt : before->name;
            edits.emplace_back(result.file, std::move(rest));
        }
    }
    model_.setEdits(edits);
    takeResults(results);
}

void LibraryWindow::undoApply() {
    takeTyped();
    if (isWriting() || undo_.empty() || !mayWrite(pathsOf(undo_.back()))) {
        return;
    }
    showDialog(localised("Undo Apply"));
    connect(dialog_.get(), &ApplyDialog::ended, this, &LibraryWindow::undoEnded);
    connect(dialog_.get(), &ApplyDialog::tryAgain, this, [this] {
        if (mayWrite(pathsOf(undo_.back()))) {
            runUndo();
        }
    });
    runUndo();
}

void LibraryWindow::runUndo() {
    running_ = std::move(undo_.back());
    undo_.pop_back();
    dialog_->start([this](const ApplyProgress& progress) { return undoStep(running_, progress, kept_); });
}

/** What could not be taken back can be tried again; what was changed since never will be. */
void LibraryWindow::undoEnded(const std::vector<ApplyResult>& results) {
    followUndo(undo_, results);
    UndoStep rest;
    for (UndoEntry& entry : running_) {
        const bool changedSince = std::any_of(results.begin(), results.end(), [&](const ApplyResult& result) {
            return result.file == entry.file && result.end == ApplyEnd::changedSince;
        });
        if (!changedSince) {
            rest.push_back(std::move(entry));
        }
    }
    running_.clear();
    if (!rest.empty()) {
        undo_.push_back(std::move(rest));
    }
    forgetUnneeded(undo_, kept_);
    takeResults(results);
}

void LibraryWindow::takeResults(const std::vector<ApplyResult>& results) {
    QList<WrittenFile> written;
    for (const ApplyResult& result : results) {
        if (!result.written || model_.rows().at(result.file).removed) {
            continue;
        }
        written += {result.path, result.newPath};
        if (result.renamed) {
            model_.moveFile(result.file, result.newPath);
        } else {
            model_.readAgain(result.file);
        }
    }
    updateCommands();
    if (!written.isEmpty()) {
        emit filesWritten(written);
    }
}

void LibraryWindow::cancelWriting() {
    if (isWriting()) {
        dialog_->cancel();
    }
}

} // namespace velmora
