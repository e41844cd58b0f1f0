#include "standard_streams.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace velmora {

void ensureStandardStreams() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        // The lowest free number is taken, which is this one: those below are open by now.
        if (::fcntl(descriptor, F_GETFD) < 0 && ::open("/dev/null", O_RDWR) < 0) {
            break;
        }
    }
    ::signal(SIGPIPE, SIG_IGN);
    ::signal(SIGXFSZ, SIG_IGN);
}

} // namespace velmora
