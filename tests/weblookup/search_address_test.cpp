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
    EXPECT_EQ("http://www.imdb.com/find?q=Blade%20Runner", addressOf("Blade Runner", siteImdb));
    EXPECT_EQ("http://www.amazon.com/exec/obidos/search-handle-url/"
              "index%3Dblended%26field-keywords%3DBlade%20Runner",
              addressOf("Blade Runner", siteAmazon));
    EXPECT_EQ("http://www.google.com/search?q=Blade%20Runner", addressOf("Blade Runner", siteGoogle));
}

TEST(SearchAddress, OfAnotherCodeIsNone) {
    EXPECT_EQ("none", addressOf("x", -1));
    EXPECT_EQ("none", addressOf("x", 3));
}

TEST(SearchAddress, KeepsWhatIsLegalInAnAddress) {
    EXPECT_EQ("http://www.imdb.com/find?q=a!$&'()*+,/:;=?@-._~Z9", addressOf("a!$&'()*+,/:;=?@-._~Z9"));
}

TEST(SearchAddress, EscapesWhatIsNot) {
    EXPECT_EQ("http://www.imdb.com/find?q=%22%23%25%3C%3E%5B%5C%5D%5E%60%7B%7C%7D",
              addressOf("\"#%<>[\\]^`{|}"));
}

TEST(SearchAddress, EscapesAPercentSignThatLooksLikeAnEscape) {
    EXPECT_EQ("http://www.imdb.com/find?q=50%2520", addressOf("50%20"));
}

TEST(SearchAddress, EscapesTheBytesOfOtherLetters) {
    EXPECT_EQ("http://www.imdb.com/find?q=%C3%A9%E6%98%A0%F0%9F%98%80", addressOf(QString::fromUtf8("é映😀")));
}

TEST(SearchAddress, EscapesControlCharacters) {
    EXPECT_EQ("http://www.imdb.com/find?q=a%09b%0A", addressOf("a\tb\n"));
}

TEST(SearchAddress, CanAskAnotherHost) {
    const SearchHosts hosts = {"127.0.0.1:8080", "localhost", "[::1]:81"};
    EXPECT_EQ("http://127.0.0.1:8080/find?q=x",
              searchAddress("x", siteImdb, hosts)->toEncoded().toStdString());
    EXPECT_EQ("http://[::1]:81/search?q=x", searchAddress("x", siteGoogle, hosts)->toEncoded().toStdString());
}

TEST(SiteNames, AreInTheOrderOfTheCodes) {
    EXPECT_EQ("IMDb", siteNames()[0]);
    EXPECT_EQ("Amazon", siteNames()[1]);
    EXPECT_EQ("Google", siteNames()[2]);
}

} // namespace
} // namespace velmora::test
