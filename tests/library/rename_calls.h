#pragma once

#include <cstddef>

namespace velmora::test {

/** What the file system refuses of the calls that rename, and when the process is killed in one. Programs
   that link rename_calls.cpp with --wrap lead them through here. */
struct RenameCalls {
    bool noReplaceIsUnknown = false; ///< as in network file systems
    bool exchangeIsUnknown = false;
    bool linksAreRefused = false; ///< as in file systems of memory cards
    std::size_t killInCall = 0;   ///< the process ends in the place of that call; 1 is the first
    std::size_t failingCall = 0;  ///< that call fails as a full or broken disk does
    std::size_t callsMade = 0;    ///< those that change names
};

/** Of the whole process. */
extern RenameCalls renameCalls;

} // namespace velmora::test
