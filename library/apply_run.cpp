#include "apply_run.h"

#include "model/portable_reason.h"
#include "platform/file_path.h"
#include "platform/localisation.h"

#include <algorithm>
#include <cerrno>
#include <unordered_map>

namespace velmora {

namespace {

using portable::KeptBytes;
using portable::Reason;
using portable::ReasonCode;
using portable::SaveOutcome;
using portable::SaveResult;

std::string bytesOf(const QString& path) {
    return pathBytes(path).toStdString();
}

QString pathBeside(const QString& path, const QString& name) {
    return pathFromBytes(joinedPath(pathBytes(pathFolder(path)), pathBytes(name).toStdString()));
}

TagMark markOf(const QString& path) {
    return portable::file_mark(bytesOf(path));
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

void applyTags(const ApplyItem& item, Run& run, ApplyResult& result, UndoEntry& entry, KeptBytes& kept) {
    portable::SaveOptions options = run.saveOptions();
    options.kept = &kept;
    const SaveOutcome outcome = portable::save_tags(bytesOf(item.path), item.edits.tagEdits(), options);
    take(result, outcome);
    entry.wayBack = outcome.way_back;
    entry.before = outcome.before;
    entry.after = outcome.after;
}

/** Puts the outcome of a rename beside that of the tags. */
void takeRename(ApplyResult& result, const QString& newPath, const std::optional<Reason>& failure) {
    if (failure) {
        fail(result, *failure);
        if (failure->code == ReasonCode::system && failure->error == EEXIST) {
            result.reason = localised("There is a file of that name");
        }
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

std::vector<ApplyResult> applyItems(const std::vector<ApplyItem>& items, const ApplyProgress& progress,
                                    UndoStep& undo, KeptBytes& kept) {
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
        if (item.edits.changesTags()) {
            applyTags(item, run, results[i], entries[i], kept);
        } else {
            results[i].end = ApplyEnd::unchanged;
            results[i].tagsDone = true;
        }
        run.fileDone();
    }
    applyNames(items, run, results);
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (results[i].written) {
            UndoEntry& entry = entries[i];
            entry.newPath = results[i].newPath;
            entry.after = entry.wayBack ? entry.after : markOf(entry.newPath);
            undo.push_back(std::move(entry));
        }
    }
    return results;
}

namespace {

void undoTags(const UndoEntry& entry, Run& run, ApplyResult& result, const KeptBytes& kept) {
    if (markOf(entry.newPath) != entry.after) {
        result.end = ApplyEnd::changedSince;
        return;
    }
    if (!entry.wayBack) {
        result.end = ApplyEnd::unchanged;
        return;
    }
    const SaveOutcome outcome =
        portable::put_back(bytesOf(entry.newPath), *entry.wayBack, entry.after, kept, run.saveOptions());
    take(result, outcome);
    if (result.written) {
        result.takenBack = {entry.before, outcome.after};
    }
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
    if (result.takenBack) {
        entry.wayBack.reset();
        entry.after = result.takenBack->second;
    }
    return true;
}

} // namespace

std::vector<ApplyResult> undoStep(UndoStep& step, const ApplyProgress& progress, const KeptBytes& kept) {
    Run run(step.size(), progress);
    std::vector<ApplyResult> results(step.size());
    for (std::size_t i = 0; i < step.size(); ++i) {
        results[i].file = step[i].file;
        results[i].path = results[i].newPath = step[i].newPath;
        if (!run.goesOn()) {
            continue;
        }
        undoTags(step[i], run, results[i], kept);
        run.fileDone();
    }
    undoNames(step, run, results);
    UndoStep rest;
    for (std::size_t i = 0; i < step.size(); ++i) {
        if (remains(step[i], results[i])) {
            rest.push_back(std::move(step[i]));
        }
    }
    step = std::move(rest);
    return results;
}

void followUndo(std::vector<UndoStep>& steps, const std::vector<ApplyResult>& results) {
    std::unordered_map<int, std::pair<TagMark, TagMark>> takenBack;
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

void forgetUnneeded(const std::vector<UndoStep>& steps, KeptBytes& kept) {
    std::uint64_t end = 0;
    for (const UndoStep& step : steps) {
        for (const UndoEntry& entry : step) {
            end = std::max(end, entry.wayBack ? entry.wayBack->end : 0);
        }
    }
    kept.shrink_to(end);
}

} // namespace velmora
