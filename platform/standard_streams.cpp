#include "standard_streams.h"

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

/** Writes to DESCRIPTOR, a pipe or a terminal, fail from now on when it is full. Others may have the same end
   of that pipe and wait at it: they are let alone, because this program opens an end of its own. */
void openWithoutWaiting(int descriptor) {
    struct stat status {};
    const bool mayBeFull =
        ::fstat(descriptor, &status) == 0 && (S_ISFIFO(status.st_mode) || ::isatty(descriptor) == 1);
    if (!mayBeFull) {
        return;
    }
    char name[32];
    std::snprintf(name, sizeof name, "/proc/self/fd/%d", descriptor);
    const int own = ::open(name, O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (own >= 0) {
        ::dup2(own, descriptor);
        ::close(own);
    }
}

} // namespace

void ensureStandardStreams() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        // The lowest free number is taken, which is this one: those below are open by now.
        if (::fcntl(descriptor, F_GETFD) < 0 && ::open("/dev/null", O_RDWR) < 0) {
            break;
        }
    }
    ::signal(SIGPIPE, SIG_IGN);
    ::signal(SIGXFSZ, SIG_IGN);
    openWithoutWaiting(STDOUT_FILENO);
    openWithoutWaiting(STDERR_FILENO);
}

} // namespace velmora
