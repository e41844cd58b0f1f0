#pragma once

#include "library_row.h"
#include "rename_files.h"

#include "portable/portable_tags.h"

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

/** The file that holds a file's tags; nothing where there is none. */
using TagMark = std::optional<portable::FileMark>;

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
    /** Of an undo that put the old bytes back: the file that had them before the apply, and the one that has
       them now. */
    std::optional<std::pair<TagMark, TagMark>> takenBack;
};

/** How a file was before an apply changed it. */
struct UndoEntry {
    int file = 0;
    QString path;                             ///< where it was
    QString newPath;                          ///< where it was put
    std::optional<portable::WayBack> wayBack; ///< to the old bytes; nothing: they are those that it has
    TagMark before;                           ///< only where there is a way back
    TagMark after;
};

/** All that an apply changed. */
using UndoStep = std::vector<UndoEntry>;

/** RESULTS of an undo brought files back to what they were when the apply before it had ended: what STEPS,
   the applies that are left, know of these files is what they are now. */
void followUndo(std::vector<UndoStep>& steps, const std::vector<ApplyResult>& results);

/** Called before each file and now and then while one is written; false cancels. */
using ApplyProgress = std::function<bool(std::size_t done, std::size_t total)>;

/** Writes the edits of ITEMS into their files, one after the other, each of which is old or new at any time;
   then gives them their new names, which never overwrite. UNDO gets what takes it back, KEPT the bytes that
   the files had. One result for each item. For any thread. */
[[nodiscard]] std::vector<ApplyResult> applyItems(const std::vector<ApplyItem>& items,
                                                  const ApplyProgress& progress, UndoStep& undo,
                                                  portable::KeptBytes& kept);

/** Takes STEP back, an apply that KEPT has the old bytes of: each file gets every byte back that it had, then
   its name. A file that was changed since is left alone, and told. What was taken back is no longer in STEP.
   For any thread. */
[[nodiscard]] std::vector<ApplyResult> undoStep(UndoStep& step, const ApplyProgress& progress,
                                                const portable::KeptBytes& kept);

/** Gives up what of KEPT none of STEPS needs. */
void forgetUnneeded(const std::vector<UndoStep>& steps, portable::KeptBytes& kept);

} // namespace velmora
