#include "apply_run.h"

#include "model/portable_reason.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "portable/portable_tags.h"

#include <algorithm>
#include <sys/stat.h>
#include <unordered_map>

namespace velmora {

namespace {

using portable::Edit;
using portable::Field;
using portable::Reason;
using portable::ReasonCode;
using portable::SaveOutcome;
using portable::SaveResult;
using portable::TagEdits;
using portable::TagValues;

std::string bytesOf(const QString& path) {
    return pathBytes(path).toStdString();
}

QString pathBeside(const QString& path, const QString& name) {
    return pathFromBytes(joinedPath(pathBytes(pathFolder(path)), pathBytes(name).toStdString()));
}

template <typename Value>
Edit<Value> backTo(const std::optional<Value>& old) {
    return old ? Edit<Value>::set(*old) : Edit<Value>::remove();
}

/** What makes the fields that EDITS change say what they said in OLD, but for the cover. */
TagEdits editsBack(const RowEdits& edits, const TagValues& old) {
    TagEdits back;
    for (std::size_t i = 0; i < back.texts.size(); ++i) {
        if (!edits.texts[i].leaves_alone()) {
            back.texts[i] = backTo(old.texts[i]);
        }
    }
    if (!edits.year.leaves_alone()) {
        back.year = backTo(old.year);
    }
    return back;
}

/** One run over many files, whatever is done with each. */
class Run {
public:
    Run(std::size_t total, const ApplyProgress& progress) : total_(total), progress_(progress) {}

    /** Before the next file. */
    [[nodiscard]] bool goesOn() { return goesOn_ = goesOn_ && (!progress_ || progress_(done_, total_)); }
    void fileDone() { ++done_; }
    [[nodiscard]] portable::SaveOptions saveOptions() {
        portable::SaveOptions options;
        options.progress = [this](std::uint64_t, std::uint64_t) { return goesOn(); };
        return options;
    }

private:
    std::size_t total_;
    const ApplyProgress& progress_;
    std::size_t done_ = 0;
    bool goesOn_ = true;
};

void fail(ApplyResult& result, const Reason& reason) {
    result.end = reason.code == ReasonCode::cancelled ? ApplyEnd::notReached : ApplyEnd::failed;
    result.reason = result.end == ApplyEnd::failed ? localisedReason(reason) : QString();
}

void take(ApplyResult& result, const SaveOutcome& outcome) {
    if (outcome.result == SaveResult::failed) {
        fail(result, outcome.failure.value_or(Reason()));
        return;
    }
    result.tagsDone = true;
    result.written = outcome.result == SaveResult::saved;
    result.end = result.written ? ApplyEnd::done : ApplyEnd::unchanged;
}

/** Keeps what the file's cover was. False where it can't be kept, and so the file must not be changed. */
bool keepCover(UndoEntry& entry, const RowEdits& edits, const TagValues& old, CoverStore& covers) {
    entry.coverChanged = !edits.cover.leaves_alone();
    if (entry.coverChanged && old.cover) {
        entry.cover = covers.put(*old.cover);
        return entry.cover.has_value();
    }
    return true;
}

void applyTags(const ApplyItem& item, Run& run, ApplyResult& result, UndoEntry& entry, CoverStore& covers) {
    const portable::ReadOutcome old = portable::read_tags(bytesOf(item.path));
    if (old.failure) {
        fail(result, *old.failure);
        return;
    }
    if (!keepCover(entry, item.edits, old.values, covers)) {
        result.end = ApplyEnd::failed;
        result.reason = localised("There is no room to keep the old cover for an undo");
        return;
    }
    entry.back = editsBack(item.edits, old.values);
    take(result, portable::save_tags(bytesOf(item.path), item.edits.tagEdits(), run.saveOptions()));
}

/** Puts the outcome of a rename beside that of the tags. */
void takeRename(ApplyResult& result, const QString& newPath, const std::optional<Reason>& failure) {
    if (failure) {
        fail(result, *failure);
        return;
    }
    result.newPath = newPath;
    result.renamed = true;
    result.written = true;
    result.end = ApplyEnd::done;
}

/** Renames those of ITEMS whose tags went well. */
void applyNames(const std::vector<ApplyItem>& items, Run& run, std::vector<ApplyResult>& results) {
    std::vector<FileRename> renames;
    std::vector<std::size_t> which;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool goesOn = results[i].end == ApplyEnd::done || results[i].end == ApplyEnd::unchanged;
        if (items[i].edits.name && goesOn) {
            const QByteArray from = pathBytes(items[i].path);
            renames.push_back(
                {from, pathBytes(pathBeside(items[i].path, *items[i].edits.name)), identityOf(from)});
            which.push_back(i);
        }
    }
    const auto failures = renameFiles(renames, [&run](std::size_t, std::size_t) { return run.goesOn(); });
    for (std::size_t i = 0; i < which.size(); ++i) {
        takeRename(results[which[i]], pathFromBytes(renames[i].to), failures[i]);
    }
}

} // namespace

std::optional<FileMark> fileMark(const QString& path) {
    struct stat status = {};
    if (lstat(pathBytes(path).constData(), &status) != 0) {
        return std::nullopt;
    }
    return FileMark{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
                    status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

std::vector<ApplyResult> applyItems(const std::vector<ApplyItem>& items, const ApplyProgress& progress,
                                    UndoStep& undo, CoverStore& covers) {
    Run run(items.size(), progress);
    std::vector<ApplyResult> results(items.size());
    std::vector<UndoEntry> entries(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const ApplyItem& item = items[i];
        results[i].file = entries[i].file = item.file;
        results[i].path = results[i].newPath = entries[i].path = item.path;
        if (!run.goesOn()) {
            continue;
        }
        entries[i].before = fileMark(item.path).value_or(FileMark());
        if (item.edits.changesTags()) {
            applyTags(item, run, results[i], entries[i], covers);
        } else {
            results[i].end = ApplyEnd::unchanged;
            results[i].tagsDone = true;
        }
        run.fileDone();
    }
    applyNames(items, run, results);
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto mark = results[i].written ? fileMark(results[i].newPath) : std::nullopt;
        if (mark) {
            entries[i].newPath = results[i].newPath;
            entries[i].after = *mark;
            undo.push_back(std::move(entries[i]));
        }
    }
    return results;
}

namespace {

bool isUnchanged(const UndoEntry& entry) {
    const std::optional<FileMark> mark = fileMark(entry.newPath);
    return mark && *mark == entry.after;
}

void undoTags(const UndoEntry& entry, Run& run, ApplyResult& result, CoverStore& covers) {
    TagEdits edits = entry.back;
    if (entry.coverChanged) {
        const auto cover = entry.cover ? covers.get(*entry.cover) : std::nullopt;
        if (entry.cover && !cover) {
            result.end = ApplyEnd::failed;
            result.reason = localised("The old cover can't be read any more");
            return;
        }
        edits.cover = backTo(cover);
    }
    if (edits.empty()) {
        result.end = ApplyEnd::unchanged;
        return;
    }
    take(result, portable::save_tags(bytesOf(result.newPath), edits, run.saveOptions()));
}

/** Files get their names back; results of those that don't say why. */
void undoNames(const UndoStep& step, Run& run, std::vector<ApplyResult>& results) {
    std::vector<FileRename> renames;
    std::vector<std::size_t> which;
    for (std::size_t i = 0; i < step.size(); ++i) {
        const bool goesOn = results[i].end == ApplyEnd::done || results[i].end == ApplyEnd::unchanged;
        if (goesOn && step[i].path != step[i].newPath) {
            const QByteArray from = pathBytes(step[i].newPath);
            renames.push_back({from, pathBytes(step[i].path), identityOf(from)});
            which.push_back(i);
        }
    }
    const auto failures = renameFiles(renames, [&run](std::size_t, std::size_t) { return run.goesOn(); });
    for (std::size_t i = 0; i < which.size(); ++i) {
        takeRename(results[which[i]], step[which[i]].path, failures[i]);
    }
}

/** What of ENTRY is still to be taken back after RESULT; false for nothing. */
bool remains(UndoEntry& entry, const ApplyResult& result) {
    if (result.end == ApplyEnd::done || result.end == ApplyEnd::unchanged) {
        return false;
    }
    if (result.tagsDone) {
        entry.back = {};
        entry.coverChanged = false;
        entry.after = fileMark(entry.newPath).value_or(FileMark());
    }
    return true;
}

} // namespace

std::vector<ApplyResult> undoStep(UndoStep& step, const ApplyProgress& progress, CoverStore& covers) {
    Run run(step.size(), progress);
    std::vector<ApplyResult> results(step.size());
    for (std::size_t i = 0; i < step.size(); ++i) {
        results[i].file = step[i].file;
        results[i].path = results[i].newPath = step[i].newPath;
        if (!run.goesOn()) {
            continue;
        }
        if (isUnchanged(step[i])) {
            undoTags(step[i], run, results[i], covers);
        } else {
            results[i].end = ApplyEnd::changedSince;
        }
        run.fileDone();
    }
    undoNames(step, run, results);
    UndoStep rest;
    for (std::size_t i = 0; i < step.size(); ++i) {
        if (remains(step[i], results[i])) {
            rest.push_back(std::move(step[i]));
        } else if (const std::optional<FileMark> now = fileMark(results[i].newPath)) {
            results[i].takenBack = {step[i].before, *now};
        }
    }
    step = std::move(rest);
    return results;
}

void followUndo(std::vector<UndoStep>& steps, const std::vector<ApplyResult>& results) {
    std::unordered_map<int, std::pair<FileMark, FileMark>> takenBack;
    for (const ApplyResult& result : results) {
        if (result.takenBack) {
            takenBack.emplace(result.file, *result.takenBack);
        }
    }
    for (UndoStep& step : steps) {
        for (UndoEntry& entry : step) {
            const auto marks = takenBack.find(entry.file);
            if (marks != takenBack.end() && entry.after == marks->second.first) {
                entry.after = marks->second.second;
            }
        }
    }
}

} // namespace velmora
