#pragma once

#include "cover_store.h"
#include "library_row.h"
#include "rename_files.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace velmora {

/** What is to become of a file: the edits of its row. */
struct ApplyItem {
    int file = 0;
    QString path;
    RowEdits edits;
};

enum class ApplyEnd {
    done,
    unchanged,
    failed,
    notReached,   ///< cancelled before its turn
    changedSince, ///< of an undo: another program, or a later edit, changed the file, which was left alone
};

/** What the file system says of a file, to find out whether it was changed since. */
struct FileMark {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t modifiedSeconds = 0;
    std::int64_t modifiedNanoseconds = 0;

    bool operator==(const FileMark&) const = default;
};
/** Nothing where there is no file at PATH. */
[[nodiscard]] std::optional<FileMark> fileMark(const QString& path);

/** How it went with a file. */
struct ApplyResult {
    int file = 0;
    QString path;    ///< where the file was
    QString newPath; ///< where it is now
    ApplyEnd end = ApplyEnd::notReached;
    QString reason;       ///< why it failed, in the user's language; without a full stop
    bool written = false; ///< whether its tags or its name were changed, also where the rest failed
    bool renamed = false;
    bool tagsDone = false; ///< the tags say what they were to say
    /** Of an undo that went well: what the file system said of the file before the
       apply, and says of it now. */
    std::optional<std::pair<FileMark, FileMark>> takenBack;
};

/** How a file was before an apply changed it. */
struct UndoEntry {
    int file = 0;
    QString path;            ///< where it was
    QString newPath;         ///< where it was put
    portable::TagEdits back; ///< makes the tags say what they said, but for the cover
    bool coverChanged = false;
    std::optional<CoverStore::Number> cover; ///< what the cover was; nothing: there was none
    FileMark before;
    FileMark after;
};

/** All that an apply changed. */
using UndoStep = std::vector<UndoEntry>;

/** RESULTS of an undo brought files back to what they were when the apply before it had ended: what STEPS,
   the applies that are left, know of these files is what they are now. */
void followUndo(std::vector<UndoStep>& steps, const std::vector<ApplyResult>& results);

/** Called before each file and now and then while one is written; false cancels. */
using ApplyProgress = std::function<bool(std::size_t done, std::size_t total)>;

/** Writes the edits of ITEMS into their files, one after the other, each of which is old or new at any time;
   then gives them their new names, which never overwrite. UNDO gets what takes it back, COVERS the covers
   that were there. One result for each item. For any thread. */
[[nodiscard]] std::vector<ApplyResult> applyItems(const std::vector<ApplyItem>& items,
                                                  const ApplyProgress& progress, UndoStep& undo,
                                                  CoverStore& covers);

/** Takes STEP back: names, then values. A file that was changed since is left alone, and told. What was taken
   back is no longer in STEP. For any thread. */
[[nodiscard]] std::vector<ApplyResult> undoStep(UndoStep& step, const ApplyProgress& progress,
                                                CoverStore& covers);

} // namespace velmora
