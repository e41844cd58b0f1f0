#include "weblookup/FormFill.h"

#include "dom_builder.h"
#include "fetch_script.h"
#include "platform/web/web_view.h"
#include "support/stream_capture.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(fillOf(nullptr, 0), nullptr);
}

TEST(FormFill, TypeChoosesTheExtractor) {
    const auto document = page({title("Shop: Film (2005): DVD")});
    EXPECT_EQ(fillOf(document, 0)->formFillInfo()->title, QString("Shop: Film "));
    EXPECT_EQ(fillOf(document, 1)->formFillInfo()->title, QString("Film (2005)"));
}

TEST(FormFill, OtherTypesHaveNoRecordAndReadNothing) {
    StreamCapture log;
    for (const int type : {-1, 2, 3}) {
        EXPECT_EQ(fillOf(page({title("x")}), type)->formFillInfo(), nullptr);
    }
    EXPECT_EQ(log.text(), "");
}

TEST(FormFill, ReadsThePageOnce) {
    StreamCapture log;
    const auto fill = fillOf(page({title("Film")}), 0);
    EXPECT_EQ(log.text(), "");
    const FormFillInfo* const info = fill->formFillInfo();
    EXPECT_EQ(fill->formFillInfo(), info);
    EXPECT_EQ(log.text(), "<title> tag has \"Film\"\n");
}

TEST(FormFill, ParsersAlwaysSucceed) {
    EXPECT_TRUE(fillOf(page({}), 2)->parseImdb());
    EXPECT_TRUE(fillOf(page({}), 2)->parseAmazon());
}

TEST(FormFill, GivesTheRecordOfAnExtractorThatWasCalledBefore) {
    const auto fill = fillOf(page({title("Shop: Film")}), 0);
    fill->parseAmazon();
    EXPECT_EQ(fill->formFillInfo()->title, QString("Film"));
}

TEST(FormFill, PageOfTheWebCanNotHaveLocalFilesFetched) {
    FetchScript script;
    const auto document =
        page({element("A", {img("file:///etc/x.png"), img("http://x/1")}, {{"name", "poster"}})});
    EXPECT_NE(fillOf(document, 0, script.fetch())->formFillInfo(), nullptr);
    EXPECT_EQ(script.asked, QStringList({"http://x/1"}));
}

TEST(FormFill, PageFromAFileCanHaveItsPicturesFetched) {
    FetchScript script;
    auto document = std::make_shared<DomDocument>();
    document->url = "file:///films/page.html";
    DomNode* const anchor = document->append(document->root(), element("A", {}, {{"name", "poster"}}).node);
    document->append(anchor, img("file:///films/x.png").node);
    EXPECT_NE(fillOf(document, 0, script.fetch())->formFillInfo(), nullptr);
    EXPECT_EQ(script.asked, QStringList({"file:///films/x.png"}));
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

} // namespace
} // namespace velmora::test
