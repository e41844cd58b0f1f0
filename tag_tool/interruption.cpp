#include "interruption.h"

#include <csignal>

namespace velmora::tag_tool {

namespace {

volatile std::sig_atomic_t noted = 0;

void note(int signal) {
    noted = signal;
}

} // namespace

void note_interruptions() {
    struct sigaction action {};
    action.sa_handler = note;
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGTERM, &action, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

int interruption() {
    return noted;
}

} // namespace velmora::tag_tool
