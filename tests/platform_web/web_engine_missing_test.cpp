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
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(labels.first()->text(), "The web browser component is not installed.");
    EXPECT_EQ(view.mainFrame()->domDocument(), nullptr);
}

} // namespace
} // namespace velmora::test
