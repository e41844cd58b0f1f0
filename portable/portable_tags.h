#pragma once

#include "kept_bytes.h"
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

/** What the file system says of a file, which tells its contents from other and later ones, whatever its
   name. */
struct FileMark {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t modified_seconds = 0;
    std::int64_t modified_nanoseconds = 0;

    friend bool operator==(const FileMark&, const FileMark&) = default;
};

/** Of the file that holds the tags of the one at PATH, links in it resolved: for most kinds that one itself,
   for others its side file. Nothing where there is none. */
[[nodiscard]] std::optional<FileMark> file_mark(const std::string& path);

/** How a saved file becomes again what it was, byte for byte: of which parts of itself, and of which of the
   KeptBytes that the save was given. Good as long as these keep the latter. */
struct WayBack {
    std::uint64_t begin = 0; ///< of what is kept for it, the list of the parts included
    std::uint64_t end = 0;
    std::size_t parts = 0;
    bool existed = true; ///< false: there was no side file
};

struct SaveOptions {
    /** Replaces a file with further hard links, which keep the old contents. */
    bool break_links = false;
    /** Finds out whether the file would change, or why it can't be saved, and leaves it alone. */
    bool dry_run = false;
    /** Called now and then with the bytes done and those to do; false cancels. May be empty. */
    std::function<bool(std::uint64_t done, std::uint64_t total)> progress;
    /** Where the bytes go that the save takes out of the file, so that put_back() can undo it. A file whose
       bytes can't be kept is not changed. Nothing: they are gone with the save. */
    KeptBytes* kept = nullptr;
};

enum class SaveResult { saved, unchanged, failed };

struct SaveOutcome {
    SaveResult result = SaveResult::failed;
    std::optional<Reason> failure; ///< why it failed; the file is what it was
    std::optional<Reason> warning; ///< it was saved, and yet
    bool others_read_it = true;    ///< false: saved as a tag that other programs don't read

    /* Where the file was saved: */
    std::optional<FileMark> before;  ///< the file that was there; nothing: a side file that was not there
    std::optional<FileMark> after;   ///< the file that is there now; nothing: a side file that was removed
    std::optional<WayBack> way_back; ///< where bytes are kept
};

/** Writes EDITS into the tags of the file at PATH. */
[[nodiscard]] SaveOutcome save_tags(const std::string& path, const TagEdits& edits,
                                    const SaveOptions& options = {});

/** Removes every tag of the file at PATH whole, what is not a field included. */
[[nodiscard]] SaveOutcome remove_tags(const std::string& path, const SaveOptions& options = {});

/** Makes the file at PATH again what it was before the save that gave WAY_BACK and MADE, what it says under
   `after`, or, where that save was put back in once more since, what put_back() said. KEPT are the bytes
   that the save kept. The file is replaced as by a save, and keeps the attributes that it has by now. A file
   that is not the one of MADE is left alone, and the reason is `changed_meanwhile`. Nothing is kept of what
   the file was in between. */
[[nodiscard]] SaveOutcome put_back(const std::string& path, const WayBack& way_back,
                                   const std::optional<FileMark>& made, const KeptBytes& kept,
                                   const SaveOptions& options = {});

} // namespace velmora::portable
