#include "weblookup/detail/imdb_page.h"

#include "dom_builder.h"
#include "fetch_script.h"
#include "support/stream_capture.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

FormFillInfo read(const Doms& children, const ImageFetch& fetch = FetchScript().fetch()) {
    FormFillInfo info;
    readImdbPage(*page(children), fetch, info);
    return info;
}

FormFillInfo readInfo(const Doms& children) {
    return read({div("info", children)});
}

std::string logOf(const Doms& children) {
    StreamCapture log;
    read(children);
    return log.text();
}

TEST(ImdbPage, WithoutAnythingKnownLeavesEverySlotEmpty) {
    const FormFillInfo info = read({element("HTML", {element("BODY", {text("hello")})})});
    EXPECT_FALSE(info.title || info.cast || info.directors || info.description || info.year || info.genres ||
                 info.rating || info.releaseDate);
    EXPECT_TRUE(info.coverArt.isNull());
}

TEST(ImdbPage, WithoutATitleElementLogsNothing) {
    EXPECT_EQ(logOf({element("P", {text("x")})}), "");
}

// Title

TEST(ImdbTitle, EndsBeforeTheLastBracketAndKeepsItsTrailingBlank) {
    EXPECT_EQ(read({title("Some Film (2005)")}).title, QString("Some Film "));
    EXPECT_EQ(read({title("Film (Vol. 2) (2005)")}).title, QString("Film (Vol. 2) "));
    EXPECT_EQ(read({title("Alpha (1999) (V)")}).title, QString("Alpha (1999) "));
}

TEST(ImdbTitle, WithoutABracketIsTheWholeText) {
    EXPECT_EQ(read({title("\n Some Film \n")}).title, QString("\n Some Film \n"));
}

TEST(ImdbTitle, OfOnlyAYearIsAnEmptyText) {
    EXPECT_EQ(read({title("(1984)")}).title, QString(""));
}

TEST(ImdbTitle, KeepsLettersOfAnyScript) {
    EXPECT_EQ(read({title(QString::fromUtf8("Äpfel 映画 😀 (2005)"))}).title,
              QString::fromUtf8("Äpfel 映画 😀 "));
}

TEST(ImdbTitle, IsThatOfTheFirstTitleElementEvenWhenItHasNoChild) {
    EXPECT_EQ(read({title("One"), title("Two")}).title, QString("One"));
    EXPECT_EQ(read({element("TITLE"), title("Two")}).title, std::nullopt);
}

TEST(ImdbTitle, IsNothingWhenTheFirstChildHasNoText) {
    EXPECT_EQ(read({element("TITLE", {element("B", {text("x")}), text("y")})}).title, std::nullopt);
    EXPECT_EQ(logOf({element("TITLE", {element("B", {text("x")}), text("y")})}), "");
}

TEST(ImdbTitle, IsOnlyTheFirstOfTwoTextNodes) {
    EXPECT_EQ(read({element("TITLE", {text("One "), text("Two (2005)")})}).title, QString("One "));
}

TEST(ImdbTitle, IsLoggedAsThePageHasIt) {
    EXPECT_EQ(logOf({title("Some %1 %s Film (2005)")}), "<title> tag has \"Some %1 %s Film (2005)\"\n");
}

// Information sections

TEST(ImdbSection, NeedsTheExactClass) {
    for (const char* const name : {"info main", " info", "info ", "Info", "information", ""}) {
        EXPECT_EQ(read({div(name, {h5("Genre:"), a("Drama")})}).genres, std::nullopt) << name;
    }
}

TEST(ImdbSection, IsAnHtmlElement) {
    EXPECT_EQ(read({withClass(foreignElement("div", {h5("Genre:"), a("Drama")}), "info")}).genres,
              std::nullopt);
}

TEST(ImdbSection, IsADivOnly) {
    EXPECT_EQ(read({withClass(element("SPAN", {h5("Genre:"), a("Drama")}), "info")}).genres, std::nullopt);
}

TEST(ImdbSection, IsFoundInsideOthers) {
    EXPECT_EQ(read({div("x", {div("info", {div("info", {h5("Genre:"), a("Drama")})})})}).genres,
              QStringList({"Drama"}));
}

TEST(ImdbSection, LooksAtDirectChildrenOnly) {
    EXPECT_EQ(readInfo({element("P", {h5("Genre:"), a("Drama")})}).genres, std::nullopt);
}

TEST(ImdbSection, HeadingMayBeWrittenInAnyCase) {
    EXPECT_EQ(readInfo({element("h5", {text("Genre:")}), a("Drama")}).genres, QStringList({"Drama"}));
}

TEST(ImdbSection, OtherHeadingsAreIgnored) {
    EXPECT_EQ(readInfo({element("H4", {text("Genre:")}), a("Drama")}).genres, std::nullopt);
}

TEST(ImdbHeading, IsSkippedUnlessItsFirstChildIsExactlyText) {
    EXPECT_EQ(readInfo({element("H5", {b("Genre:")}), a("Drama")}).genres, std::nullopt);
    EXPECT_EQ(readInfo({element("H5", {comment(""), text("Genre:")}), a("Drama")}).genres, std::nullopt);
    EXPECT_EQ(readInfo({element("H5", {cdata("Genre:")}), a("Drama")}).genres, std::nullopt);
    EXPECT_EQ(readInfo({element("H5"), a("Drama")}).genres, std::nullopt);
}

TEST(ImdbHeading, LabelMayStandAnywhereInTheText) {
    EXPECT_EQ(readInfo({h5("\n The Genre: of it"), a("Drama")}).genres, QStringList({"Drama"}));
}

TEST(ImdbHeading, LabelIsCaseSensitive) {
    EXPECT_EQ(readInfo({h5("genre:"), a("Drama")}).genres, std::nullopt);
}

TEST(ImdbHeading, FirstLabelInTheOrderOfTheRulesDecidesNotTheFirstInTheText) {
    const FormFillInfo both = readInfo({h5("Genre: Director:"), a("A")});
    EXPECT_EQ(both.directors, QStringList({"A"}));
    EXPECT_EQ(both.genres, std::nullopt);
    const FormFillInfo date = readInfo({h5("Genre: Release Date:"), text("1 May 2005"), a("A")});
    EXPECT_EQ(date.releaseDate, QDate(2005, 5, 1));
    EXPECT_EQ(date.genres, std::nullopt);
    const FormFillInfo genre = readInfo({h5("Plot Outline: Genre:"), text("t"), a("A")});
    EXPECT_EQ(genre.genres, QStringList({"A"}));
    EXPECT_EQ(genre.description, std::nullopt);
    const FormFillInfo plot = readInfo({h5("Certification: Plot Outline:"), text("t"), a("USA:R")});
    EXPECT_EQ(plot.description, QString("t"));
    EXPECT_EQ(plot.rating, std::nullopt);
}

TEST(ImdbDirectors, AreTrimmedNames) {
    EXPECT_EQ(readInfo({h5("Director:"), a(" One "), a("Two\n")}).directors, QStringList({"One", "Two"}));
}

TEST(ImdbDirectors, ArePluralNever) {
    EXPECT_EQ(readInfo({h5("Directors:"), a("One")}).directors, std::nullopt);
}

TEST(ImdbDirectors, RunOnOverTheNextHeading) {
    EXPECT_EQ(readInfo({h5("Director:"), a("One"), h5("Genre:"), a("Drama")}).directors,
              QStringList({"One", "Drama"}));
}

TEST(ImdbDirectors, LastHeadingWinsEvenWithNothing) {
    EXPECT_EQ(readInfo({h5("Director:"), a("One"), h5("Director:")}).directors, std::nullopt);
    EXPECT_EQ(readInfo({h5("Director:"), h5("Director:"), a("Two")}).directors, QStringList({"Two"}));
}

// Release date

TEST(ImdbReleaseDate, TakesTheFirstThreePartsAndTheYearOfThem) {
    const FormFillInfo info = readInfo({h5("Release Date:"), text("\n12 May 2005 (USA)\n"), a("more")});
    EXPECT_EQ(info.releaseDate, QDate(2005, 5, 12));
    EXPECT_EQ(info.year, QString("2005"));
}

TEST(ImdbReleaseDate, IsTheSameInAnyLocaleOfTheProgram) {
    QLocale::setDefault(QLocale(QLocale::German));
    const FormFillInfo info = readInfo({h5("Release Date:"), text("3 October 1990")});
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(info.releaseDate, QDate(1990, 10, 3));
}

TEST(ImdbReleaseDate, AcceptsALeadingZeroAndASmallMonth) {
    EXPECT_EQ(readInfo({h5("Release Date:"), text("05 may 2005")}).releaseDate, QDate(2005, 5, 5));
}

TEST(ImdbReleaseDate, RefusesWhatIsNoDate) {
    for (const char* const bad :
         {"May 2005", "12 Mai 2005", "31 February 2005", "12 May 05", "0 May 2005", "12  May 2005",
          "12 May, 2005", "May 12 2005", "12 Dec 2005", "12 May -2005", ""}) {
        const FormFillInfo info = readInfo({h5("Release Date:"), text(bad)});
        EXPECT_EQ(info.releaseDate, std::nullopt) << bad;
        EXPECT_EQ(info.year, std::nullopt) << bad;
    }
}

TEST(ImdbReleaseDate, SplitsAtBlanksOnly) {
    EXPECT_EQ(readInfo({h5("Release Date:"), text("12\tMay 2005")}).releaseDate, std::nullopt);
    EXPECT_EQ(readInfo({h5("Release Date:"), text(QString("12\u00a0May 2005 x"))}).releaseDate, std::nullopt);
}

TEST(ImdbReleaseDate, ReadsOnlyTheFirstTextNodeEvenWhenItIsBlank) {
    EXPECT_EQ(readInfo({h5("Release Date:"), text("\n"), element("I"), text("12 May 2005")}).releaseDate,
              std::nullopt);
}

TEST(ImdbReleaseDate, FindsTheTextBehindElements) {
    EXPECT_EQ(readInfo({h5("Release Date:"), br(), comment("x"), text("12 May 2005")}).releaseDate,
              QDate(2005, 5, 12));
}

TEST(ImdbReleaseDate, BadLaterDateClearsTheDateAndKeepsTheYear) {
    const FormFillInfo info =
        readInfo({h5("Release Date:"), text("12 May 2005"), h5("Release Date:"), text("May 2006")});
    EXPECT_EQ(info.releaseDate, std::nullopt);
    EXPECT_EQ(info.year, QString("2005"));
}

TEST(ImdbReleaseDate, WithoutAnyTextClearsTheDateAndKeepsTheYear) {
    const FormFillInfo info =
        readInfo({h5("Release Date:"), text("12 May 2005"), h5("Release Date:"), a("12 May 2006")});
    EXPECT_EQ(info.releaseDate, std::nullopt);
    EXPECT_EQ(info.year, QString("2005"));
}

TEST(ImdbReleaseDate, LaterGoodDateWins) {
    const FormFillInfo info =
        readInfo({h5("Release Date:"), text("12 May 2005"), h5("Release Date:"), text("1 June 2006")});
    EXPECT_EQ(info.releaseDate, QDate(2006, 6, 1));
    EXPECT_EQ(info.year, QString("2006"));
}

// Genres

TEST(ImdbGenres, AreUntrimmedWithoutMore) {
    EXPECT_EQ(readInfo({h5("Genre:"), a("Drama"), text(" / "), a(" Thriller "), a("more")}).genres,
              QStringList({"Drama", " Thriller "}));
}

TEST(ImdbGenres, SkipOnlyTheExactWord) {
    EXPECT_EQ(readInfo({h5("Genre:"), a("More"), a(" more"), a("more"), a("more...")}).genres,
              QStringList({"More", " more", "more..."}));
}

TEST(ImdbGenres, OfOnlyMoreAreNothing) {
    EXPECT_EQ(readInfo({h5("Genre:"), a("more")}).genres, std::nullopt);
}

TEST(ImdbGenres, RunOnOverTheNextHeading) {
    EXPECT_EQ(readInfo({h5("Genre:"), a("Drama"), h5("Certification:"), a("USA:R")}).genres,
              QStringList({"Drama", "USA:R"}));
}

TEST(ImdbGenres, TakeTheFirstDirectTextOfAnAnchor) {
    EXPECT_EQ(
        readInfo({h5("Genre:"), element("A", {b("no"), text("Drama")}), element("A", {b("no")})}).genres,
        QStringList({"Drama"}));
}

TEST(ImdbGenres, LastHeadingWinsEvenWithNothing) {
    EXPECT_EQ(readInfo({h5("Genre:"), a("Drama"), h5("Genre:")}).genres, std::nullopt);
}

// Plot

TEST(ImdbPlot, IsTheFirstTextTrimmed) {
    EXPECT_EQ(readInfo({h5("Plot Outline:"), a("x"), text("\n A man. \n"), text("More")}).description,
              QString("A man."));
}

TEST(ImdbPlot, OfBlanksIsAnEmptyText) {
    EXPECT_EQ(readInfo({h5("Plot Outline:"), text(" \n"), a("x"), text("A man.")}).description, QString(""));
}

TEST(ImdbPlot, IsNothingWithoutText) {
    EXPECT_EQ(readInfo({h5("Plot Outline:"), a("A man."), cdata("x")}).description, std::nullopt);
}

TEST(ImdbPlot, LastHeadingWinsEvenWithNothing) {
    EXPECT_EQ(readInfo({h5("Plot Outline:"), text("A man."), h5("Plot Outline:")}).description, std::nullopt);
}

// Certification

TEST(ImdbCertification, IsTheFirstOfTheCountry) {
    EXPECT_EQ(readInfo({h5("Certification:"), a("Canada:14A"), a("USA:PG-13"), a("USA:R")}).rating,
              QString("PG-13"));
}

TEST(ImdbCertification, IsUntrimmedAndMayBeEmpty) {
    EXPECT_EQ(readInfo({h5("Certification:"), a("USA: R ")}).rating, QString(" R "));
    EXPECT_EQ(readInfo({h5("Certification:"), a("USA:")}).rating, QString(""));
}

TEST(ImdbCertification, UnratedIsNotRated) {
    EXPECT_EQ(readInfo({h5("Certification:"), a("USA:Unrated")}).rating, QString("NR"));
    EXPECT_EQ(readInfo({h5("Certification:"), a("USA:unrated")}).rating, QString("unrated"));
    EXPECT_EQ(readInfo({h5("Certification:"), a("USA:Unrated "), a("USA:R")}).rating, QString("Unrated "));
}

TEST(ImdbCertification, MustStartWithTheCountry) {
    EXPECT_EQ(readInfo({h5("Certification:"), a(" USA:R"), a("usa:R"), a("Canada USA:R")}).rating,
              std::nullopt);
}

TEST(ImdbCertification, LooksAtEveryAnchorsFirstDirectText) {
    EXPECT_EQ(
        readInfo({h5("Certification:"), element("A", {b("USA:PG")}), element("A", {b("x"), text("USA:R")})})
            .rating,
        QString("R"));
}

TEST(ImdbCertification, LastHeadingWinsEvenWithNothing) {
    EXPECT_EQ(readInfo({h5("Certification:"), a("USA:R"), h5("Certification:"), a("UK:15")}).rating,
              std::nullopt);
}

// Cast

Dom row(const Doms& cells) {
    return element("TR", cells);
}
Dom cell(const Doms& children) {
    return element("TD", children);
}
Dom actorRow(const QString& name) {
    return row({cell({a("photo")}), cell({a(name)}), cell({text("role")})});
}
Dom castTable(const Doms& children) {
    return withClass(element("TABLE", children), "cast");
}

TEST(ImdbCast, IsTheSameWithAndWithoutATbody) {
    const QStringList both = {"One", "Two"};
    EXPECT_EQ(readInfo({castTable({actorRow("One"), actorRow("Two")})}).cast, both);
    EXPECT_EQ(readInfo({castTable({element("TBODY", {actorRow("One"), text("\n"), actorRow("Two")})})}).cast,
              both);
}

TEST(ImdbCast, TableNeedsTheExactClassAndPlace) {
    EXPECT_EQ(readInfo({withClass(element("TABLE", {actorRow("One")}), "cast list")}).cast, std::nullopt);
    EXPECT_EQ(readInfo({element("P", {castTable({actorRow("One")})})}).cast, std::nullopt);
    EXPECT_EQ(read({castTable({actorRow("One")})}).cast, std::nullopt);
}

TEST(ImdbCast, NamesAreUntrimmed) {
    EXPECT_EQ(readInfo({castTable({actorRow(" One\n")})}).cast, QStringList({" One\n"}));
}

TEST(ImdbCast, ReadsEveryAnchorOfTheSecondCellOnly) {
    EXPECT_EQ(
        readInfo({castTable({row({cell({a("1")}), cell({a("2a"), text("/"), a("2b")}), cell({a("3")})})})})
            .cast,
        QStringList({"2a", "2b"}));
}

TEST(ImdbCast, SkipsRowsWithFewerThanTwoCells) {
    EXPECT_EQ(readInfo({castTable({row({cell({a("1")})}), row({}), actorRow("One")})}).cast,
              QStringList({"One"}));
}

TEST(ImdbCast, CountsHeaderCells) {
    EXPECT_EQ(readInfo({castTable({row({element("TH", {a("h")}), cell({a("One")}), cell({a("no")})})})}).cast,
              QStringList({"One"}));
    EXPECT_EQ(readInfo({castTable({row({cell({a("1")}), element("TH", {a("h")}), cell({a("no")})})})}).cast,
              QStringList({"h"}));
}

TEST(ImdbCast, AnchorNeedsTextAsItsFirstChild) {
    const Doms anchors = {element("A", {b("no")}), element("A", {comment(""), text("no")}), element("A"),
                          element("A", {text("yes"), b("x")}), element("SPAN", {a("no")})};
    EXPECT_EQ(readInfo({castTable({row({cell({}), cell(anchors)})})}).cast, QStringList({"yes"}));
}

TEST(ImdbCast, OfNobodyIsNothing) {
    EXPECT_EQ(readInfo({castTable({row({cell({}), cell({})})})}).cast, std::nullopt);
}

TEST(ImdbCast, WalkMovesIntoTheFirstTbodyForGood) {
    EXPECT_EQ(readInfo({castTable({actorRow("before"), element("tbody", {actorRow("in")}), actorRow("behind"),
                                   element("TBODY", {actorRow("second")})})})
                  .cast,
              QStringList({"before", "in"}));
}

TEST(ImdbCast, EndsAtATbodyWithoutChildren) {
    EXPECT_EQ(readInfo({castTable({actorRow("before"), element("TBODY"), actorRow("behind")})}).cast,
              QStringList({"before"}));
}

TEST(ImdbCast, GoesOneTbodyDeep) {
    EXPECT_EQ(
        readInfo({castTable({element("TBODY", {element("TBODY", {actorRow("deep")}), actorRow("in")})})})
            .cast,
        QStringList({"in"}));
}

TEST(ImdbCast, IgnoresRowsInOtherSections) {
    EXPECT_EQ(readInfo({castTable({element("THEAD", {actorRow("head")}), actorRow("One")})}).cast,
              QStringList({"One"}));
}

TEST(ImdbCast, LastTableWinsEvenWithNothing) {
    EXPECT_EQ(read({div("info", {castTable({actorRow("One")})}), div("info", {castTable({})})}).cast,
              std::nullopt);
}

// Poster

Dom poster(const Doms& children) {
    return element("A", children, {{"name", "poster"}});
}

TEST(ImdbPoster, IsFetchedFromItsResolvedAddress) {
    FetchScript script{{{"http://x/1.jpg", FetchScript::picture(1)}}, {}};
    EXPECT_EQ(read({element("P", {poster({img("http://x/1.jpg")})})}, script.fetch()).coverArt.size().width(),
              1);
    EXPECT_EQ(script.asked, QStringList({"http://x/1.jpg"}));
}

TEST(ImdbPoster, AnchorNeedsTheExactName) {
    FetchScript script;
    read({element("A", {img("http://x/1")}, {{"name", "Poster"}}), element("A", {img("http://x/2")}),
          element("A", {img("http://x/3")}, {{"id", "poster"}})},
         script.fetch());
    EXPECT_EQ(script.asked, QStringList());
}

TEST(ImdbPoster, LooksAtDirectImagesOnly) {
    FetchScript script;
    read({poster({element("SPAN", {img("http://x/1")}), text("x")})}, script.fetch());
    EXPECT_EQ(script.asked, QStringList());
}

TEST(ImdbPoster, FailedFetchGoesOnToTheNextImageAndSuccessLeavesTheAnchor) {
    FetchScript script{{{"http://x/2", FetchScript::picture(2)}}, {}};
    EXPECT_EQ(
        read({poster({img("http://x/1"), text(" "), img("http://x/2"), img("http://x/3")})}, script.fetch())
            .coverArt.size()
            .width(),
        2);
    EXPECT_EQ(script.asked, QStringList({"http://x/1", "http://x/2"}));
}

TEST(ImdbPoster, EveryAnchorIsTriedAndTheLastPictureStays) {
    FetchScript script{{{"http://x/1", FetchScript::picture(1)}, {"http://x/2", FetchScript::picture(2)}},
                       {}};
    EXPECT_EQ(read({poster({img("http://x/1")}), poster({img("http://x/2")})}, script.fetch())
                  .coverArt.size()
                  .width(),
              2);
    EXPECT_EQ(script.asked, QStringList({"http://x/1", "http://x/2"}));
}

TEST(ImdbPoster, LaterFailureDropsAnEarlierPicture) {
    FetchScript script{{{"http://x/1", FetchScript::picture(1)}}, {}};
    EXPECT_TRUE(
        read({poster({img("http://x/1")}), poster({img("http://x/2")})}, script.fetch()).coverArt.isNull());
}

TEST(ImdbPoster, AddressThatMakesNoUrlIsNoFetchAndKeepsTheEarlierPicture) {
    FetchScript script{{{"http://x/1", FetchScript::picture(1)}}, {}};
    EXPECT_EQ(read({poster({img("http://x/1")}), poster({img("http://[bad/"), img("")})}, script.fetch())
                  .coverArt.size()
                  .width(),
              1);
    EXPECT_EQ(script.asked, QStringList({"http://x/1"}));
}

TEST(ImdbPoster, AddressThatMakesNoUrlGoesOnToTheNextImage) {
    FetchScript script{{{"http://x/2", FetchScript::picture(2)}}, {}};
    EXPECT_EQ(read({poster({img(""), img("http://x/2")})}, script.fetch()).coverArt.size().width(), 2);
}

TEST(ImdbPage, ReadsAllOfATitlePage) {
    FetchScript script{{{"http://x/p.jpg", FetchScript::picture(9)}}, {}};
    const FormFillInfo info = read({title("Harbour Lights (2005)"), poster({img("http://x/p.jpg")}),
                                    div("info", {h5("Director:"), a("D. One")}),
                                    div("info", {h5("Release Date:"), text(" 12 May 2005 (USA) ")}),
                                    div("info", {h5("Genre:"), a("Drama"), a("more")}),
                                    div("info", {h5("Plot Outline:"), text(" Ships. ")}),
                                    div("info", {h5("Certification:"), a("USA:PG")}),
                                    div("info", {castTable({actorRow("A. One"), actorRow("B. Two")})})},
                                   script.fetch());
    EXPECT_EQ(info.title, QString("Harbour Lights "));
    EXPECT_EQ(info.cast, QStringList({"A. One", "B. Two"}));
    EXPECT_EQ(info.directors, QStringList({"D. One"}));
    EXPECT_EQ(info.description, QString("Ships."));
    EXPECT_EQ(info.year, QString("2005"));
    EXPECT_EQ(info.genres, QStringList({"Drama"}));
    EXPECT_EQ(info.rating, QString("PG"));
    EXPECT_EQ(info.coverArt.size().width(), 9);
    EXPECT_EQ(info.releaseDate, QDate(2005, 5, 12));
}

TEST(ImdbPage, TakesNoOtherNodeForAnElement) {
    const FormFillInfo info =
        read({noElement("title", {text("Wrong")}), title("True (2001)"),
              div("info",
                  {noElement("h5", {text("Genre:")}), a("Drama"),
                   withClass(element("TABLE", {noElement("tbody"),
                                               element("TR", {element("TD"), element("TD", {a("A. One")})})}),
                             "cast")})});
    EXPECT_EQ(info.title, QString("True "));
    EXPECT_EQ(info.cast, QStringList({"A. One"}));
    EXPECT_EQ(info.genres, std::nullopt);
}

} // namespace
} // namespace velmora::test
