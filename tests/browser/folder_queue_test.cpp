#include "browser/folder_queue.h"

#include "support/qt_printing.h"
#include "support/waiting.h"

#include <QStringList>

#include <gmock/gmock.h>

#include <fstream>
#include <future>
#include <thread>

#include <unistd.h>

namespace velmora {
namespace {

/** Whether the kernel has a thread of this process down as sleeping. */
bool sleeps(pid_t thread) {
    std::ifstream status("/proc/self/task/" + std::to_string(thread) + "/stat");
    std::string line;
    std::getline(status, line);
    const std::size_t name = line.rfind(") ");
    return name != std::string::npos && line[name + 2] == 'S';
}

class FolderQueueTest : public testing::Test {
protected:
    std::optional<QString> take() { return queue_.takeFirstOrHold(running_); }

    FolderQueue queue_;
    std::atomic<bool> running_ = true;
};

TEST_F(FolderQueueTest, StartsEmpty) {
    EXPECT_EQ(QStringList(), queue_.folders());
}

TEST_F(FolderQueueTest, FoldersComeOutInTheOrderInWhichTheyWentIn) {
    ASSERT_TRUE(queue_.tryAppend({"/b", "/a"}));
    ASSERT_TRUE(queue_.tryAppend({"/c"}));
    EXPECT_EQ("/b", take());
    EXPECT_EQ("/a", take());
    EXPECT_EQ("/c", take());
}

TEST_F(FolderQueueTest, TheSameFolderMayBeInItTwice) {
    ASSERT_TRUE(queue_.tryAppend({"/a", "/a"}));
    EXPECT_EQ("/a", take());
    EXPECT_EQ("/a", take());
}

TEST_F(FolderQueueTest, TakenFolderHasLeftTheQueue) {
    ASSERT_TRUE(queue_.tryAppend({"/a", "/b"}));
    EXPECT_EQ("/a", take());
    EXPECT_EQ(QStringList{"/b"}, queue_.folders());
}

TEST_F(FolderQueueTest, TakingAFolderLeavesTheLockFree) {
    ASSERT_TRUE(queue_.tryAppend({"/a"}));
    EXPECT_EQ("/a", take());
    EXPECT_TRUE(queue_.tryAppend({"/b"}));
}

TEST_F(FolderQueueTest, LastLookAtAnEmptyQueueKeepsTheLock) {
    EXPECT_EQ(std::nullopt, take());
    EXPECT_FALSE(queue_.tryAppend({"/a"}));
    EXPECT_EQ(QStringList(), queue_.folders());
}

TEST_F(FolderQueueTest, StoppedWorkerTakesNothingAndKeepsTheLock) {
    ASSERT_TRUE(queue_.tryAppend({"/a"}));
    running_ = false;
    EXPECT_EQ(std::nullopt, take());
    EXPECT_EQ(QStringList{"/a"}, queue_.folders());
    EXPECT_FALSE(queue_.tryAppend({"/b"}));
}

TEST_F(FolderQueueTest, AnotherThreadReleasesWhatTheWorkerHolds) {
    std::thread([this] { EXPECT_EQ(std::nullopt, take()); }).join();
    queue_.searchDone();
    EXPECT_TRUE(queue_.tryAppend({"/a"}));
}

TEST_F(FolderQueueTest, LockIsReleasedOnceHoweverOftenTheSearchIsDone) {
    EXPECT_EQ(std::nullopt, take());
    queue_.searchDone();
    queue_.searchDone();
    // One permit and not two: a second worker holds it like the first one.
    EXPECT_EQ(std::nullopt, take());
    EXPECT_FALSE(queue_.tryAppend({"/a"}));
}

TEST_F(FolderQueueTest, DoneWithoutAWorkerReleasesNothing) {
    queue_.searchDone();
    EXPECT_EQ(std::nullopt, take());
    EXPECT_FALSE(queue_.tryAppend({"/a"}));
}

TEST_F(FolderQueueTest, WorkerWaitsForALockThatIsHeld) {
    EXPECT_EQ(std::nullopt, take());
    std::atomic<pid_t> worker = 0;
    std::future<std::optional<QString>> second = std::async(std::launch::async, [this, &worker] {
        worker = gettid();
        return take();
    });
    const auto isDone = [&] { return second.wait_for(std::chrono::seconds(0)) == std::future_status::ready; };
    ASSERT_TRUE(test::waitUntil([&] { return isDone() || (worker != 0 && sleeps(worker)); }));
    EXPECT_FALSE(isDone());
    queue_.searchDone();
    EXPECT_EQ(std::nullopt, second.get());
}

TEST_F(FolderQueueTest, EveryFolderIsTakenOnceWhileOthersAreAppended) {
    constexpr int count = 2000;
    std::future<int> taken = std::async(std::launch::async, [this] {
        int number = 0;
        while (number < count) {
            if (take()) {
                ++number;
            } else {
                queue_.searchDone();
            }
        }
        return number;
    });
    for (int number = 0; number < count;) {
        number += queue_.tryAppend({QString::number(number)}) ? 1 : 0;
    }
    EXPECT_EQ(count, taken.get());
    EXPECT_EQ(QStringList(), queue_.folders());
}

} // namespace
} // namespace velmora
