#pragma once

#include <QStringList>

namespace velmora {

/** What a search came to. */
struct SearchSummary {
    QStringList folders;   ///< all that were searched since the start, as they were added
    int filesFound = 0;    ///< in this search
    int unreadFolders = 0; ///< in this search: folders that are there and could not be listed
};

} // namespace velmora
