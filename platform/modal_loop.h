#pragma once

#include <functional>

namespace velmora {

/** Lives as long as an event loop of its own waits for an answer that the program can't go on without. Loops
   may be nested. Main thread only.

   What should not happen behind such a question (messages of other threads, a change of the selection) looks
   at depth() and takes itself up again through a ModalLoopWatch. */
class ModalLoop {
public:
    ModalLoop();
    ~ModalLoop();
    ModalLoop(const ModalLoop&) = delete;
    ModalLoop& operator=(const ModalLoop&) = delete;

    /** How many objects of this class live now. */
    [[nodiscard]] static int depth();
};

/** Calls ENDED each time that the last modal loop has ended, while the watch lives. ENDED may only post what
   it wants done: it runs inside the destructor of that loop. */
class ModalLoopWatch {
public:
    explicit ModalLoopWatch(std::function<void()> ended);
    ~ModalLoopWatch();
    ModalLoopWatch(const ModalLoopWatch&) = delete;
    ModalLoopWatch& operator=(const ModalLoopWatch&) = delete;

private:
    friend class ModalLoop;
    std::function<void()> ended_;
};

} // namespace velmora
