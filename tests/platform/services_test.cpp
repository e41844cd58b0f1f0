#include "platform/application.h"
#include "platform/busy_indicator.h"
#include "platform/document.h"
#include "platform/document_controller.h"
#include "platform/document_window.h"
#include "platform/localisation.h"
#include "platform/log.h"
#include "support/stream_capture.h"

#include <QApplication>
#include <QTimer>

#include <gmock/gmock.h>

namespace velmora {
namespace {

TEST(Log, WritesTheTextAsOneLineToStandardError) {
    test::StreamCapture capture;
    appLog(QStringLiteral("plain"));
    appLog(QStringLiteral("with its own end\n"));
    appLog(QString::fromUtf8("caf\xC3\xA9 %s <b>"));
    EXPECT_EQ("plain\nwith its own end\ncaf\xC3\xA9 %s <b>\n", capture.text());
}

TEST(Localisation, KeyStandsWhereThereIsNoTranslation) {
    EXPECT_EQ("Search Done.", localised("Search Done."));
}

TEST(Localisation, ArgumentTakesThePlaceholderAsItIs) {
    EXPECT_EQ("Unable to open file \"%@ %1\".", localised("Unable to open file \"%@\".", "%@ %1"));
}

class PlainDocument : public Document {
public:
    [[nodiscard]] QString displayName() const override { return {}; }
    bool readFromURL(const std::optional<QUrl>&, const QString&, Error*) override { return true; }
};

TEST(Document, IsEditedFromTheFirstChangeUntilAllAreCleared) {
    PlainDocument document;
    EXPECT_FALSE(document.isDocumentEdited());
    document.updateChangeCount(Document::ChangeType::Done);
    document.updateChangeCount(Document::ChangeType::Done);
    EXPECT_TRUE(document.isDocumentEdited());
    document.updateChangeCount(Document::ChangeType::Cleared);
    EXPECT_FALSE(document.isDocumentEdited());
}

class PlainController : public DocumentController {
public:
    void reviewUnsavedDocumentsWithAlertTitle(const QString&, bool, const DidReviewAll&) override {}
    bool reviewUnsavedDocumentsWithAlertTitle(const QString&, bool) override { return true; }
};

TEST(DocumentController, FirstOneMadeIsTheSharedOne) {
    EXPECT_EQ(nullptr, DocumentController::shared());
    {
        const PlainController first;
        const PlainController second;
        EXPECT_EQ(&first, DocumentController::shared());
    }
    EXPECT_EQ(nullptr, DocumentController::shared());
}

class MockWindowDelegate : public WindowDelegate {
public:
    MOCK_METHOD(bool, windowShouldClose, (), (override));
    MOCK_METHOD(void, windowWillClose, (), (override));
};

TEST(DocumentWindow, ClosesOnlyWhenTheDelegateAgrees) {
    testing::StrictMock<MockWindowDelegate> delegate;
    DocumentWindow window;
    window.setDelegate(&delegate);
    window.show();
    EXPECT_CALL(delegate, windowShouldClose).WillOnce(testing::Return(false));
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_CALL(delegate, windowShouldClose).WillOnce(testing::Return(true));
    EXPECT_CALL(delegate, windowWillClose);
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(window.isVisible());
}

class MockApplicationDelegate : public ApplicationDelegate {
public:
    MOCK_METHOD(bool, applicationShouldTerminateAfterLastWindowClosed, (), (override));
    MOCK_METHOD(TerminateReply, applicationShouldTerminate, (), (override));
};

TEST(ApplicationTermination, RefusalKeepsTheApplicationAlive) {
    testing::StrictMock<MockApplicationDelegate> delegate;
    ApplicationTermination termination;
    termination.setDelegate(&delegate);
    EXPECT_CALL(delegate, applicationShouldTerminate)
        .WillOnce(testing::Return(ApplicationDelegate::TerminateReply::Cancel));
    termination.terminate();
    EXPECT_FALSE(termination.isTerminating());
}

TEST(ApplicationTermination, ConsentEndsTheEventLoopWithZeroAndIsAskedOnce) {
    testing::StrictMock<MockApplicationDelegate> delegate;
    ApplicationTermination termination;
    termination.setDelegate(&delegate);
    EXPECT_CALL(delegate, applicationShouldTerminate)
        .WillOnce(testing::Return(ApplicationDelegate::TerminateReply::Now));
    QTimer::singleShot(0, &termination, [&] {
        termination.terminate();
        termination.terminate();
    });
    EXPECT_EQ(0, QApplication::exec());
    EXPECT_TRUE(termination.isTerminating());
}

TEST(ApplicationTermination, SecondRequestWhileTheFirstAsksDoesNothing) {
    testing::StrictMock<MockApplicationDelegate> delegate;
    ApplicationTermination termination;
    termination.setDelegate(&delegate);
    EXPECT_CALL(delegate, applicationShouldTerminate).WillOnce([&] {
        termination.terminate();
        return ApplicationDelegate::TerminateReply::Cancel;
    });
    termination.terminate();
}

/** Runs the event loop, closes the only window in it, and returns the loop's code; 1 when
   nothing ended it. */
int codeOfLoopThatClosesTheLastWindow() {
    QWidget window;
    window.show();
    QTimer::singleShot(0, &window, &QWidget::close);
    QTimer::singleShot(200, &window, [] { QCoreApplication::exit(1); });
    return QApplication::exec();
}

TEST(ApplicationTermination, LastWindowsCloseAsksWhetherToEndAndThenEnds) {
    testing::StrictMock<MockApplicationDelegate> delegate;
    ApplicationTermination termination;
    termination.setDelegate(&delegate);
    const testing::InSequence inOrder;
    EXPECT_CALL(delegate, applicationShouldTerminateAfterLastWindowClosed).WillOnce(testing::Return(true));
    EXPECT_CALL(delegate, applicationShouldTerminate)
        .WillOnce(testing::Return(ApplicationDelegate::TerminateReply::Now));
    EXPECT_EQ(0, codeOfLoopThatClosesTheLastWindow());
    EXPECT_TRUE(termination.isTerminating());
}

TEST(ApplicationTermination, LastWindowsCloseAloneEndsNothing) {
    testing::StrictMock<MockApplicationDelegate> delegate;
    ApplicationTermination termination;
    termination.setDelegate(&delegate);
    EXPECT_CALL(delegate, applicationShouldTerminateAfterLastWindowClosed).WillOnce(testing::Return(false));
    EXPECT_EQ(1, codeOfLoopThatClosesTheLastWindow());
    EXPECT_FALSE(termination.isTerminating());
}

TEST(BusyIndicator, TurnsBetweenStartAndStopAndKeepsItsPlace) {
    BusyIndicator indicator;
    const QSize place = indicator.sizeHint();
    indicator.startAnimation();
    EXPECT_TRUE(indicator.isAnimating());
    EXPECT_FALSE(indicator.grab().toImage().isNull());
    indicator.stopAnimation();
    EXPECT_FALSE(indicator.isAnimating());
    EXPECT_EQ(place, indicator.sizeHint());
}

} // namespace
} // namespace velmora
