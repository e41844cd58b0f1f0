#include "weblookup/search_address.h"

#include "dom_builder.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

std::string addressOf(const QString& text, int site = siteImdb) {
    const std::optional<QUrl> url = searchAddress(text, site, defaultSearchHosts());
    return url ? url->toEncoded().toStdString() : "none";
}

TEST(SearchAddress, OfEachSite) {
    EXPECT_EQ(addressOf("Blade Runner", siteImdb), "http://www.imdb.com/find?q=Blade%20Runner");
    EXPECT_EQ(addressOf("Blade Runner", siteAmazon), "http://www.amazon.com/exec/obidos/search-handle-url/"
                                                     "index%3Dblended%26field-keywords%3DBlade%20Runner");
    EXPECT_EQ(addressOf("Blade Runner", siteGoogle), "http://www.google.com/search?q=Blade%20Runner");
}

TEST(SearchAddress, OfAnotherCodeIsNone) {
    EXPECT_EQ(addressOf("x", -1), "none");
    EXPECT_EQ(addressOf("x", 3), "none");
}

TEST(SearchAddress, KeepsWhatIsLegalInAnAddress) {
    EXPECT_EQ(addressOf("a!$&'()*+,/:;=?@-._~Z9"), "http://www.imdb.com/find?q=a!$&'()*+,/:;=?@-._~Z9");
}

TEST(SearchAddress, EscapesWhatIsNot) {
    EXPECT_EQ(addressOf("\"#%<>[\\]^`{|}"),
              "http://www.imdb.com/find?q=%22%23%25%3C%3E%5B%5C%5D%5E%60%7B%7C%7D");
}

TEST(SearchAddress, EscapesAPercentSignThatLooksLikeAnEscape) {
    EXPECT_EQ(addressOf("50%20"), "http://www.imdb.com/find?q=50%2520");
}

TEST(SearchAddress, EscapesTheBytesOfOtherLetters) {
    EXPECT_EQ(addressOf(QString::fromUtf8("é映😀")), "http://www.imdb.com/find?q=%C3%A9%E6%98%A0%F0%9F%98%80");
}

TEST(SearchAddress, EscapesControlCharacters) {
    EXPECT_EQ(addressOf("a\tb\n"), "http://www.imdb.com/find?q=a%09b%0A");
}

TEST(SearchAddress, CanAskAnotherHost) {
    const SearchHosts hosts = {"127.0.0.1:8080", "localhost", "[::1]:81"};
    EXPECT_EQ(searchAddress("x", siteImdb, hosts)->toEncoded().toStdString(),
              "http://127.0.0.1:8080/find?q=x");
    EXPECT_EQ(searchAddress("x", siteGoogle, hosts)->toEncoded().toStdString(), "http://[::1]:81/search?q=x");
}

TEST(SiteNames, AreInTheOrderOfTheCodes) {
    EXPECT_EQ(siteNames()[0], "IMDb");
    EXPECT_EQ(siteNames()[1], "Amazon");
    EXPECT_EQ(siteNames()[2], "Google");
}

} // namespace
} // namespace velmora::test
