#include "platform/web/detail/dom_snapshot.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

std::shared_ptr<const DomDocument> readNodes(const char* nodes) {
    return readDomSnapshot(
        QString::fromUtf8(R"({"url":"http://x/","nodes":%1})").arg(QString::fromUtf8(nodes)));
}

TEST(DomSnapshot, GivesTheTreeInOrder) {
    const auto document =
        readNodes(R"([[-1,0,"HTML",null,1],[0,1,"#text","a"],[0,0,"B",null,1],[2,1,"#text","b"],
                                        [0,1,"#text","c"]])");
    ASSERT_NE(nullptr, document);
    const DomNode* const html = document->root()->firstChild;
    EXPECT_EQ("HTML", html->nodeName);
    EXPECT_EQ(nullptr, html->nextSibling);
    EXPECT_EQ(QString("a"), html->firstChild->data);
    EXPECT_EQ(QString("b"), html->firstChild->nextSibling->firstChild->data);
    EXPECT_EQ("B", html->firstChild->nextSibling->firstChild->parentNode->nodeName);
    EXPECT_EQ(QString("c"), html->lastChild->data);
    EXPECT_EQ("http://x/", document->url);
}

TEST(DomSnapshot, GivesEveryColumn) {
    const auto document = readNodes(R"([[-1,5,"IMG",null,1,"a b",["id","x","alt",""],"n","http://x/s"]])");
    ASSERT_NE(nullptr, document);
    const DomNode* const node = document->root()->firstChild;
    EXPECT_EQ(DomClass::DOMHTMLImageElement, node->domClass);
    EXPECT_TRUE(node->isHTMLElement);
    EXPECT_EQ(std::nullopt, node->data);
    EXPECT_EQ("a b", node->className);
    EXPECT_EQ(QString("x"), node->getAttribute(u"id"));
    EXPECT_EQ(QString(""), node->getAttribute(u"alt"));
    EXPECT_EQ(std::nullopt, node->getAttribute(u"src"));
    EXPECT_EQ("n", node->name);
    EXPECT_EQ("http://x/s", node->src);
}

TEST(DomSnapshot, TellsElementsFromOtherNodes) {
    const auto document =
        readNodes(R"([[-1,0,"title"],[-1,0,"svg",null,0],[-1,0,"TITLE",null,1],[-1,0,"b","x"]])");
    ASSERT_NE(nullptr, document);
    const DomNode* const type = document->root()->firstChild;
    EXPECT_FALSE(type->isElement);
    EXPECT_TRUE(type->nextSibling->isElement);
    EXPECT_FALSE(type->nextSibling->isHTMLElement);
    EXPECT_TRUE(type->nextSibling->nextSibling->isElement);
    EXPECT_FALSE(document->root()->lastChild->isElement);
    EXPECT_EQ(1U, document->getElementsByTagName(u"title").size());
    EXPECT_TRUE(document->getElementsByTagName(u"b").empty());
}

TEST(DomSnapshot, ReadsTheNumberOfEachClass) {
    const auto document =
        readNodes(R"([[-1,0,"x"],[-1,1,"x"],[-1,2,"x"],[-1,3,"x"],[-1,4,"x"],[-1,5,"x"],[-1,6,"x"],
                                        [-1,7,"x"]])");
    ASSERT_NE(nullptr, document);
    const DomClass expected[] = {DomClass::Other,
                                 DomClass::DOMText,
                                 DomClass::DOMHTMLAnchorElement,
                                 DomClass::DOMHTMLTableRowElement,
                                 DomClass::DOMHTMLTableCellElement,
                                 DomClass::DOMHTMLImageElement,
                                 DomClass::DOMHTMLLIElement,
                                 DomClass::DOMHTMLBRElement};
    const DomNode* node = document->root()->firstChild;
    for (const DomClass domClass : expected) {
        ASSERT_NE(nullptr, node);
        EXPECT_EQ(domClass, node->domClass);
        node = node->nextSibling;
    }
}

TEST(DomSnapshot, KeepsTextThatIsEmptyAndTextBeyondTheBasicPlane) {
    const auto document = readNodes(R"([[-1,1,"#text",""],[-1,1,"#text","\ud83d\ude00 \u0000"]])");
    ASSERT_NE(nullptr, document);
    EXPECT_EQ(QString(""), document->root()->firstChild->data);
    EXPECT_EQ(QString::fromUtf8("\xF0\x9F\x98\x80 \0", 6), document->root()->lastChild->data);
}

TEST(DomSnapshot, OfAPageWithoutNodesIsADocument) {
    EXPECT_NE(nullptr, readNodes("[]"));
}

TEST(DomSnapshot, OfAnotherFormIsNone) {
    for (const char* const text :
         {"", "x", "[]", "{}", R"({"url":"x"})", R"({"nodes":[]})", R"({"url":1,"nodes":[]})",
          R"({"url":"x","nodes":{}})", R"({"url":"x","nodes":[)"}) {
        EXPECT_EQ(nullptr, readDomSnapshot(QString::fromUtf8(text))) << text;
    }
}

TEST(DomSnapshot, WithABadNodeIsNone) {
    for (const char* const nodes : {"[5]", "[[]]", R"([[0,1,"#text","own parent"]])", R"([[-2,1,"#text"]])",
                                    R"([[-1,1,"#text"],[1,1,"#text"]])", R"([[-1,8,"x"]])",
                                    R"([[-1,-1,"x"]])", R"([["-1",1,"x"]])", R"([[-1,1,5]])"}) {
        EXPECT_EQ(nullptr, readNodes(nodes)) << nodes;
    }
}

} // namespace
} // namespace velmora::test
