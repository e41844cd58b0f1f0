#include "platform/message_port.h"

#include "support/waiting.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <gmock/gmock.h>

#include <memory>
#include <thread>
#include <vector>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MessagePortTest : public testing::Test {
protected:
    MessagePortTest() {
        port_->setDelegate([this](const PortMessage& message) { ids_.push_back(message.id); });
        port_->addToMainLoop();
    }

    bool send(int id) { return sender_.send({id, {}}, QDeadlineTimer::Forever); }
    static void runLoop() { QCoreApplication::processEvents(); }
    /** Until COUNT messages have arrived; gives up after some seconds. */
    void runLoopUntil(std::size_t count) {
        EXPECT_TRUE(test::waitUntil([this, count] { return ids_.size() >= count; }));
    }

    std::unique_ptr<MessagePort> port_ = std::make_unique<MessagePort>();
    PortSender sender_ = port_->sender();
    std::vector<int> ids_;
};

TEST_F(MessagePortTest, MessageArrivesFromTheEventLoopAndNotBefore) {
    EXPECT_TRUE(send(7));
    EXPECT_THAT(ids_, IsEmpty());
    runLoop();
    EXPECT_THAT(ids_, ElementsAre(7));
}

TEST_F(MessagePortTest, MessageArrivesWhole) {
    PortMessage arrived;
    port_->setDelegate([&](const PortMessage& message) { arrived = message; });
    EXPECT_TRUE(sender_.send({-3, {QByteArray("a\0b", 3), QByteArray()}}, QDeadlineTimer::Forever));
    runLoop();
    EXPECT_EQ(-3, arrived.id);
    EXPECT_EQ((QList<QByteArray>{QByteArray("a\0b", 3), QByteArray()}), arrived.components);
}

TEST_F(MessagePortTest, MessagesOfAnotherThreadKeepTheirOrder) {
    constexpr int count = 20'000;
    std::thread sending([this] {
        for (int id = 0; id < count; ++id) {
            EXPECT_TRUE(send(id));
        }
    });
    runLoopUntil(count);
    sending.join();
    ASSERT_EQ(static_cast<std::size_t>(count), ids_.size());
    EXPECT_TRUE(std::is_sorted(ids_.begin(), ids_.end()));
}

TEST_F(MessagePortTest, MessagesOfSeveralThreadsAllArrive) {
    constexpr int count = 5'000;
    std::vector<std::thread> threads;
    for (int number = 0; number < 3; ++number) {
        threads.emplace_back([this] {
            for (int id = 0; id < count; ++id) {
                EXPECT_TRUE(send(id));
            }
        });
    }
    runLoopUntil(3 * count);
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(3U * count, ids_.size());
}

TEST_F(MessagePortTest, SendingNeedsNobodyToReceive) {
    for (int id = 0; id < 100'000; ++id) {
        ASSERT_TRUE(send(id));
    }
}

TEST_F(MessagePortTest, WhatWasSentBeforeThePortWasServedIsKept) {
    MessagePort port;
    int arrived = 0;
    port.setDelegate([&](const PortMessage& message) { arrived = message.id; });
    EXPECT_TRUE(port.sender().send({5, {}}, QDeadlineTimer::Forever));
    runLoop();
    EXPECT_EQ(0, arrived);
    port.addToMainLoop();
    runLoop();
    EXPECT_EQ(5, arrived);
}

TEST_F(MessagePortTest, NothingArrivesWhileAModalLoopRuns) {
    {
        const ModalLoop question;
        EXPECT_TRUE(send(1));
        runLoop();
        EXPECT_THAT(ids_, IsEmpty());
    }
    runLoop();
    EXPECT_THAT(ids_, ElementsAre(1));
}

TEST_F(MessagePortTest, MessagesOfAModalLoopArriveInOrderAfterIt) {
    EXPECT_TRUE(send(1));
    {
        const ModalLoop question;
        EXPECT_TRUE(send(2));
        runLoop();
    }
    EXPECT_TRUE(send(3));
    runLoopUntil(3);
    EXPECT_THAT(ids_, ElementsAre(1, 2, 3));
}

TEST_F(MessagePortTest, InnerModalLoopsEndDoesNotServeThePort) {
    const ModalLoop outer;
    {
        const ModalLoop inner;
        EXPECT_TRUE(send(1));
    }
    runLoop();
    EXPECT_THAT(ids_, IsEmpty());
}

TEST_F(MessagePortTest, HandlerThatStartsAModalLoopKeepsTheOtherMessagesWaiting) {
    std::vector<int> duringLoop;
    port_->setDelegate([&](const PortMessage& message) {
        ids_.push_back(message.id);
        if (message.id == 1) {
            const ModalLoop question;
            runLoop();
            duringLoop = ids_;
        }
    });
    EXPECT_TRUE(send(1));
    EXPECT_TRUE(send(2));
    runLoopUntil(2);
    EXPECT_THAT(duringLoop, ElementsAre(1));
    EXPECT_THAT(ids_, ElementsAre(1, 2));
}

TEST_F(MessagePortTest, MessagesArriveInANestedLoopThatIsNotModal) {
    EXPECT_TRUE(send(1));
    QEventLoop sheet;
    QTimer::singleShot(50, &sheet, &QEventLoop::quit);
    sheet.exec();
    EXPECT_THAT(ids_, ElementsAre(1));
}

TEST_F(MessagePortTest, OtherEventsComeInBetweenAFlood) {
    // Five milliseconds a message: hundreds of them must not hold up the timer until the last one.
    port_->setDelegate([this](const PortMessage& message) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        ids_.push_back(message.id);
    });
    for (int id = 0; id < 200; ++id) {
        EXPECT_TRUE(send(id));
    }
    std::size_t handledAtTimer = 0;
    QTimer::singleShot(1, [&] { handledAtTimer = ids_.size(); });
    runLoopUntil(100);
    EXPECT_GT(handledAtTimer, 0U);
    EXPECT_LT(handledAtTimer, 50U);
}

TEST_F(MessagePortTest, PortThatIsGoneTakesNoMessages) {
    port_.reset();
    EXPECT_FALSE(send(1));
    runLoop();
    EXPECT_THAT(ids_, IsEmpty());
}

TEST_F(MessagePortTest, MessagesOnTheirWayAreDroppedWithThePort) {
    EXPECT_TRUE(send(1));
    port_.reset();
    runLoop();
    EXPECT_THAT(ids_, IsEmpty());
}

TEST_F(MessagePortTest, HandlerMayAskForThePortToBeDeleted) {
    port_->setDelegate([this](const PortMessage& message) {
        ids_.push_back(message.id);
        port_.release()->deleteLater();
    });
    EXPECT_TRUE(send(1));
    runLoop();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(ids_, ElementsAre(1));
    EXPECT_FALSE(send(2));
}

TEST_F(MessagePortTest, PortWithoutADelegateSwallowsItsMessages) {
    port_->setDelegate({});
    EXPECT_TRUE(send(1));
    runLoop();
    port_->setDelegate([this](const PortMessage& message) { ids_.push_back(message.id); });
    EXPECT_TRUE(send(2));
    runLoop();
    EXPECT_THAT(ids_, ElementsAre(2));
}

TEST_F(MessagePortTest, DeadlineIsNotWaitedForWhenTheQueueIsFree) {
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(sender_.send({1, {}}, QDeadlineTimer(60'000)));
    EXPECT_LT(timer.elapsed(), 30'000);
}

} // namespace
} // namespace velmora
