#pragma once

#include <QByteArray>

#include <span>
#include <string_view>

namespace velmora {

/** Extensions, in ascending order of plain code-point comparison. */
using ExtensionList = std::span<const std::string_view>;

/** The extensions of the files that a search lists. Case matters: "mov" is among them, "MOV" is not. */
[[nodiscard]] ExtensionList supportedMedia();
/** The extensions of the folders that a search does not enter: bundles, which only look like folders. */
[[nodiscard]] ExtensionList dirExtBlacklist();

/** Whether CANDIDATE is in LIST, found by halving. On a list that is not in order the answer
   means nothing. */
[[nodiscard]] bool NSArray_binary_search_string(ExtensionList list, std::string_view candidate);

/** Whom a walk tells of what it meets, on the thread that walks. Paths are bytes as the file
   system has them. */
class FolderWalkListener {
public:
    virtual ~FolderWalkListener() = default;

    /** Asked before each entry; after a no the walk ends as soon as it has unwound. */
    [[nodiscard]] virtual bool searchRunning() const = 0;
    /** The walk has listed FOLDER and will now look at its entries. */
    virtual void enteringFolder(const QByteArray& folder) = 0;
    virtual void foundFile(const QByteArray& path) = 0;
    /** FOLDER is there and could not be listed. It is told as entered, too. */
    virtual void unreadableFolder(const QByteArray& folder) { static_cast<void>(folder); }
};

/** Walks FOLDER depth first and tells LISTENER of each file that is larger than 100 KiB and has a supported
   extension.

   A folder's entries are taken once, when it is entered, in the order of the file system. Symbolic links are
   followed, to folders too: a link to a folder above is walked again until the search is stopped or the
   system refuses the path as too long or too winding. Hidden entries are entries like all others. What can't
   be listed or asked for its attributes is passed over; an unlistable folder is still told as entered. */
void searchFolder(const QByteArray& folder, FolderWalkListener& listener);

} // namespace velmora
