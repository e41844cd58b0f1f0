#pragma once

#include "file_transfer.h"
#include "new_file.h"
#include "progress.h"
#include "tagged_file.h"

#include "portable/portable_tags.h"

#include <optional>
#include <string>
#include <sys/stat.h>

namespace velmora::portable {

/** A file that is replaced by a new one, whole or not at all (docs/portable-tags.md, "How a file is
   replaced"): until take_place() has renamed the new file it is untouched, and after that it is the new one.
   All members throw a Refusal where something fails. */
class Replacement {
public:
    /** Opens the file that PATH leads to, links in it resolved. Refuses what is no regular file, what its
       mode or the system protects against writing, and, unless BREAK_LINKS, what has further hard links. With
       MAY_BE_MISSING a file that is not there counts as an empty one. */
    Replacement(const std::string& path, bool break_links, bool may_be_missing);

    /** The old file, open for reading, and its bytes. */
    [[nodiscard]] FIOFUNCSTRUCT* original() { return original_.handle(); }
    [[nodiscard]] std::uint64_t size() const { return static_cast<std::uint64_t>(status_.st_size); }
    /** False: there is none. */
    [[nodiscard]] bool exists() const { return exists_; }

    /** Makes the new file as REWRITE says, with the attributes of the old one, on the disk. */
    void fill(const Rewrite& rewrite, Progress& progress);
    /** Makes the new file of PARTS, one behind the other, in the same way. */
    void fill(const std::vector<FileRange>& parts, Progress& progress);
    /** The new file, open for reading and writing, and its bytes; once it is filled. */
    [[nodiscard]] FIOFUNCSTRUCT* replacement() { return new_file_->handle(); }
    [[nodiscard]] std::uint64_t replacement_size() const {
        return static_cast<std::uint64_t>(new_status_.st_size);
    }

    /** Of the old file, and of the new one once it is filled; nothing where there is none. */
    [[nodiscard]] std::optional<FileMark> original_mark() const;
    [[nodiscard]] std::optional<FileMark> replacement_mark() const;

    /** Puts the new file in the place of the old one, when that is still what was opened. Returns a warning
       where it is done, and yet not known to be on the disk. */
    [[nodiscard]] std::optional<Reason> take_place();

    /** Removes the file instead, when it is still what was opened. Returns a warning as take_place() does. */
    [[nodiscard]] std::optional<Reason> remove();

private:
    FIOFUNCSTRUCT* open_new_file();
    void complete_new_file();
    [[nodiscard]] std::optional<Reason> sync_folder();
    void open_folder(const std::string& path);
    void open_original(bool break_links, bool may_be_missing);
    void check_unchanged();

    ByteFile folder_;
    std::string name_; ///< in the folder
    ByteFile original_;
    struct stat status_ {}; ///< of the original, when it was opened
    bool exists_ = true;
    std::optional<NewFile> new_file_;
    struct stat new_status_ {}; ///< of the new file, when it was filled
};

/** What tells the contents of the file of that STATUS from other ones. */
[[nodiscard]] FileMark mark_of(const struct stat& status);

} // namespace velmora::portable
