#include "browser/media_search.h"

#include "support/qt_printing.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

namespace velmora {
namespace {

class SearchMessagesTest : public testing::Test {
protected:
    SearchMessagesTest() {
        port_.setDelegate([this](const PortMessage& message) { arrived_.append(message); });
        port_.addToMainLoop();
    }
    void send(SearchMessage id, const std::optional<QByteArray>& text) {
        send_port_message_simple(port_.sender(), id, text, QDeadlineTimer::Forever);
        QCoreApplication::processEvents();
    }

    MessagePort port_;
    QList<PortMessage> arrived_;
};

TEST(SearchMessageIds, Are100101And102) {
    EXPECT_EQ(100, static_cast<int>(SearchMessage::EnteringFolder));
    EXPECT_EQ(101, static_cast<int>(SearchMessage::FoundFile));
    EXPECT_EQ(102, static_cast<int>(SearchMessage::SearchDone));
}

TEST_F(SearchMessagesTest, TextIsTheOneComponentWithAZeroByteAtItsEnd) {
    send(SearchMessage::FoundFile, QByteArray("/a/caf\xC3\xA9.mp3"));
    ASSERT_EQ(1, arrived_.size());
    EXPECT_EQ(101, arrived_[0].id);
    EXPECT_EQ(QList<QByteArray>{QByteArray("/a/caf\xC3\xA9.mp3\0", 13)}, arrived_[0].components);
}

TEST_F(SearchMessagesTest, EmptyTextIsAComponentOfAZeroByte) {
    send(SearchMessage::EnteringFolder, QByteArray());
    ASSERT_EQ(1, arrived_.size());
    EXPECT_EQ(QList<QByteArray>{QByteArray("\0", 1)}, arrived_[0].components);
}

TEST_F(SearchMessagesTest, NoTextIsNoComponent) {
    send(SearchMessage::SearchDone, std::nullopt);
    ASSERT_EQ(1, arrived_.size());
    EXPECT_EQ(102, arrived_[0].id);
    EXPECT_EQ(QList<QByteArray>(), arrived_[0].components);
}

TEST_F(SearchMessagesTest, SendingToAPortThatIsGoneComesBack) {
    std::optional<MessagePort> port(std::in_place);
    const PortSender sender = port->sender();
    port.reset();
    send_port_message_simple(sender, SearchMessage::SearchDone, std::nullopt, QDeadlineTimer::Forever);
    QCoreApplication::processEvents();
    EXPECT_EQ(0, arrived_.size());
}

TEST(MessagePath, IsTheFirstComponentUpToItsZeroByte) {
    EXPECT_EQ("/a", messagePath({101, {QByteArray("/a\0/b\0", 6), "/c"}}));
    EXPECT_EQ("/a", messagePath({101, {QByteArray("/a", 2)}}));
}

TEST(MessagePath, IsEmptyWithoutAComponent) {
    EXPECT_EQ("", messagePath({101, {}}));
}

TEST(MessagePath, IsDecodedFromUtf8) {
    EXPECT_EQ(QStringLiteral(u"/\u00E9\u65E5"), messagePath({101, {"/\xC3\xA9\xE6\x97\xA5"}}));
}

} // namespace
} // namespace velmora
