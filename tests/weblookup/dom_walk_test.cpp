#include "weblookup/detail/dom_walk.h"

#include "dom_builder.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

TEST(SiblingWalk, GivesTheFirstLaterSiblingOfTheClass) {
    const auto doc = page({h5("x"), text("one"), a("two"), a("three")});
    const DomNode* const found =
        get_first_sibling_of_type(first(*doc, u"h5"), DomClass::DOMHTMLAnchorElement);
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(QString("two"), found->firstChild->data);
}

TEST(SiblingWalk, NeverGivesTheNodeItself) {
    const auto doc = page({a("only")});
    EXPECT_EQ(nullptr, get_first_sibling_of_type(first(*doc, u"a"), DomClass::DOMHTMLAnchorElement));
}

TEST(SiblingWalk, DoesNotLookBack) {
    const auto doc = page({a("before"), h5("x"), text("after")});
    EXPECT_EQ(nullptr, get_first_sibling_of_type(first(*doc, u"h5"), DomClass::DOMHTMLAnchorElement));
}

TEST(SiblingWalk, DoesNotLookInsideSiblings) {
    const auto doc = page({h5("x"), element("SPAN", {a("inside")})});
    EXPECT_EQ(nullptr, get_first_sibling_of_type(first(*doc, u"h5"), DomClass::DOMHTMLAnchorElement));
}

TEST(SiblingWalk, TakesACdataSectionForNoText) {
    const auto doc = page({h5("x"), cdata("no"), text("yes")});
    const DomNode* const found = get_first_sibling_of_type(first(*doc, u"h5"), DomClass::DOMText);
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(QString("yes"), found->data);
}

TEST(ChildWalk, GivesTheFirstDirectChildOfTheClass) {
    const auto doc =
        page({element("P", {comment("c"), element("I", {text("deep")}), text("direct"), text("later")})});
    const DomNode* const found = get_first_child_of_type(first(*doc, u"p"), DomClass::DOMText);
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(QString("direct"), found->data);
}

TEST(ChildWalk, GivesTheFirstChildItself) {
    const auto doc = page({element("P", {text("first"), text("second")})});
    EXPECT_EQ(QString("first"), get_first_child_of_type(first(*doc, u"p"), DomClass::DOMText)->data);
}

TEST(ChildWalk, GivesNothingForANodeWithoutChildren) {
    const auto doc = page({element("P")});
    EXPECT_EQ(nullptr, get_first_child_of_type(first(*doc, u"p"), DomClass::DOMText));
}

TEST(LinkedNames, AreTrimmedOfBlanksLineEndsAndNoBreakSpaces) {
    const auto doc = page({h5("x"), a(QString(" \n\tA. Person\u00a0\r\n "))});
    EXPECT_EQ(QStringList({"A. Person"}), imdb_parse_directors(first(*doc, u"h5")));
}

TEST(LinkedNames, RunOnToTheLastSiblingOverLaterLabels) {
    const auto doc = page({h5("x"), a("One"), h5("other"), a("Two"), text("t"), a("Three")});
    EXPECT_EQ(QStringList({"One", "Two", "Three"}), imdb_parse_directors(first(*doc, u"h5")));
}

TEST(LinkedNames, SkipAnchorsWithoutDirectText) {
    const auto doc = page({h5("x"), element("A", {element("I", {text("deep")})}), element("A"), a("Direct")});
    EXPECT_EQ(QStringList({"Direct"}), imdb_parse_directors(first(*doc, u"h5")));
}

TEST(LinkedNames, TakeTheFirstDirectTextEvenBehindAnElement) {
    const auto doc = page({h5("x"), element("A", {element("I", {text("no")}), text("yes"), text("late")})});
    EXPECT_EQ(QStringList({"yes"}), imdb_parse_directors(first(*doc, u"h5")));
}

TEST(LinkedNames, KeepANameThatIsBlankAsEmpty) {
    const auto doc = page({h5("x"), a(" ")});
    EXPECT_EQ(QStringList({""}), imdb_parse_directors(first(*doc, u"h5")));
}

TEST(LinkedNames, AreNothingWithoutAnAnchor) {
    const auto doc = page({h5("x"), text("A. Person")});
    EXPECT_EQ(std::nullopt, imdb_parse_directors(first(*doc, u"h5")));
}

TEST(ElementsByTagName, ComeInDocumentOrderAtAnyDepthAndInAnyCase) {
    const auto doc = page({element("DIV", {element("b", {text("1")}), element("P", {b("2")})}), b("3")});
    QStringList texts;
    for (const DomNode* const node : doc->getElementsByTagName(u"B")) {
        texts.append(*node->firstChild->data);
    }
    EXPECT_EQ(QStringList({"1", "2", "3"}), texts);
}

TEST(ElementsByTagName, AreFoundInATreeOfAHundredThousandLevels) {
    DomDocument doc;
    DomNode* place = doc.root();
    for (int level = 0; level < 100000; ++level) {
        place = doc.append(place, element("DIV").node);
    }
    doc.append(place, b("deep").node);
    EXPECT_EQ(1U, doc.getElementsByTagName(u"b").size());
}

TEST(DomWalk, FindsOnlyElementsByTheirTagName) {
    const auto doc = page({noElement("title"), noElement("title"), element("TITLE", {text("True")})});
    EXPECT_EQ(1U, doc->getElementsByTagName(u"title").size());
    EXPECT_EQ(QString("True"), titleText(*doc));
}

} // namespace
} // namespace velmora::test
