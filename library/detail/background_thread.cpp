#include "background_thread.h"

#include <sys/resource.h>
#include <unistd.h>

namespace velmora {

namespace {

/** A third of the weight of an ordinary thread, so that what it does still ends on a busy machine. */
constexpr int niceness = 5;

} // namespace

void stayInBackground() {
    // On Linux the priority is the thread's own, and raising this number is always allowed. Where it can't be
    // set, all is as fair as before.
    static_cast<void>(::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), niceness));
}

} // namespace velmora
