#pragma once

#include "portable/reason.h"

#include <QByteArray>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace velmora {

/** Which file a name stands for, whatever its name. */
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;

    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/** The file at PATH; of a link the link. Nothing where there is none. */
[[nodiscard]] std::optional<FileIdentity> identityOf(const QByteArray& path);

/** A file that is to have another name in the same folder. Both are absolute paths. */
struct FileRename {
    QByteArray from;
    QByteArray to;
    /** Where it is set, another file under that name is left alone. */
    std::optional<FileIdentity> identity;
};

/** Called before each file with the number of those done and of all; false cancels. */
using RenameProgress = std::function<bool(std::size_t done, std::size_t total)>;

/** Gives files their new names, which no two share. No file is ever overwritten: where a name turns out to be
   taken, the file keeps its own. Names that files of RENAMES leave may be taken by others of them, also in a
   circle. Each file has its old name or its new one at any time, even if the program is killed; the
   exceptions are circles of three and more, whose files may stand under each other's names meanwhile, and
   circles in file systems that can't exchange two names, where one of the files has a name with ".renaming"
   in it meanwhile. May run on any thread. Returns for each of RENAMES why it was not done; nothing where it
   was. */
[[nodiscard]] std::vector<std::optional<portable::Reason>> renameFiles(const std::vector<FileRename>& renames,
                                                                       const RenameProgress& progress = {});

} // namespace velmora
