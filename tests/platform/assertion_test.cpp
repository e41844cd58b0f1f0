#include "platform/assertion.h"

#include "support/qt_printing.h"

#include <gmock/gmock.h>

#include <vector>

namespace velmora {
namespace {

const AssertionFailure failure = {QStringLiteral("n > 0 does not hold"), QStringLiteral("Somebody"), 12};

TEST(Assertion, ReplacedHandlerIsToldAndTheCallComesBack) {
    std::vector<AssertionFailure> told;
    const AssertionHandler former =
        setAssertionHandler([&](const AssertionFailure& what) { told.push_back(what); });
    assertionFailed(failure);
    setAssertionHandler(former);
    ASSERT_EQ(1U, told.size());
    EXPECT_EQ("n > 0 does not hold", told[0].description);
    EXPECT_EQ("Somebody", told[0].source);
    EXPECT_EQ(12, told[0].line);
}

TEST(Assertion, HandlerGivesBackTheFormerOne) {
    int first = 0;
    const AssertionHandler original = setAssertionHandler([&](const AssertionFailure&) { ++first; });
    const AssertionHandler former = setAssertionHandler([](const AssertionFailure&) {});
    former(failure);
    setAssertionHandler(original);
    EXPECT_EQ(1, first);
}

TEST(AssertionDeathTest, FirstHandlerLogsTheFailureAndAborts) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(assertionFailed(failure), testing::KilledBySignal(SIGABRT),
                "Somebody.*line 12.*n > 0 does not hold");
}

} // namespace
} // namespace velmora
