#include "platform/web/web_view.h"
#include "support/qt_printing.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

TEST(WebEngineMissing, IsSaidInPlaceOfThePages) {
    WebView view;
    view.loadRequest(QUrl("http://127.0.0.1:9/"));
    view.loadRequest(QUrl("http://127.0.0.1:9/"));
    const auto labels = view.findChildren<QLabel*>();
    ASSERT_EQ(1, labels.size());
    EXPECT_EQ("The web browser component is not installed.", labels.first()->text());
    EXPECT_EQ(nullptr, view.mainFrame()->domDocument());
}

} // namespace
} // namespace velmora::test
