#include "app/VelmoraDocumentController.h"

#include "support/stream_capture.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(VelmoraDocumentController, ReviewReportsAllReviewedAtOnce) {
    VelmoraDocumentController controller;
    int calls = 0;
    controller.reviewUnsavedDocumentsWithAlertTitle("x", true, [&](DocumentController& who, bool all) {
        ++calls;
        EXPECT_EQ(&controller, &who);
        EXPECT_TRUE(all);
    });
    EXPECT_EQ(1, calls);
}

TEST(VelmoraDocumentController, ReviewWithoutSomebodyToTellDoesNothing) {
    test::StreamCapture log;
    VelmoraDocumentController controller;
    controller.reviewUnsavedDocumentsWithAlertTitle("x", true, {});
    EXPECT_EQ("", log.text());
}

TEST(VelmoraDocumentController, OlderRequestLogsAndAgrees) {
    test::StreamCapture log;
    VelmoraDocumentController controller;
    EXPECT_TRUE(controller.reviewUnsavedDocumentsWithAlertTitle("x", false));
    EXPECT_EQ("in rudwat (old)\n", log.text());
}

TEST(VelmoraDocumentController, IsTheSharedController) {
    const VelmoraDocumentController controller;
    EXPECT_EQ(&controller, DocumentController::shared());
}

} // namespace
} // namespace velmora
