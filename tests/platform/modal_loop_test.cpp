#include "platform/modal_loop.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

TEST(ModalLoop, DepthCountsTheLoopsThatRun) {
    EXPECT_EQ(0, ModalLoop::depth());
    {
        const ModalLoop outer;
        EXPECT_EQ(1, ModalLoop::depth());
        {
            const ModalLoop inner;
            EXPECT_EQ(2, ModalLoop::depth());
        }
        EXPECT_EQ(1, ModalLoop::depth());
    }
    EXPECT_EQ(0, ModalLoop::depth());
}

TEST(ModalLoop, WatchIsToldWhenTheLastLoopHasEnded) {
    int ends = 0;
    int depthAtEnd = -1;
    const ModalLoopWatch watch([&] {
        ++ends;
        depthAtEnd = ModalLoop::depth();
    });
    {
        const ModalLoop outer;
        { const ModalLoop inner; }
        EXPECT_EQ(0, ends);
    }
    EXPECT_EQ(1, ends);
    EXPECT_EQ(0, depthAtEnd);
}

TEST(ModalLoop, WatchThatIsGoneIsNotTold) {
    int ends = 0;
    {
        const ModalLoopWatch watch([&] { ++ends; });
    }
    { const ModalLoop loop; }
    EXPECT_EQ(0, ends);
}

TEST(ModalLoop, EveryWatchIsTold) {
    int first = 0;
    int second = 0;
    const ModalLoopWatch one([&] { ++first; });
    const ModalLoopWatch two([&] { ++second; });
    { const ModalLoop loop; }
    EXPECT_EQ(1, first);
    EXPECT_EQ(1, second);
}

} // namespace
} // namespace velmora
