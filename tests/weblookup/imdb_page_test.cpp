#include "weblookup/detail/imdb_page.h"

#include "dom_builder.h"
#include "fetch_script.h"

#include "support/stream_capture.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

FormFillInfo readFilm(const Doms& children, const ImageFetch& fetch = FetchScript().fetch()) {
    FormFillInfo info;
    readImdbPage(*page(children), fetch, info);
    return info;
}

FormFillInfo readInfo(const Doms& children) {
    return readFilm({div("info", children)});
}

std::string logOfFilm(const Doms& children) {
    StreamCapture log;
    readFilm(children);
    return log.text();
}

TEST(ImdbPage, WithoutAnythingKnownLeavesEverySlotEmpty) {
    const FormFillInfo info = readFilm({element("HTML", {element("BODY", {text("hello")})})});
    EXPECT_FALSE(info.title || info.cast || info.directors || info.description || info.year || info.genres ||
                 info.rating || info.releaseDate);
    EXPECT_TRUE(info.coverArt.isNull());
}

TEST(ImdbPage, WithoutATitleElementLogsNothing) {
    EXPECT_EQ("", logOfFilm({element("P", {text("x")})}));
}

// Title

TEST(ImdbTitle, EndsBeforeTheLastBracketAndKeepsItsTrailingBlank) {
    EXPECT_EQ(QString("Some Film "), readFilm({title("Some Film (2005)")}).title);
    EXPECT_EQ(QString("Film (Vol. 2) "), readFilm({title("Film (Vol. 2) (2005)")}).title);
    EXPECT_EQ(QString("Alpha (1999) "), readFilm({title("Alpha (1999) (V)")}).title);
}

TEST(ImdbTitle, WithoutABracketIsTheWholeText) {
    EXPECT_EQ(QString("\n Some Film \n"), readFilm({title("\n Some Film \n")}).title);
}

TEST(ImdbTitle, OfOnlyAYearIsAnEmptyText) {
    EXPECT_EQ(QString(""), readFilm({title("(1984)")}).title);
}

TEST(ImdbTitle, KeepsLettersOfAnyScript) {
    EXPECT_EQ(QString::fromUtf8("Äpfel 映画 😀 "),
              readFilm({title(QString::fromUtf8("Äpfel 映画 😀 (2005)"))}).title);
}

TEST(ImdbTitle, IsThatOfTheFirstTitleElementEvenWhenItHasNoChild) {
    EXPECT_EQ(QString("One"), readFilm({title("One"), title("Two")}).title);
    EXPECT_EQ(std::nullopt, readFilm({element("TITLE"), title("Two")}).title);
}

TEST(ImdbTitle, IsNothingWhenTheFirstChildHasNoText) {
    EXPECT_EQ(std::nullopt, readFilm({element("TITLE", {element("B", {text("x")}), text("y")})}).title);
    EXPECT_EQ("", logOfFilm({element("TITLE", {element("B", {text("x")}), text("y")})}));
}

TEST(ImdbTitle, IsOnlyTheFirstOfTwoTextNodes) {
    EXPECT_EQ(QString("One "), readFilm({element("TITLE", {text("One "), text("Two (2005)")})}).title);
}

TEST(ImdbTitle, IsLoggedAsThePageHasIt) {
    EXPECT_EQ("<title> tag has \"Some %1 %s Film (2005)\"\n", logOfFilm({title("Some %1 %s Film (2005)")}));
}

// Information sections

TEST(ImdbSection, NeedsTheExactClass) {
    for (const char* const name : {"info main", " info", "info ", "Info", "information", ""}) {
        EXPECT_EQ(std::nullopt, readFilm({div(name, {h5("Genre:"), a("Drama")})}).genres) << name;
    }
}

TEST(ImdbSection, IsAnHtmlElement) {
    EXPECT_EQ(std::nullopt,
              readFilm({withClass(foreignElement("div", {h5("Genre:"), a("Drama")}), "info")}).genres);
}

TEST(ImdbSection, IsADivOnly) {
    EXPECT_EQ(std::nullopt,
              readFilm({withClass(element("SPAN", {h5("Genre:"), a("Drama")}), "info")}).genres);
}

TEST(ImdbSection, IsFoundInsideOthers) {
    EXPECT_EQ(QStringList({"Drama"}),
              readFilm({div("x", {div("info", {div("info", {h5("Genre:"), a("Drama")})})})}).genres);
}

TEST(ImdbSection, LooksAtDirectChildrenOnly) {
    EXPECT_EQ(std::nullopt, readInfo({element("P", {h5("Genre:"), a("Drama")})}).genres);
}

TEST(ImdbSection, HeadingMayBeWrittenInAnyCase) {
    EXPECT_EQ(QStringList({"Drama"}), readInfo({element("h5", {text("Genre:")}), a("Drama")}).genres);
}

TEST(ImdbSection, OtherHeadingsAreIgnored) {
    EXPECT_EQ(std::nullopt, readInfo({element("H4", {text("Genre:")}), a("Drama")}).genres);
}

TEST(ImdbHeading, IsSkippedUnlessItsFirstChildIsExactlyText) {
    EXPECT_EQ(std::nullopt, readInfo({element("H5", {b("Genre:")}), a("Drama")}).genres);
    EXPECT_EQ(std::nullopt, readInfo({element("H5", {comment(""), text("Genre:")}), a("Drama")}).genres);
    EXPECT_EQ(std::nullopt, readInfo({element("H5", {cdata("Genre:")}), a("Drama")}).genres);
    EXPECT_EQ(std::nullopt, readInfo({element("H5"), a("Drama")}).genres);
}

TEST(ImdbHeading, LabelMayStandAnywhereInTheText) {
    EXPECT_EQ(QStringList({"Drama"}), readInfo({h5("\n The Genre: of it"), a("Drama")}).genres);
}

TEST(ImdbHeading, LabelIsCaseSensitive) {
    EXPECT_EQ(std::nullopt, readInfo({h5("genre:"), a("Drama")}).genres);
}

TEST(ImdbHeading, FirstLabelInTheOrderOfTheRulesDecidesNotTheFirstInTheText) {
    const FormFillInfo both = readInfo({h5("Genre: Director:"), a("A")});
    EXPECT_EQ(QStringList({"A"}), both.directors);
    EXPECT_EQ(std::nullopt, both.genres);
    const FormFillInfo date = readInfo({h5("Genre: Release Date:"), text("1 May 2005"), a("A")});
    EXPECT_EQ(QDate(2005, 5, 1), date.releaseDate);
    EXPECT_EQ(std::nullopt, date.genres);
    const FormFillInfo genre = readInfo({h5("Plot Outline: Genre:"), text("t"), a("A")});
    EXPECT_EQ(QStringList({"A"}), genre.genres);
    EXPECT_EQ(std::nullopt, genre.description);
    const FormFillInfo plot = readInfo({h5("Certification: Plot Outline:"), text("t"), a("USA:R")});
    EXPECT_EQ(QString("t"), plot.description);
    EXPECT_EQ(std::nullopt, plot.rating);
}

TEST(ImdbDirectors, AreTrimmedNames) {
    EXPECT_EQ(QStringList({"One", "Two"}), readInfo({h5("Director:"), a(" One "), a("Two\n")}).directors);
}

TEST(ImdbDirectors, ArePluralNever) {
    EXPECT_EQ(std::nullopt, readInfo({h5("Directors:"), a("One")}).directors);
}

TEST(ImdbDirectors, RunOnOverTheNextHeading) {
    EXPECT_EQ(QStringList({"One", "Drama"}),
              readInfo({h5("Director:"), a("One"), h5("Genre:"), a("Drama")}).directors);
}

TEST(ImdbDirectors, LastHeadingWinsEvenWithNothing) {
    EXPECT_EQ(std::nullopt, readInfo({h5("Director:"), a("One"), h5("Director:")}).directors);
    EXPECT_EQ(QStringList({"Two"}), readInfo({h5("Director:"), h5("Director:"), a("Two")}).directors);
}

// Release date

TEST(ImdbReleaseDate, TakesTheFirstThreePartsAndTheYearOfThem) {
    const FormFillInfo info = readInfo({h5("Release Date:"), text("\n12 May 2005 (USA)\n"), a("more")});
    EXPECT_EQ(QDate(2005, 5, 12), info.releaseDate);
    EXPECT_EQ(QString("2005"), info.year);
}

TEST(ImdbReleaseDate, IsTheSameInAnyLocaleOfTheProgram) {
    QLocale::setDefault(QLocale(QLocale::German));
    const FormFillInfo info = readInfo({h5("Release Date:"), text("3 October 1990")});
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(QDate(1990, 10, 3), info.releaseDate);
}

TEST(ImdbReleaseDate, AcceptsALeadingZeroAndASmallMonth) {
    EXPECT_EQ(QDate(2005, 5, 5), readInfo({h5("Release Date:"), text("05 may 2005")}).releaseDate);
}

TEST(ImdbReleaseDate, RefusesWhatIsNoDate) {
    for (const char* const bad :
         {"May 2005", "12 Mai 2005", "31 February 2005", "12 May 05", "0 May 2005", "12  May 2005",
          "12 May, 2005", "May 12 2005", "12 Dec 2005", "12 May -2005", ""}) {
        const FormFillInfo info = readInfo({h5("Release Date:"), text(bad)});
        EXPECT_EQ(std::nullopt, info.releaseDate) << bad;
        EXPECT_EQ(std::nullopt, info.year) << bad;
    }
}

TEST(ImdbReleaseDate, SplitsAtBlanksOnly) {
    EXPECT_EQ(std::nullopt, readInfo({h5("Release Date:"), text("12\tMay 2005")}).releaseDate);
    EXPECT_EQ(std::nullopt, readInfo({h5("Release Date:"), text(QString("12\u00a0May 2005 x"))}).releaseDate);
}

TEST(ImdbReleaseDate, ReadsOnlyTheFirstTextNodeEvenWhenItIsBlank) {
    EXPECT_EQ(std::nullopt,
              readInfo({h5("Release Date:"), text("\n"), element("I"), text("12 May 2005")}).releaseDate);
}

TEST(ImdbReleaseDate, FindsTheTextBehindElements) {
    EXPECT_EQ(QDate(2005, 5, 12),
              readInfo({h5("Release Date:"), br(), comment("x"), text("12 May 2005")}).releaseDate);
}

TEST(ImdbReleaseDate, BadLaterDateClearsTheDateAndKeepsTheYear) {
    const FormFillInfo info =
        readInfo({h5("Release Date:"), text("12 May 2005"), h5("Release Date:"), text("May 2006")});
    EXPECT_EQ(std::nullopt, info.releaseDate);
    EXPECT_EQ(QString("2005"), info.year);
}

TEST(ImdbReleaseDate, WithoutAnyTextClearsTheDateAndKeepsTheYear) {
    const FormFillInfo info =
        readInfo({h5("Release Date:"), text("12 May 2005"), h5("Release Date:"), a("12 May 2006")});
    EXPECT_EQ(std::nullopt, info.releaseDate);
    EXPECT_EQ(QString("2005"), info.year);
}

TEST(ImdbReleaseDate, LaterGoodDateWins) {
    const FormFillInfo info =
        readInfo({h5("Release Date:"), text("12 May 2005"), h5("Release Date:"), text("1 June 2006")});
    EXPECT_EQ(QDate(2006, 6, 1), info.releaseDate);
    EXPECT_EQ(QString("2006"), info.year);
}

// Genres

TEST(ImdbGenres, AreUntrimmedWithoutMore) {
    EXPECT_EQ(QStringList({"Drama", " Thriller "}),
              readInfo({h5("Genre:"), a("Drama"), text(" / "), a(" Thriller "), a("more")}).genres);
}

TEST(ImdbGenres, SkipOnlyTheExactWord) {
    EXPECT_EQ(QStringList({"More", " more", "more..."}),
              readInfo({h5("Genre:"), a("More"), a(" more"), a("more"), a("more...")}).genres);
}

TEST(ImdbGenres, OfOnlyMoreAreNothing) {
    EXPECT_EQ(std::nullopt, readInfo({h5("Genre:"), a("more")}).genres);
}

TEST(ImdbGenres, RunOnOverTheNextHeading) {
    EXPECT_EQ(QStringList({"Drama", "USA:R"}),
              readInfo({h5("Genre:"), a("Drama"), h5("Certification:"), a("USA:R")}).genres);
}

TEST(ImdbGenres, TakeTheFirstDirectTextOfAnAnchor) {
    EXPECT_EQ(
        QStringList({"Drama"}),
        readInfo({h5("Genre:"), element("A", {b("no"), text("Drama")}), element("A", {b("no")})}).genres);
}

TEST(ImdbGenres, LastHeadingWinsEvenWithNothing) {
    EXPECT_EQ(std::nullopt, readInfo({h5("Genre:"), a("Drama"), h5("Genre:")}).genres);
}

// Plot

TEST(ImdbPlot, IsTheFirstTextTrimmed) {
    EXPECT_EQ(QString("A man."),
              readInfo({h5("Plot Outline:"), a("x"), text("\n A man. \n"), text("More")}).description);
}

TEST(ImdbPlot, OfBlanksIsAnEmptyText) {
    EXPECT_EQ(QString(""), readInfo({h5("Plot Outline:"), text(" \n"), a("x"), text("A man.")}).description);
}

TEST(ImdbPlot, IsNothingWithoutText) {
    EXPECT_EQ(std::nullopt, readInfo({h5("Plot Outline:"), a("A man."), cdata("x")}).description);
}

TEST(ImdbPlot, LastHeadingWinsEvenWithNothing) {
    EXPECT_EQ(std::nullopt, readInfo({h5("Plot Outline:"), text("A man."), h5("Plot Outline:")}).description);
}

// Certification

TEST(ImdbCertification, IsTheFirstOfTheCountry) {
    EXPECT_EQ(QString("PG-13"),
              readInfo({h5("Certification:"), a("Canada:14A"), a("USA:PG-13"), a("USA:R")}).rating);
}

TEST(ImdbCertification, IsUntrimmedAndMayBeEmpty) {
    EXPECT_EQ(QString(" R "), readInfo({h5("Certification:"), a("USA: R ")}).rating);
    EXPECT_EQ(QString(""), readInfo({h5("Certification:"), a("USA:")}).rating);
}

TEST(ImdbCertification, UnratedIsNotRated) {
    EXPECT_EQ(QString("NR"), readInfo({h5("Certification:"), a("USA:Unrated")}).rating);
    EXPECT_EQ(QString("unrated"), readInfo({h5("Certification:"), a("USA:unrated")}).rating);
    EXPECT_EQ(QString("Unrated "), readInfo({h5("Certification:"), a("USA:Unrated "), a("USA:R")}).rating);
}

TEST(ImdbCertification, MustStartWithTheCountry) {
    EXPECT_EQ(std::nullopt,
              readInfo({h5("Certification:"), a(" USA:R"), a("usa:R"), a("Canada USA:R")}).rating);
}

TEST(ImdbCertification, LooksAtEveryAnchorsFirstDirectText) {
    EXPECT_EQ(QString("R"), readInfo({h5("Certification:"), element("A", {b("USA:PG")}),
                                      element("A", {b("x"), text("USA:R")})})
                                .rating);
}

TEST(ImdbCertification, LastHeadingWinsEvenWithNothing) {
    EXPECT_EQ(std::nullopt,
              readInfo({h5("Certification:"), a("USA:R"), h5("Certification:"), a("UK:15")}).rating);
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
    EXPECT_EQ(both, readInfo({castTable({actorRow("One"), actorRow("Two")})}).cast);
    EXPECT_EQ(both,
              readInfo({castTable({element("TBODY", {actorRow("One"), text("\n"), actorRow("Two")})})}).cast);
}

TEST(ImdbCast, TableNeedsTheExactClassAndPlace) {
    EXPECT_EQ(std::nullopt, readInfo({withClass(element("TABLE", {actorRow("One")}), "cast list")}).cast);
    EXPECT_EQ(std::nullopt, readInfo({element("P", {castTable({actorRow("One")})})}).cast);
    EXPECT_EQ(std::nullopt, readFilm({castTable({actorRow("One")})}).cast);
}

TEST(ImdbCast, NamesAreUntrimmed) {
    EXPECT_EQ(QStringList({" One\n"}), readInfo({castTable({actorRow(" One\n")})}).cast);
}

TEST(ImdbCast, ReadsEveryAnchorOfTheSecondCellOnly) {
    EXPECT_EQ(
        QStringList({"2a", "2b"}),
        readInfo({castTable({row({cell({a("1")}), cell({a("2a"), text("/"), a("2b")}), cell({a("3")})})})})
            .cast);
}

TEST(ImdbCast, SkipsRowsWithFewerThanTwoCells) {
    EXPECT_EQ(QStringList({"One"}),
              readInfo({castTable({row({cell({a("1")})}), row({}), actorRow("One")})}).cast);
}

TEST(ImdbCast, CountsHeaderCells) {
    EXPECT_EQ(
        QStringList({"One"}),
        readInfo({castTable({row({element("TH", {a("h")}), cell({a("One")}), cell({a("no")})})})}).cast);
    EXPECT_EQ(QStringList({"h"}),
              readInfo({castTable({row({cell({a("1")}), element("TH", {a("h")}), cell({a("no")})})})}).cast);
}

TEST(ImdbCast, AnchorNeedsTextAsItsFirstChild) {
    const Doms anchors = {element("A", {b("no")}), element("A", {comment(""), text("no")}), element("A"),
                          element("A", {text("yes"), b("x")}), element("SPAN", {a("no")})};
    EXPECT_EQ(QStringList({"yes"}), readInfo({castTable({row({cell({}), cell(anchors)})})}).cast);
}

TEST(ImdbCast, OfNobodyIsNothing) {
    EXPECT_EQ(std::nullopt, readInfo({castTable({row({cell({}), cell({})})})}).cast);
}

TEST(ImdbCast, WalkMovesIntoTheFirstTbodyForGood) {
    EXPECT_EQ(QStringList({"before", "in"}),
              readInfo({castTable({actorRow("before"), element("tbody", {actorRow("in")}), actorRow("behind"),
                                   element("TBODY", {actorRow("second")})})})
                  .cast);
}

TEST(ImdbCast, EndsAtATbodyWithoutChildren) {
    EXPECT_EQ(QStringList({"before"}),
              readInfo({castTable({actorRow("before"), element("TBODY"), actorRow("behind")})}).cast);
}

TEST(ImdbCast, GoesOneTbodyDeep) {
    EXPECT_EQ(
        QStringList({"in"}),
        readInfo({castTable({element("TBODY", {element("TBODY", {actorRow("deep")}), actorRow("in")})})})
            .cast);
}

TEST(ImdbCast, IgnoresRowsInOtherSections) {
    EXPECT_EQ(QStringList({"One"}),
              readInfo({castTable({element("THEAD", {actorRow("head")}), actorRow("One")})}).cast);
}

TEST(ImdbCast, LastTableWinsEvenWithNothing) {
    EXPECT_EQ(std::nullopt,
              readFilm({div("info", {castTable({actorRow("One")})}), div("info", {castTable({})})}).cast);
}

// Poster

Dom poster(const Doms& children) {
    return element("A", children, {{"name", "poster"}});
}

TEST(ImdbPoster, IsFetchedFromItsResolvedAddress) {
    FetchScript script{{{"http://x/1.jpg", FetchScript::picture(1)}}, {}};
    EXPECT_EQ(
        1,
        readFilm({element("P", {poster({img("http://x/1.jpg")})})}, script.fetch()).coverArt.size().width());
    EXPECT_EQ(QStringList({"http://x/1.jpg"}), script.asked);
}

TEST(ImdbPoster, AnchorNeedsTheExactName) {
    FetchScript script;
    readFilm({element("A", {img("http://x/1")}, {{"name", "Poster"}}), element("A", {img("http://x/2")}),
              element("A", {img("http://x/3")}, {{"id", "poster"}})},
             script.fetch());
    EXPECT_EQ(QStringList(), script.asked);
}

TEST(ImdbPoster, LooksAtDirectImagesOnly) {
    FetchScript script;
    readFilm({poster({element("SPAN", {img("http://x/1")}), text("x")})}, script.fetch());
    EXPECT_EQ(QStringList(), script.asked);
}

TEST(ImdbPoster, FailedFetchGoesOnToTheNextImageAndSuccessLeavesTheAnchor) {
    FetchScript script{{{"http://x/2", FetchScript::picture(2)}}, {}};
    EXPECT_EQ(2, readFilm({poster({img("http://x/1"), text(" "), img("http://x/2"), img("http://x/3")})},
                          script.fetch())
                     .coverArt.size()
                     .width());
    EXPECT_EQ(QStringList({"http://x/1", "http://x/2"}), script.asked);
}

TEST(ImdbPoster, EveryAnchorIsTriedAndTheLastPictureStays) {
    FetchScript script{{{"http://x/1", FetchScript::picture(1)}, {"http://x/2", FetchScript::picture(2)}},
                       {}};
    EXPECT_EQ(2, readFilm({poster({img("http://x/1")}), poster({img("http://x/2")})}, script.fetch())
                     .coverArt.size()
                     .width());
    EXPECT_EQ(QStringList({"http://x/1", "http://x/2"}), script.asked);
}

TEST(ImdbPoster, LaterFailureDropsAnEarlierPicture) {
    FetchScript script{{{"http://x/1", FetchScript::picture(1)}}, {}};
    EXPECT_TRUE(readFilm({poster({img("http://x/1")}), poster({img("http://x/2")})}, script.fetch())
                    .coverArt.isNull());
}

TEST(ImdbPoster, AddressThatMakesNoUrlIsNoFetchAndKeepsTheEarlierPicture) {
    FetchScript script{{{"http://x/1", FetchScript::picture(1)}}, {}};
    EXPECT_EQ(1,
              readFilm({poster({img("http://x/1")}), poster({img("http://[bad/"), img("")})}, script.fetch())
                  .coverArt.size()
                  .width());
    EXPECT_EQ(QStringList({"http://x/1"}), script.asked);
}

TEST(ImdbPoster, AddressThatMakesNoUrlGoesOnToTheNextImage) {
    FetchScript script{{{"http://x/2", FetchScript::picture(2)}}, {}};
    EXPECT_EQ(2, readFilm({poster({img(""), img("http://x/2")})}, script.fetch()).coverArt.size().width());
}

TEST(ImdbPage, ReadsAllOfATitlePage) {
    FetchScript script{{{"http://x/p.jpg", FetchScript::picture(9)}}, {}};
    const FormFillInfo info = readFilm({title("Harbour Lights (2005)"), poster({img("http://x/p.jpg")}),
                                        div("info", {h5("Director:"), a("D. One")}),
                                        div("info", {h5("Release Date:"), text(" 12 May 2005 (USA) ")}),
                                        div("info", {h5("Genre:"), a("Drama"), a("more")}),
                                        div("info", {h5("Plot Outline:"), text(" Ships. ")}),
                                        div("info", {h5("Certification:"), a("USA:PG")}),
                                        div("info", {castTable({actorRow("A. One"), actorRow("B. Two")})})},
                                       script.fetch());
    EXPECT_EQ(QString("Harbour Lights "), info.title);
    EXPECT_EQ(QStringList({"A. One", "B. Two"}), info.cast);
    EXPECT_EQ(QStringList({"D. One"}), info.directors);
    EXPECT_EQ(QString("Ships."), info.description);
    EXPECT_EQ(QString("2005"), info.year);
    EXPECT_EQ(QStringList({"Drama"}), info.genres);
    EXPECT_EQ(QString("PG"), info.rating);
    EXPECT_EQ(9, info.coverArt.size().width());
    EXPECT_EQ(QDate(2005, 5, 12), info.releaseDate);
}

TEST(ImdbPage, TakesNoOtherNodeForAnElement) {
    const FormFillInfo info = readFilm(
        {noElement("title", {text("Wrong")}), title("True (2001)"),
         div("info",
             {noElement("h5", {text("Genre:")}), a("Drama"),
              withClass(element("TABLE", {noElement("tbody"),
                                          element("TR", {element("TD"), element("TD", {a("A. One")})})}),
                        "cast")})});
    EXPECT_EQ(QString("True "), info.title);
    EXPECT_EQ(QStringList({"A. One"}), info.cast);
    EXPECT_EQ(std::nullopt, info.genres);
}

} // namespace
} // namespace velmora::test
