#include "weblookup/detail/store_page.h"

#include "dom_builder.h"
#include "fetch_script.h"
#include "support/stream_capture.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

FormFillInfo read(const Doms& children, const ImageFetch& fetch = FetchScript().fetch()) {
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
    return read({list({item(children)})});
}

std::string logOf(const Doms& children) {
    StreamCapture log;
    read(children);
    return log.text();
}

TEST(StorePage, WithoutAnythingKnownLeavesEverySlotEmptyAndLogsNothing) {
    StreamCapture log;
    const FormFillInfo info = read({element("HTML", {element("BODY", {text("hello")})})});
    EXPECT_FALSE(info.title || info.cast || info.directors || info.description || info.year || info.genres ||
                 info.rating || info.releaseDate);
    EXPECT_TRUE(info.coverArt.isNull());
    EXPECT_EQ(log.text(), "");
}

// Title

TEST(StoreTitle, OfOnePartIsTheWholeText) {
    EXPECT_EQ(read({title("Harbour Lights")}).title, QString("Harbour Lights"));
}

TEST(StoreTitle, OfTwoToFourPartsIsTheSecond) {
    EXPECT_EQ(read({title("Shop: Harbour Lights")}).title, QString("Harbour Lights"));
    EXPECT_EQ(read({title("Shop: Harbour Lights: DVD")}).title, QString("Harbour Lights"));
    EXPECT_EQ(read({title("Shop: Harbour Lights: DVD: cast list")}).title, QString("Harbour Lights"));
}

TEST(StoreTitle, OfMorePartsLacksTheFirstAndTheLastTwo) {
    EXPECT_EQ(read({title("Shop: Harbour Lights: Special Edition: DVD: cast list")}).title,
              QString("Harbour Lights: Special Edition"));
    EXPECT_EQ(read({title("Shop: A: B: C: DVD: cast list")}).title, QString("A: B: C"));
}

TEST(StoreTitle, IsSplitAtColonAndBlankOnly) {
    EXPECT_EQ(read({title("Shop:Harbour Lights")}).title, QString("Shop:Harbour Lights"));
    EXPECT_EQ(read({title(QString("Shop:\u00a0Harbour Lights"))}).title,
              QString("Shop:\u00a0Harbour Lights"));
}

TEST(StoreTitle, KeepsEmptyPartsAndBlanks) {
    EXPECT_EQ(read({title("Shop: : DVD")}).title, QString(""));
    EXPECT_EQ(read({title("\nShop:   Harbour \n")}).title, QString("  Harbour \n"));
    EXPECT_EQ(read({title("")}).title, QString(""));
}

TEST(StoreTitle, IsNothingWithoutAFirstChildThatHasText) {
    EXPECT_EQ(read({element("TITLE")}).title, std::nullopt);
    EXPECT_EQ(read({element("TITLE", {element("B", {text("x")}), text("y")})}).title, std::nullopt);
    EXPECT_EQ(read({element("TITLE"), title("Second")}).title, std::nullopt);
}

TEST(StoreTitle, IsNotLogged) {
    EXPECT_EQ(logOf({title("Shop: Harbour Lights")}), "");
}

// Lists

TEST(StoreList, LabelIsReadInListItemsOfAnyListElement) {
    EXPECT_EQ(
        read({element("DIV", {list({text("\n"), item({text(" "), b("Directors:"), a("One")})})})}).directors,
        QStringList({"One"}));
}

TEST(StoreList, OnlyUnorderedListsCount) {
    EXPECT_EQ(read({element("OL", {item({b("Directors:"), a("One")})})}).directors, std::nullopt);
}

TEST(StoreList, OnlyDirectChildrenCount) {
    EXPECT_EQ(read({list({element("DIV", {item({b("Directors:"), a("One")})})})}).directors, std::nullopt);
    EXPECT_EQ(readItem({element("SPAN", {b("Directors:"), a("One")})}).directors, std::nullopt);
    EXPECT_EQ(read({list({b("Directors:"), a("One")})}).directors, std::nullopt);
}

TEST(StoreLabel, MayBeWrittenInAnyCaseOfTag) {
    EXPECT_EQ(readItem({element("b", {text("Directors:")}), a("One")}).directors, QStringList({"One"}));
    EXPECT_EQ(readItem({element("STRONG", {text("Directors:")}), a("One")}).directors, std::nullopt);
}

TEST(StoreLabel, IsSkippedUnlessItsFirstChildIsExactlyText) {
    EXPECT_EQ(readItem({element("B", {element("I", {text("Directors:")})}), a("One")}).directors,
              std::nullopt);
    EXPECT_EQ(readItem({element("B", {comment(""), text("Directors:")}), a("One")}).directors, std::nullopt);
    EXPECT_EQ(readItem({element("B"), a("One")}).directors, std::nullopt);
}

TEST(StoreLabel, FirstLabelInTheOrderOfTheRulesDecides) {
    const FormFillInfo actors = readItem({b("Directors: Actors:"), a("One")});
    EXPECT_EQ(actors.cast, QStringList({"One"}));
    EXPECT_EQ(actors.directors, std::nullopt);
    const FormFillInfo directors = readItem({b("Rating Directors:"), a("One"), img("x", {{"alt", "PG"}})});
    EXPECT_EQ(directors.directors, QStringList({"One"}));
    EXPECT_EQ(directors.rating, std::nullopt);
    const FormFillInfo rating =
        readItem({b("Release Date: Rating"), text("May 3, 2005"), img("x", {{"alt", "PG"}})});
    EXPECT_EQ(rating.rating, QString("PG"));
    EXPECT_EQ(rating.releaseDate, std::nullopt);
}

TEST(StoreActors, AreTrimmedNamesAndLogged) {
    EXPECT_EQ(readItem({b("Actors:"), a(" One "), text(", "), a("Two")}).cast, QStringList({"One", "Two"}));
    EXPECT_EQ(logOf({list({item({b("Actors:")}), item({b("Actors:")})})}),
              "looking for actors\nlooking for actors\n");
}

TEST(StoreActors, LastLabelWinsEvenWithNothing) {
    EXPECT_EQ(read({list({item({b("Actors:"), a("One")})}), list({item({b("Actors:")})})}).cast,
              std::nullopt);
}

TEST(StoreDirectors, AreSingularNever) {
    EXPECT_EQ(readItem({b("Director:"), a("One")}).directors, std::nullopt);
}

TEST(StoreDirectors, RunOnOverTheNextLabel) {
    EXPECT_EQ(readItem({b("Directors:"), a("One"), b("Studio:"), a("Two")}).directors,
              QStringList({"One", "Two"}));
}

TEST(StoreDirectors, LastLabelWinsEvenWithNothing) {
    EXPECT_EQ(read({list({item({b("Directors:"), a("One")}), item({b("Directors:"), text("x")})})}).directors,
              std::nullopt);
}

// Rating

TEST(StoreRating, IsTheAltTextOfTheNextImage) {
    EXPECT_EQ(
        readItem({b("Rating:"), text(" "), a("x"), img("x", {{"alt", " PG-13 "}}), img("y", {{"alt", "R"}})})
            .rating,
        QString(" PG-13 "));
}

TEST(StoreRating, WithTextOnlyIsNothing) {
    EXPECT_EQ(readItem({b("Rating:"), text("PG-13")}).rating, std::nullopt);
}

TEST(StoreRating, WithoutAltIsNothingAndWithAnEmptyOneIsEmpty) {
    EXPECT_EQ(readItem({b("Rating:"), img("x"), img("y", {{"alt", "R"}})}).rating, std::nullopt);
    EXPECT_EQ(readItem({b("Rating:"), img("x", {{"alt", ""}})}).rating, QString(""));
}

TEST(StoreRating, LooksAtSiblingImagesOnly) {
    EXPECT_EQ(readItem({b("Rating:"), element("SPAN", {img("x", {{"alt", "R"}})})}).rating, std::nullopt);
}

TEST(StoreRating, IsOverwrittenByTheCustomersRating) {
    EXPECT_EQ(read({list({item({b("Rating:"), img("x", {{"alt", "PG"}})}),
                          item({b("Average Customer Rating:"), img("s", {{"alt", "4 stars"}})})})})
                  .rating,
              QString("4 stars"));
    EXPECT_EQ(read({list({item({b("Rating:"), img("x", {{"alt", "PG"}})}),
                          item({b("Average Customer Rating:"), text("none")})})})
                  .rating,
              std::nullopt);
}

// Release date

TEST(StoreReleaseDate, IsTheWholeTextAndGivesTheYear) {
    const FormFillInfo info = readItem({b("Release Date:"), text("\n May 3, 2005 \n")});
    EXPECT_EQ(info.releaseDate, QDate(2005, 5, 3));
    EXPECT_EQ(info.year, QString("2005"));
}

TEST(StoreReleaseDate, AcceptsALeadingZeroAndASmallMonth) {
    EXPECT_EQ(readItem({b("Release Date:"), text("may 03, 2005")}).releaseDate, QDate(2005, 5, 3));
}

TEST(StoreReleaseDate, RefusesAnythingElse) {
    for (const char* const bad :
         {"3 May 2005", "May 3, 2005 (USA)", "May 3 2005", "May 3,2005", "February 30, 2005", "May 2005",
          "May 3, 05", "Jun 3, 2005", "May  3, 2005", "May 3, -2005", ""}) {
        const FormFillInfo info = readItem({b("Release Date:"), text(bad)});
        EXPECT_EQ(info.releaseDate, std::nullopt) << bad;
        EXPECT_EQ(info.year, std::nullopt) << bad;
    }
}

TEST(StoreReleaseDate, IsTheSameInAnyLocaleOfTheProgram) {
    QLocale::setDefault(QLocale(QLocale::French));
    const FormFillInfo info = readItem({b("Release Date:"), text("August 14, 1999")});
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(info.releaseDate, QDate(1999, 8, 14));
}

TEST(StoreReleaseDate, LaterBadDateClearsTheDateAndKeepsTheYear) {
    for (const Dom& behind : {text("3 May 2006"), a("May 3, 2006")}) {
        const FormFillInfo info = read(
            {list({item({b("Release Date:"), text("May 3, 2005")}), item({b("Release Date:"), behind})})});
        EXPECT_EQ(info.releaseDate, std::nullopt);
        EXPECT_EQ(info.year, QString("2005"));
    }
}

// Description

TEST(StoreDescription, JoinsTextsAndBreaksAndKeepsTheTrailingBreak) {
    EXPECT_EQ(
        read({b("Product Description"), text(" First line. "), br(), text("\nSecond line."), br(), a("x")})
            .description,
        QString("First line.\nSecond line.\n"));
}

TEST(StoreDescription, PutsNothingBetweenAdjacentTexts) {
    EXPECT_EQ(read({b("Product Description"), text("Second "), text(" half.")}).description,
              QString("Secondhalf."));
}

TEST(StoreDescription, OfManyLinesIsWhole) {
    Doms dom = {b("Product Description")};
    for (int line = 0; line < 20000; ++line) {
        dom.insert(dom.end(), {text(" line "), br()});
    }
    EXPECT_EQ(read(dom).description, QString("line\n").repeated(20000));
}

TEST(StoreDescription, IgnoresBreaksAndBlanksBeforeTheFirstText) {
    EXPECT_EQ(read({b("Product Description"), br(), text(" \n"), br(), br(), text("Text")}).description,
              QString("Text"));
}

TEST(StoreDescription, StartsAtTheFirstTextBehindOtherElements) {
    EXPECT_EQ(read({b("Product Description"), a("link"), comment("c"), text("Text")}).description,
              QString("Text"));
}

TEST(StoreDescription, EndsAtAnyOtherNode) {
    for (const Dom& end :
         {a("link"), comment("c"), cdata("d"), element("P", {text("p")}), foreignElement("br")}) {
        EXPECT_EQ(read({b("Product Description"), text("Text"), end, text("More")}).description,
                  QString("Text"));
    }
}

TEST(StoreDescription, WhoseFirstTextIsBlankAndThenALinkIsNothing) {
    EXPECT_EQ(read({b("Product Description"), text("\n"), a("link"), text("More")}).description,
              std::nullopt);
}

TEST(StoreDescription, WithoutTextIsNothing) {
    EXPECT_EQ(read({b("Product Description"), br(), a("link")}).description, std::nullopt);
    EXPECT_EQ(read({b("Product Description"), text(" "), br(), text("\n")}).description, std::nullopt);
}

TEST(StoreDescription, IsOnlyThatOfTheFirstLabelEvenWhenItGivesNothing) {
    EXPECT_EQ(read({element("DIV", {b("Product Description")}),
                    element("DIV", {b("Product Description"), text("x")})})
                  .description,
              std::nullopt);
}

TEST(StoreDescription, LabelMayStandAnywhereInTheTextOfAnyB) {
    EXPECT_EQ(
        read({element("P", {b("x"), text("no")}), element("P", {b("The Product Description:"), text("yes")})})
            .description,
        QString("yes"));
}

TEST(StoreDescription, LabelMustBeTheFirstChild) {
    EXPECT_EQ(read({element("P", {element("B", {element("I"), text("Product Description")}), text("no")}),
                    element("P", {b("Product Description"), text("yes")})})
                  .description,
              QString("yes"));
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
    EXPECT_EQ(read({cover("http://x/a._AA240_.jpg")}, fetch).coverArt.size().width(), 5);
    EXPECT_EQ(logAtFetch, "getting cover art from http://x/a._SS500_.jpg\n");
}

TEST(StoreCover, ReplacesTheFirstMarkOnlyAnywhereInTheAddress) {
    FetchScript script;
    read({cover("http://x/_AA240_/a._AA240_.jpg")}, script.fetch());
    EXPECT_EQ(script.asked, QStringList({"http://x/_SS500_/a._AA240_.jpg"}));
}

TEST(StoreCover, WithoutTheMarkIsNotFetchedAndNotLogged) {
    FetchScript script;
    StreamCapture log;
    EXPECT_TRUE(read({cover("http://x/a.jpg"), cover("http://x/_aa240_.jpg"), cover("")}, script.fetch())
                    .coverArt.isNull());
    EXPECT_EQ(script.asked, QStringList());
    EXPECT_EQ(log.text(), "");
}

TEST(StoreCover, StopsAtTheFirstPicture) {
    FetchScript script{
        {{"http://x/2_SS500_", FetchScript::picture(2)}, {"http://x/3_SS500_", FetchScript::picture(3)}}, {}};
    EXPECT_EQ(read({cover("http://x/1_AA240_"), cover("http://x/2_AA240_"), cover("http://x/3_AA240_")},
                   script.fetch())
                  .coverArt.size()
                  .width(),
              2);
    EXPECT_EQ(script.asked, QStringList({"http://x/1_SS500_", "http://x/2_SS500_"}));
}

TEST(StoreCover, AddressThatMakesNoUrlIsLoggedAndNotFetched) {
    FetchScript script{{{"http://x/2_SS500_", FetchScript::picture(2)}}, {}};
    StreamCapture log;
    EXPECT_EQ(read({cover("http://[bad/_AA240_"), cover("http://x/2_AA240_")}, script.fetch())
                  .coverArt.size()
                  .width(),
              2);
    EXPECT_EQ(log.text(),
              "getting cover art from http://[bad/_SS500_\ngetting cover art from http://x/2_SS500_\n");
}

TEST(StoreCover, CellAndImageNeedTheirExactIds) {
    FetchScript script;
    const Dom image = img("http://x/_AA240_", {{"id", "prodImage"}});
    const Dom anchor = element("A", {image});
    read({element("TD", {anchor}), element("TD", {anchor}, {{"id", "ProdImageCell"}}),
          element("TH", {anchor}, {{"id", "prodImageCell"}}),
          element("DIV", {anchor}, {{"id", "prodImageCell"}}),
          element("TD", {element("A", {img("http://x/_AA240_", {{"id", "prodimage"}})})},
                  {{"id", "prodImageCell"}}),
          element("TD", {element("A", {img("http://x/_AA240_")})}, {{"id", "prodImageCell"}})},
         script.fetch());
    EXPECT_EQ(script.asked, QStringList());
}

TEST(StoreCover, OnlyTheFirstAnchorAndItsFirstImageCount) {
    FetchScript script;
    const Dom good = img("http://x/_AA240_", {{"id", "prodImage"}});
    const DomAttributes id = {{"id", "prodImageCell"}};
    read({element("TD", {a("x"), element("A", {good})}, id),
          element("TD", {element("A", {img("y"), good})}, id),
          element("TD", {element("DIV", {element("A", {good})})}, id), element("TD", {good}, id),
          element("TD", {element("A", {element("SPAN", {good})})}, id)},
         script.fetch());
    EXPECT_EQ(script.asked, QStringList());
}

TEST(StorePage, NeverHasGenres) {
    EXPECT_EQ(read({div("info", {h5("Genre:"), a("Drama")}), list({item({b("Genre:"), a("Drama")})})}).genres,
              std::nullopt);
}

} // namespace
} // namespace velmora::test
