#include "modal_loop.h"

#include <utility>
#include <vector>

namespace velmora {
namespace {

int loops = 0;

std::vector<ModalLoopWatch*>& watches() {
    static std::vector<ModalLoopWatch*> list;
    return list;
}

} // namespace

ModalLoop::ModalLoop() {
    ++loops;
}

ModalLoop::~ModalLoop() {
    if (--loops > 0) {
        return;
    }
    const std::vector<ModalLoopWatch*> toTell = watches();
    for (const ModalLoopWatch* watch : toTell) {
        watch->ended_();
    }
}

int ModalLoop::depth() {
    return loops;
}

ModalLoopWatch::ModalLoopWatch(std::function<void()> ended) : ended_(std::move(ended)) {
    watches().push_back(this);
}

ModalLoopWatch::~ModalLoopWatch() {
    std::erase(watches(), this);
}

} // namespace velmora
