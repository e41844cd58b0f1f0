#pragma once

#include "media_kind.h"
#include "reason.h"
#include "tag_values.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/** The tags that other programs read and write. A file is replaced whole, in one step, or not at all.

   Nothing here throws. May run on any thread; one file is never worked on by two. Paths are in the
   file system's encoding. */
namespace velmora::portable {

struct ReadOutcome {
    std::optional<Reason> failure; ///< the rest is empty where this is set, but for the kind
    std::optional<MediaKind> kind; ///< nothing: not known
    std::vector<std::string>
        tags; ///< the tags that are there, such as "ID3v2.3", "ID3v1", "MP4", "RIFF INFO"
    TagValues values;
};

/** What the tags of the file at PATH say. */
[[nodiscard]] ReadOutcome read_tags(const std::string& path);

struct SaveOptions {
    /** Replaces a file with further hard links, which keep the old contents. */
    bool break_links = false;
    /** Finds out whether the file would change, or why it can't be saved, and leaves it alone. */
    bool dry_run = false;
    /** Called now and then with the bytes done and those to do; false cancels. May be empty. */
    std::function<bool(std::uint64_t done, std::uint64_t total)> progress;
};

enum class SaveResult { saved, unchanged, failed };

struct SaveOutcome {
    SaveResult result = SaveResult::failed;
    std::optional<Reason> failure; ///< why it failed; the file is what it was
    std::optional<Reason> warning; ///< it was saved, and yet
    bool others_read_it = true;    ///< false: saved as a tag that other programs don't read
};

/** Writes EDITS into the tags of the file at PATH. */
[[nodiscard]] SaveOutcome save_tags(const std::string& path, const TagEdits& edits,
                                    const SaveOptions& options = {});

/** Removes every tag of the file at PATH whole, what is not a field included. */
[[nodiscard]] SaveOutcome remove_tags(const std::string& path, const SaveOptions& options = {});

} // namespace velmora::portable
