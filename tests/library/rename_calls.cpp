#include "rename_calls.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace velmora::test {

RenameCalls renameCalls;

namespace {

/** Whether the next call is made; errno says why not. */
bool comes() {
    const std::size_t call = ++renameCalls.callsMade;
    if (call == renameCalls.killInCall) {
        ::_exit(0);
    }
    errno = EIO;
    return call != renameCalls.failingCall;
}

bool isRefused(bool refused, int error) {
    errno = error;
    return refused;
}

} // namespace

} // namespace velmora::test

using velmora::test::comes;
using velmora::test::isRefused;
using velmora::test::renameCalls;

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" int __real_renameat2(int fromFolder, const char* from, int toFolder, const char* to,
                                unsigned flags);
extern "C" int __wrap_renameat2(int fromFolder, const char* from, int toFolder, const char* to,
                                unsigned flags) {
    const bool unknown =
        (flags & RENAME_NOREPLACE) != 0 ? renameCalls.noReplaceIsUnknown : renameCalls.exchangeIsUnknown;
    return isRefused(unknown, EINVAL) || !comes() ? -1
                                                  : __real_renameat2(fromFolder, from, toFolder, to, flags);
}
extern "C" int __real_renameat(int fromFolder, const char* from, int toFolder, const char* to);
extern "C" int __wrap_renameat(int fromFolder, const char* from, int toFolder, const char* to) {
    return comes() ? __real_renameat(fromFolder, from, toFolder, to) : -1;
}
extern "C" int __real_linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags);
extern "C" int __wrap_linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
    // A name that is taken is told first, as the system does it.
    const bool refused =
        renameCalls.linksAreRefused && ::faccessat(toFolder, to, F_OK, AT_SYMLINK_NOFOLLOW) != 0;
    return isRefused(refused, EPERM) || !comes() ? -1 : __real_linkat(fromFolder, from, toFolder, to, flags);
}
extern "C" int __real_unlinkat(int folder, const char* name, int flags);
extern "C" int __wrap_unlinkat(int folder, const char* name, int flags) {
    return comes() ? __real_unlinkat(folder, name, flags) : -1;
}
// NOLINTEND(bugprone-reserved-identifier)
