#include "weblookup/detail/store_page.h"

#include "dom_builder.h"
#include "fetch_script.h"

#include "support/stream_capture.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

FormFillInfo readStore(const Doms& children, const ImageFetch& fetch = FetchScript().fetch()) {
    FormFillInfo info;
    readStorePage(*page(children), fetch, info);
    return info;
}

Dom item(const Doms& children) {
    return element("LI", children);
}
Dom list(const Doms& items) {
    return element("UL", items);
}
FormFillInfo readItem(const Doms& children) {
    return readStore({list({item(children)})});
}

std::string logOfStore(const Doms& children) {
    StreamCapture log;
    readStore(children);
    return log.text();
}

TEST(StorePage, WithoutAnythingKnownLeavesEverySlotEmptyAndLogsNothing) {
    StreamCapture log;
    const FormFillInfo info = readStore({element("HTML", {element("BODY", {text("hello")})})});
    EXPECT_FALSE(info.title || info.cast || info.directors || info.description || info.year || info.genres ||
                 info.rating || info.releaseDate);
    EXPECT_TRUE(info.coverArt.isNull());
    EXPECT_EQ("", log.text());
}

// Title

TEST(StoreTitle, OfOnePartIsTheWholeText) {
    EXPECT_EQ(QString("Harbour Lights"), readStore({title("Harbour Lights")}).title);
}

TEST(StoreTitle, OfTwoToFourPartsIsTheSecond) {
    EXPECT_EQ(QString("Harbour Lights"), readStore({title("Shop: Harbour Lights")}).title);
    EXPECT_EQ(QString("Harbour Lights"), readStore({title("Shop: Harbour Lights: DVD")}).title);
    EXPECT_EQ(QString("Harbour Lights"), readStore({title("Shop: Harbour Lights: DVD: cast list")}).title);
}

TEST(StoreTitle, OfMorePartsLacksTheFirstAndTheLastTwo) {
    EXPECT_EQ(QString("Harbour Lights: Special Edition"),
              readStore({title("Shop: Harbour Lights: Special Edition: DVD: cast list")}).title);
    EXPECT_EQ(QString("A: B: C"), readStore({title("Shop: A: B: C: DVD: cast list")}).title);
}

TEST(StoreTitle, IsSplitAtColonAndBlankOnly) {
    EXPECT_EQ(QString("Shop:Harbour Lights"), readStore({title("Shop:Harbour Lights")}).title);
    EXPECT_EQ(QString("Shop:\u00a0Harbour Lights"),
              readStore({title(QString("Shop:\u00a0Harbour Lights"))}).title);
}

TEST(StoreTitle, KeepsEmptyPartsAndBlanks) {
    EXPECT_EQ(QString(""), readStore({title("Shop: : DVD")}).title);
    EXPECT_EQ(QString("  Harbour \n"), readStore({title("\nShop:   Harbour \n")}).title);
    EXPECT_EQ(QString(""), readStore({title("")}).title);
}

TEST(StoreTitle, IsNothingWithoutAFirstChildThatHasText) {
    EXPECT_EQ(std::nullopt, readStore({element("TITLE")}).title);
    EXPECT_EQ(std::nullopt, readStore({element("TITLE", {element("B", {text("x")}), text("y")})}).title);
    EXPECT_EQ(std::nullopt, readStore({element("TITLE"), title("Second")}).title);
}

TEST(StoreTitle, IsNotLogged) {
    EXPECT_EQ("", logOfStore({title("Shop: Harbour Lights")}));
}

// Lists

TEST(StoreList, LabelIsReadInListItemsOfAnyListElement) {
    EXPECT_EQ(QStringList({"One"}),
              readStore({element("DIV", {list({text("\n"), item({text(" "), b("Directors:"), a("One")})})})})
                  .directors);
}

TEST(StoreList, OnlyUnorderedListsCount) {
    EXPECT_EQ(std::nullopt, readStore({element("OL", {item({b("Directors:"), a("One")})})}).directors);
}

TEST(StoreList, OnlyDirectChildrenCount) {
    EXPECT_EQ(std::nullopt,
              readStore({list({element("DIV", {item({b("Directors:"), a("One")})})})}).directors);
    EXPECT_EQ(std::nullopt, readItem({element("SPAN", {b("Directors:"), a("One")})}).directors);
    EXPECT_EQ(std::nullopt, readStore({list({b("Directors:"), a("One")})}).directors);
}

TEST(StoreLabel, MayBeWrittenInAnyCaseOfTag) {
    EXPECT_EQ(QStringList({"One"}), readItem({element("b", {text("Directors:")}), a("One")}).directors);
    EXPECT_EQ(std::nullopt, readItem({element("STRONG", {text("Directors:")}), a("One")}).directors);
}

TEST(StoreLabel, IsSkippedUnlessItsFirstChildIsExactlyText) {
    EXPECT_EQ(std::nullopt,
              readItem({element("B", {element("I", {text("Directors:")})}), a("One")}).directors);
    EXPECT_EQ(std::nullopt, readItem({element("B", {comment(""), text("Directors:")}), a("One")}).directors);
    EXPECT_EQ(std::nullopt, readItem({element("B"), a("One")}).directors);
}

TEST(StoreLabel, FirstLabelInTheOrderOfTheRulesDecides) {
    const FormFillInfo actors = readItem({b("Directors: Actors:"), a("One")});
    EXPECT_EQ(QStringList({"One"}), actors.cast);
    EXPECT_EQ(std::nullopt, actors.directors);
    const FormFillInfo directors = readItem({b("Rating Directors:"), a("One"), img("x", {{"alt", "PG"}})});
    EXPECT_EQ(QStringList({"One"}), directors.directors);
    EXPECT_EQ(std::nullopt, directors.rating);
    const FormFillInfo rating =
        readItem({b("Release Date: Rating"), text("May 3, 2005"), img("x", {{"alt", "PG"}})});
    EXPECT_EQ(QString("PG"), rating.rating);
    EXPECT_EQ(std::nullopt, rating.releaseDate);
}

TEST(StoreActors, AreTrimmedNamesAndLogged) {
    EXPECT_EQ(QStringList({"One", "Two"}), readItem({b("Actors:"), a(" One "), text(", "), a("Two")}).cast);
    EXPECT_EQ("looking for actors\nlooking for actors\n",
              logOfStore({list({item({b("Actors:")}), item({b("Actors:")})})}));
}

TEST(StoreActors, LastLabelWinsEvenWithNothing) {
    EXPECT_EQ(std::nullopt,
              readStore({list({item({b("Actors:"), a("One")})}), list({item({b("Actors:")})})}).cast);
}

TEST(StoreDirectors, AreSingularNever) {
    EXPECT_EQ(std::nullopt, readItem({b("Director:"), a("One")}).directors);
}

TEST(StoreDirectors, RunOnOverTheNextLabel) {
    EXPECT_EQ(QStringList({"One", "Two"}),
              readItem({b("Directors:"), a("One"), b("Studio:"), a("Two")}).directors);
}

TEST(StoreDirectors, LastLabelWinsEvenWithNothing) {
    EXPECT_EQ(
        std::nullopt,
        readStore({list({item({b("Directors:"), a("One")}), item({b("Directors:"), text("x")})})}).directors);
}

// Rating

TEST(StoreRating, IsTheAltTextOfTheNextImage) {
    EXPECT_EQ(QString(" PG-13 "), readItem({b("Rating:"), text(" "), a("x"), img("x", {{"alt", " PG-13 "}}),
                                            img("y", {{"alt", "R"}})})
                                      .rating);
}

TEST(StoreRating, WithTextOnlyIsNothing) {
    EXPECT_EQ(std::nullopt, readItem({b("Rating:"), text("PG-13")}).rating);
}

TEST(StoreRating, WithoutAltIsNothingAndWithAnEmptyOneIsEmpty) {
    EXPECT_EQ(std::nullopt, readItem({b("Rating:"), img("x"), img("y", {{"alt", "R"}})}).rating);
    EXPECT_EQ(QString(""), readItem({b("Rating:"), img("x", {{"alt", ""}})}).rating);
}

TEST(StoreRating, LooksAtSiblingImagesOnly) {
    EXPECT_EQ(std::nullopt, readItem({b("Rating:"), element("SPAN", {img("x", {{"alt", "R"}})})}).rating);
}

TEST(StoreRating, IsOverwrittenByTheCustomersRating) {
    EXPECT_EQ(QString("4 stars"),
              readStore({list({item({b("Rating:"), img("x", {{"alt", "PG"}})}),
                               item({b("Average Customer Rating:"), img("s", {{"alt", "4 stars"}})})})})
                  .rating);
    EXPECT_EQ(std::nullopt, readStore({list({item({b("Rating:"), img("x", {{"alt", "PG"}})}),
                                             item({b("Average Customer Rating:"), text("none")})})})
                                .rating);
}

// Release date

TEST(StoreReleaseDate, IsTheWholeTextAndGivesTheYear) {
    const FormFillInfo info = readItem({b("Release Date:"), text("\n May 3, 2005 \n")});
    EXPECT_EQ(QDate(2005, 5, 3), info.releaseDate);
    EXPECT_EQ(QString("2005"), info.year);
}

TEST(StoreReleaseDate, AcceptsALeadingZeroAndASmallMonth) {
    EXPECT_EQ(QDate(2005, 5, 3), readItem({b("Release Date:"), text("may 03, 2005")}).releaseDate);
}

TEST(StoreReleaseDate, RefusesAnythingElse) {
    for (const char* const bad :
         {"3 May 2005", "May 3, 2005 (USA)", "May 3 2005", "May 3,2005", "February 30, 2005", "May 2005",
          "May 3, 05", "Jun 3, 2005", "May  3, 2005", "May 3, -2005", ""}) {
        const FormFillInfo info = readItem({b("Release Date:"), text(bad)});
        EXPECT_EQ(std::nullopt, info.releaseDate) << bad;
        EXPECT_EQ(std::nullopt, info.year) << bad;
    }
}

TEST(StoreReleaseDate, IsTheSameInAnyLocaleOfTheProgram) {
    QLocale::setDefault(QLocale(QLocale::French));
    const FormFillInfo info = readItem({b("Release Date:"), text("August 14, 1999")});
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(QDate(1999, 8, 14), info.releaseDate);
}

TEST(StoreReleaseDate, LaterBadDateClearsTheDateAndKeepsTheYear) {
    for (const Dom& behind : {text("3 May 2006"), a("May 3, 2006")}) {
        const FormFillInfo info = readStore(
            {list({item({b("Release Date:"), text("May 3, 2005")}), item({b("Release Date:"), behind})})});
        EXPECT_EQ(std::nullopt, info.releaseDate);
        EXPECT_EQ(QString("2005"), info.year);
    }
}

// Description

TEST(StoreDescription, JoinsTextsAndBreaksAndKeepsTheTrailingBreak) {
    EXPECT_EQ(QString("First line.\nSecond line.\n"),
              readStore({b("Product Description"), text(" First line. "), br(), text("\nSecond line."), br(),
                         a("x")})
                  .description);
}

TEST(StoreDescription, PutsNothingBetweenAdjacentTexts) {
    EXPECT_EQ(QString("Secondhalf."),
              readStore({b("Product Description"), text("Second "), text(" half.")}).description);
}

TEST(StoreDescription, OfManyLinesIsWhole) {
    Doms dom = {b("Product Description")};
    for (int line = 0; line < 20000; ++line) {
        dom.insert(dom.end(), {text(" line "), br()});
    }
    EXPECT_EQ(QString("line\n").repeated(20000), readStore(dom).description);
}

TEST(StoreDescription, IgnoresBreaksAndBlanksBeforeTheFirstText) {
    EXPECT_EQ(QString("Text"),
              readStore({b("Product Description"), br(), text(" \n"), br(), br(), text("Text")}).description);
}

TEST(StoreDescription, StartsAtTheFirstTextBehindOtherElements) {
    EXPECT_EQ(QString("Text"),
              readStore({b("Product Description"), a("link"), comment("c"), text("Text")}).description);
}

TEST(StoreDescription, EndsAtAnyOtherNode) {
    for (const Dom& end :
         {a("link"), comment("c"), cdata("d"), element("P", {text("p")}), foreignElement("br")}) {
        EXPECT_EQ(QString("Text"),
                  readStore({b("Product Description"), text("Text"), end, text("More")}).description);
    }
}

TEST(StoreDescription, WhoseFirstTextIsBlankAndThenALinkIsNothing) {
    EXPECT_EQ(std::nullopt,
              readStore({b("Product Description"), text("\n"), a("link"), text("More")}).description);
}

TEST(StoreDescription, WithoutTextIsNothing) {
    EXPECT_EQ(std::nullopt, readStore({b("Product Description"), br(), a("link")}).description);
    EXPECT_EQ(std::nullopt, readStore({b("Product Description"), text(" "), br(), text("\n")}).description);
}

TEST(StoreDescription, IsOnlyThatOfTheFirstLabelEvenWhenItGivesNothing) {
    EXPECT_EQ(std::nullopt, readStore({element("DIV", {b("Product Description")}),
                                       element("DIV", {b("Product Description"), text("x")})})
                                .description);
}

TEST(StoreDescription, LabelMayStandAnywhereInTheTextOfAnyB) {
    EXPECT_EQ(QString("yes"), readStore({element("P", {b("x"), text("no")}),
                                         element("P", {b("The Product Description:"), text("yes")})})
                                  .description);
}

TEST(StoreDescription, LabelMustBeTheFirstChild) {
    EXPECT_EQ(
        QString("yes"),
        readStore({element("P", {element("B", {element("I"), text("Product Description")}), text("no")}),
                   element("P", {b("Product Description"), text("yes")})})
            .description);
}

// Cover

Dom cover(const QString& src) {
    return element("TD", {text("\n"), element("A", {text(" "), img(src, {{"id", "prodImage"}})})},
                   {{"id", "prodImageCell"}});
}

TEST(StoreCover, IsFetchedInItsLargeSizeAfterTheLogLine) {
    FetchScript script{{{"http://x/a._SS500_.jpg", FetchScript::picture(5)}}, {}};
    StreamCapture log;
    std::string logAtFetch;
    const ImageFetch fetch = [&](const QUrl& url) {
        logAtFetch = log.text();
        return script.fetch()(url);
    };
    EXPECT_EQ(5, readStore({cover("http://x/a._AA240_.jpg")}, fetch).coverArt.size().width());
    EXPECT_EQ("getting cover art from http://x/a._SS500_.jpg\n", logAtFetch);
}

TEST(StoreCover, ReplacesTheFirstMarkOnlyAnywhereInTheAddress) {
    FetchScript script;
    readStore({cover("http://x/_AA240_/a._AA240_.jpg")}, script.fetch());
    EXPECT_EQ(QStringList({"http://x/_SS500_/a._AA240_.jpg"}), script.asked);
}

TEST(StoreCover, WithoutTheMarkIsNotFetchedAndNotLogged) {
    FetchScript script;
    StreamCapture log;
    EXPECT_TRUE(readStore({cover("http://x/a.jpg"), cover("http://x/_aa240_.jpg"), cover("")}, script.fetch())
                    .coverArt.isNull());
    EXPECT_EQ(QStringList(), script.asked);
    EXPECT_EQ("", log.text());
}

TEST(StoreCover, StopsAtTheFirstPicture) {
    FetchScript script{
        {{"http://x/2_SS500_", FetchScript::picture(2)}, {"http://x/3_SS500_", FetchScript::picture(3)}}, {}};
    EXPECT_EQ(2,
              readStore({cover("http://x/1_AA240_"), cover("http://x/2_AA240_"), cover("http://x/3_AA240_")},
                        script.fetch())
                  .coverArt.size()
                  .width());
    EXPECT_EQ(QStringList({"http://x/1_SS500_", "http://x/2_SS500_"}), script.asked);
}

TEST(StoreCover, AddressThatMakesNoUrlIsLoggedAndNotFetched) {
    FetchScript script{{{"http://x/2_SS500_", FetchScript::picture(2)}}, {}};
    StreamCapture log;
    EXPECT_EQ(2, readStore({cover("http://[bad/_AA240_"), cover("http://x/2_AA240_")}, script.fetch())
                     .coverArt.size()
                     .width());
    EXPECT_EQ("getting cover art from http://[bad/_SS500_\ngetting cover art from http://x/2_SS500_\n",
              log.text());
}

TEST(StoreCover, CellAndImageNeedTheirExactIds) {
    FetchScript script;
    const Dom image = img("http://x/_AA240_", {{"id", "prodImage"}});
    const Dom anchor = element("A", {image});
    readStore({element("TD", {anchor}), element("TD", {anchor}, {{"id", "ProdImageCell"}}),
               element("TH", {anchor}, {{"id", "prodImageCell"}}),
               element("DIV", {anchor}, {{"id", "prodImageCell"}}),
               element("TD", {element("A", {img("http://x/_AA240_", {{"id", "prodimage"}})})},
                       {{"id", "prodImageCell"}}),
               element("TD", {element("A", {img("http://x/_AA240_")})}, {{"id", "prodImageCell"}})},
              script.fetch());
    EXPECT_EQ(QStringList(), script.asked);
}

TEST(StoreCover, OnlyTheFirstAnchorAndItsFirstImageCount) {
    FetchScript script;
    const Dom good = img("http://x/_AA240_", {{"id", "prodImage"}});
    const DomAttributes id = {{"id", "prodImageCell"}};
    readStore({element("TD", {a("x"), element("A", {good})}, id),
               element("TD", {element("A", {img("y"), good})}, id),
               element("TD", {element("DIV", {element("A", {good})})}, id), element("TD", {good}, id),
               element("TD", {element("A", {element("SPAN", {good})})}, id)},
              script.fetch());
    EXPECT_EQ(QStringList(), script.asked);
}

TEST(StorePage, NeverHasGenres) {
    EXPECT_EQ(
        std::nullopt,
        readStore({div("info", {h5("Genre:"), a("Drama")}), list({item({b("Genre:"), a("Drama")})})}).genres);
}

} // namespace
} // namespace velmora::test
