// The whole way of a web lookup in the window: search, page, form, and what of it reaches the file.

#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "support/pictures.h"
#include "web_support/page_server.h"
#include "weblookup/TagWebBrowser.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QSplitter>

namespace velmora {
namespace {

using test::text4;
using test::waitUntil;

const char filmPage[] = R"(<!DOCTYPE html>
<html><head><title>Harbour Lights (2005)</title>
<style>body { font-family: sans-serif; margin: 1em } h5 { display: inline; margin-right: .5em }</style></head>
<body><h1>Harbour Lights</h1>
<a name="poster" href="#"><img src="/poster.png" height="90"></a>
<div class="info"><h5>Director:</h5><a href="#">Di Ross</a></div>
<div class="info"><h5>Release Date:</h5>12 May 2005 (USA)</div>
<div class="info"><h5>Genre:</h5><a href="#">Drama</a> / <a href="#">Crime</a> <a href="#">more</a></div>
<div class="info"><h5>Plot Outline:</h5>Two people meet in a harbour town. </div>
<div class="info"><h5>Certification:</h5><a href="#">Canada:14A</a> / <a href="#">USA:PG-13</a></div>
<div class="info"><table class="cast"><tr><td></td><td><a href="#">Ann Lee</a></td></tr>
<tr><td></td><td><a href="#">Bob Ray</a></td></tr></table></div></body></html>)";

QByteArray poster() {
    return test::encoded(test::plain({150, 210}, QColor(0x2F, 0x5F, 0x8F)), "PNG");
}

class WebLookupTest : public test::WindowTest {
protected:
    WebLookupTest() {
        server_.serve("/find", filmPage);
        server_.serve("/poster.png", {.body = poster(), .type = "image/png"});
        document().webBrowser()->searchHosts = {server_.host(), server_.host(), server_.host()};
        openFile("film.mp4", text4("TALB", "harbour"));
    }
    void lookUp() {
        button("btn_search").click();
        ASSERT_TRUE(waitUntil([this] { return enabled("btn_formFill"); }));
    }

    test::PageServer server_;
};

TEST_F(WebLookupTest, FilmsPageFillsTheForm) {
    lookUp();
    EXPECT_EQ("/find?q=harbour", server_.requests().value(0));
    button("btn_formFill").click();
    EXPECT_EQ("Harbour Lights ", entry("entry_title").text());
    EXPECT_EQ("Ann Lee\nBob Ray", entry("entry_artist").text());
    EXPECT_EQ("Di Ross", entry("entry_album").text());
    EXPECT_EQ("2005", entry("entry_year").text());
    EXPECT_EQ("Drama, Crime", widget<QComboBox>("combo_genre").currentText());
    EXPECT_EQ("PG-13", widget<QComboBox>("combo_rating").currentText());
    EXPECT_EQ(QDate(2005, 5, 12), widget<QDateTimeEdit>("picker_dateTime").date());
    EXPECT_EQ("Two people meet in a harbour town.", widget<QPlainTextEdit>("entry_desc").toPlainText());
    EXPECT_EQ(QSize(150, 210), widget<CoverArtView>("img_coverArt").image().size());
    QDir().mkpath("screenshots");
    EXPECT_TRUE(document().window()->grab().save("screenshots/form-fill.png"));
}

TEST_F(WebLookupTest, SavingRightAfterwardsStoresRatingAndCoverOnly) {
    lookUp();
    button("btn_formFill").click();
    button("btn_saveTag").click();
    EXPECT_FALSE(document().isDocumentEdited());
    controller().revertToSaved();
    test::settle();
    EXPECT_EQ("harbour", entry("entry_title").text());
    EXPECT_EQ("", entry("entry_artist").text());
    EXPECT_EQ("PG-13", widget<QComboBox>("combo_rating").currentText());
    EXPECT_EQ(QSize(150, 210), widget<CoverArtView>("img_coverArt").image().size());
}

TEST_F(WebLookupTest, PageGetsRoomInTheWindow) {
    auto& split = widget<QSplitter>("split_main");
    const int before = split.sizes().value(1);
    lookUp();
    EXPECT_GT(split.sizes().value(1), before);
    EXPECT_GE(split.sizes().value(1), split.height() / 3);
}

TEST_F(WebLookupTest, WindowClosesWhileAPageLoads) {
    server_.serve("/find", {.body = "<html>", .end = test::Answer::End::Never});
    button("btn_search").click();
    EXPECT_TRUE(waitUntil([this] { return server_.wasAskedFor("/find?q=harbour"); }));
    EXPECT_TRUE(document().window()->close());
    document_.reset();
}

} // namespace
} // namespace velmora
