#pragma once

#include <atomic>
#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace velmora {

/** How long a log waits, in milliseconds, for a reader of standard error that does not keep up. */
inline constexpr int log_patience = 100;

/** Calls WRITE, which writes a text to standard error and returns whether that went well, with errno where it
   did not. When standard error is full, and is one that does not wait (O_NONBLOCK), its reader is given a
   moment, and WRITE is called once more if there is room by then. A reader that took nothing in that moment
   is not waited for again before a text got through: what nobody reads is lost, and nobody waits for it. May
   be called from any thread. */
template <typename Write>
void write_patiently(Write write) {
    static std::atomic<bool> reader_stopped = false;
    bool written = write();
    if (!written && errno == EAGAIN && !reader_stopped) {
        pollfd standard_error{STDERR_FILENO, POLLOUT, 0};
        written = ::poll(&standard_error, 1, log_patience) == 1 && write();
    }
    reader_stopped = !written && errno == EAGAIN;
}

} // namespace velmora
