#include "weblookup/detail/address_line.h"

#include "support/qt_printing.h"

#include <QApplication>
#include <QClipboard>

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

class AddressLineTest : public testing::Test {
protected:
    AddressLineTest() {
        line.setReadOnly(true);
        line.resize(2000, 30);
        window.resize(2000, 60);
        window.show();
        window.activateWindow();
    }
    QString shown(const char* address) {
        line.setAddress(QUrl(QString::fromUtf8(address)));
        return line.text();
    }

    QWidget window;
    AddressLine line{&window};
};

TEST_F(AddressLineTest, ShowsAnAddressThatFits) {
    EXPECT_EQ("http://films.example/title?q=1#cast", shown("http://films.example/title?q=1#cast"));
    EXPECT_EQ(0, line.cursorPosition());
    EXPECT_EQ("", shown(""));
}

TEST_F(AddressLineTest, LeavesOutAUserNameAndAPassword) {
    EXPECT_EQ("http://evil.example/", shown("http://www.imdb.com:80@evil.example/"));
    EXPECT_EQ("https://evil.example/title", shown("https://www.imdb.com%2Ftitle%2F@evil.example/title"));
}

TEST_F(AddressLineTest, ShowsLookAlikeLettersAsTheyAreSent) {
    EXPECT_EQ("http://xn--mdb-ihd.example/", shown("http://\xD1\x96mdb.example/"));
    EXPECT_EQ("http://films.example/%E2%80%AE", shown("http://films.example/\xE2\x80\xAE"));
}

TEST_F(AddressLineTest, KeepsTheEndOfAHostThatDoesNotFit) {
    line.resize(200, 30);
    const QString text =
        shown("http://www.imdb.com.a-very-long-name-that-goes-on-and-on.evil.example/title/1");
    EXPECT_TRUE(text.endsWith("evil.example")) << text.toStdString();
    EXPECT_FALSE(text.contains("imdb")) << text.toStdString();
}

TEST_F(AddressLineTest, DropsTheEndOfAPathThatDoesNotFit) {
    line.resize(260, 30);
    const QString text =
        shown("http://films.example/a/path/that/is/much/too/long/to/be/shown/in/a/line/of/this/width");
    EXPECT_TRUE(text.startsWith("http://films.example/a")) << text.toStdString();
    EXPECT_TRUE(text.endsWith(QChar(0x2026))) << text.toStdString();
    line.resize(2000, 30);
    EXPECT_TRUE(line.text().endsWith("width"));
}

TEST_F(AddressLineTest, HoldsTheWholeAddressWithTheFocus) {
    line.resize(100, 30);
    const QString whole = "http://films.example/a/path/that/is/much/too/long";
    shown(whole.toUtf8());
    EXPECT_NE(whole, line.text());
    line.setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    ASSERT_TRUE(line.hasFocus());
    EXPECT_EQ(whole, line.selectedText());
    line.copy();
    EXPECT_EQ(whole, QApplication::clipboard()->text());
    line.clearFocus();
    EXPECT_NE(whole, line.text());
    EXPECT_EQ(whole, line.accessibleDescription());
}

} // namespace
} // namespace velmora::test
