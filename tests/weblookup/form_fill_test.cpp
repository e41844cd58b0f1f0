#include "weblookup/FormFill.h"

#include "dom_builder.h"
#include "fetch_script.h"

#include "platform/web/web_view.h"
#include "support/stream_capture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

namespace velmora::test {
namespace {

class FixedFrame : public WebFrame {
public:
    explicit FixedFrame(std::shared_ptr<const DomDocument> document) : document_(std::move(document)) {}
    std::shared_ptr<const DomDocument> domDocument() override { return document_; }

private:
    std::shared_ptr<const DomDocument> document_;
};

std::unique_ptr<FormFill> fillOf(const std::shared_ptr<const DomDocument>& document, int type,
                                 const ImageFetch& fetch = FetchScript().fetch()) {
    FixedFrame frame(document);
    return FormFill::initWithWebFrame(frame, type, fetch);
}

TEST(FormFill, CanNotBeMadeWithoutADocument) {
    EXPECT_EQ(nullptr, fillOf(nullptr, 0));
}

TEST(FormFill, TypeChoosesTheExtractor) {
    const auto document = page({title("Shop: Film (2005): DVD")});
    EXPECT_EQ(QString("Shop: Film "), fillOf(document, 0)->formFillInfo()->title);
    EXPECT_EQ(QString("Film (2005)"), fillOf(document, 1)->formFillInfo()->title);
}

TEST(FormFill, OtherTypesHaveNoRecordAndReadNothing) {
    StreamCapture log;
    for (const int type : {-1, 2, 3}) {
        EXPECT_EQ(nullptr, fillOf(page({title("x")}), type)->formFillInfo());
    }
    EXPECT_EQ("", log.text());
}

TEST(FormFill, ReadsThePageOnce) {
    StreamCapture log;
    const auto fill = fillOf(page({title("Film")}), 0);
    EXPECT_EQ("", log.text());
    const FormFillInfo* const info = fill->formFillInfo();
    EXPECT_EQ(info, fill->formFillInfo());
    EXPECT_EQ("<title> tag has \"Film\"\n", log.text());
}

TEST(FormFill, ParsersAlwaysSucceed) {
    EXPECT_TRUE(fillOf(page({}), 2)->parseImdb());
    EXPECT_TRUE(fillOf(page({}), 2)->parseAmazon());
}

TEST(FormFill, GivesTheRecordOfAnExtractorThatWasCalledBefore) {
    const auto fill = fillOf(page({title("Shop: Film")}), 0);
    fill->parseAmazon();
    EXPECT_EQ(QString("Film"), fill->formFillInfo()->title);
}

TEST(FormFill, PageOfTheWebCanNotHaveLocalFilesFetched) {
    FetchScript script;
    const auto document =
        page({element("A", {img("file:///etc/x.png"), img("http://x/1")}, {{"name", "poster"}})});
    EXPECT_NE(nullptr, fillOf(document, 0, script.fetch())->formFillInfo());
    EXPECT_EQ(QStringList({"http://x/1"}), script.asked);
}

TEST(FormFill, PageFromAFileCanHaveItsPicturesFetched) {
    FetchScript script;
    auto document = std::make_shared<DomDocument>();
    document->url = "file:///films/page.html";
    DomNode* const anchor = document->append(document->root(), element("A", {}, {{"name", "poster"}}).node);
    document->append(anchor, img("file:///films/x.png").node);
    EXPECT_NE(nullptr, fillOf(document, 0, script.fetch())->formFillInfo());
    EXPECT_EQ(QStringList({"file:///films/x.png"}), script.asked);
}

TEST(FormFill, KeepsTheDocumentForItsLifetime) {
    std::weak_ptr<const DomDocument> watched;
    std::unique_ptr<FormFill> fill;
    {
        const auto document = page({title("Film")});
        watched = document;
        fill = fillOf(document, 0);
    }
    EXPECT_FALSE(watched.expired());
    fill.reset();
    EXPECT_TRUE(watched.expired());
}

// What a form can show

TEST(FormFill, CutsTextsToWhatAFormCanShow) {
    const QString shown(32767, 'x');
    const auto fill =
        fillOf(page({title(shown + 'y'), div("info", {h5("Plot Outline:"), text(shown + 'y'),
                                                      h5("Certification:"), a("USA:" + shown + 'y')})}),
               0);
    EXPECT_EQ(shown, fill->formFillInfo()->title);
    EXPECT_EQ(shown, fill->formFillInfo()->description);
    EXPECT_EQ(shown, fill->formFillInfo()->rating);
}

TEST(FormFill, KeepsTextsThatAFormCanShow) {
    const QString shown(32767, 'x');
    const auto fill = fillOf(page({title(shown), div("info", {h5("Genre:"), a(shown)})}), 0);
    EXPECT_EQ(shown, fill->formFillInfo()->title);
    EXPECT_EQ(QStringList({shown}), fill->formFillInfo()->genres);
}

TEST(FormFill, DropsNamesThatAFormCanNotShow) {
    Doms children = {h5("Genre:"), a(QString(32765, 'x')), a("y"), a("z")};
    EXPECT_EQ(QStringList({QString(32765, 'x'), "y"}),
              fillOf(page({div("info", children)}), 0)->formFillInfo()->genres);
    children = {h5("Genre:"), a(QString(40000, 'x')), a("y")};
    EXPECT_EQ(QStringList({QString(32767, 'x')}),
              fillOf(page({div("info", children)}), 0)->formFillInfo()->genres);
}

// Large pages

/** The least processor time in seconds that it takes to read a page with the children CHILDREN, as a page of
   TYPE. */
double timeToRead(const Doms& children, int type) {
    const StreamCapture log;
    const auto document = page(children);
    double least = 1e9;
    for (int run = 0; run < 5; ++run) {
        const std::clock_t start = std::clock();
        EXPECT_NE(nullptr, fillOf(document, type)->formFillInfo());
        least = std::min(least, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return least;
}

/** COUNT times LABEL, then as many anchors. */
Doms labelsAndAnchors(const Dom& label, int count) {
    Doms children(static_cast<std::size_t>(count), label);
    children.insert(children.end(), static_cast<std::size_t>(count), a("x"));
    return children;
}

class LargePage : public testing::TestWithParam<const char*> {};

TEST_P(LargePage, OfTheMovieDatabaseTakesTimeInProportionToItsSize) {
    const auto read = [](int count) {
        return timeToRead({div("info", labelsAndAnchors(h5(GetParam()), count))}, 0);
    };
    EXPECT_LT(read(10000), 10 * read(2500)); // 16 times as long, if each heading looked at all anchors
}

TEST_P(LargePage, OfTheStoreTakesTimeInProportionToItsSize) {
    const auto read = [](int count) {
        return timeToRead({element("UL", {element("LI", labelsAndAnchors(b(GetParam()), count))})}, 1);
    };
    EXPECT_LT(read(10000), 10 * read(2500));
}

INSTANTIATE_TEST_SUITE_P(OfOneLabel, LargePage,
                         testing::Values("Director:", "Release Date:", "Genre:", "Plot Outline:",
                                         "Certification:", "Actors:", "Directors:", "Rating",
                                         "Product Description"));

} // namespace
} // namespace velmora::test
