#include "portable/tag_values.h"

#include <gtest/gtest.h>

namespace velmora::portable {
namespace {

TEST(TagEdits, LeaveEverythingAloneAtFirst) {
    const TagEdits edits;
    TagValues old;
    old.text(Field::title) = "Harbour";
    old.year = 1994;

    EXPECT_TRUE(edits.empty());
    EXPECT_EQ(old, edits.applied_to(old));
}

TEST(TagEdits, SetOneFieldAndDeleteAnother) {
    TagEdits edits;
    edits.text(Field::genre) = Edit<std::string>::set("Drama");
    edits.year = Edit<int>::remove();
    TagValues old;
    old.text(Field::title) = "Harbour";
    old.year = 1994;

    const TagValues values = edits.applied_to(old);

    EXPECT_EQ("Harbour", values.text(Field::title));
    EXPECT_EQ("Drama", values.text(Field::genre));
    EXPECT_EQ(std::nullopt, values.year);
}

TEST(TagEdits, TellWhichFieldsTheyAskFor) {
    TagEdits edits;
    edits.text(Field::rating) = Edit<std::string>::remove();
    edits.cover = Edit<Cover>::set({{0xff, 0xd8}, "image/jpeg"});

    EXPECT_TRUE(edits.asks_for(Field::rating));
    EXPECT_TRUE(edits.asks_for(Field::cover));
    EXPECT_FALSE(edits.asks_for(Field::title));
    EXPECT_FALSE(edits.asks_for(Field::year));
    EXPECT_TRUE(edits.sets(Field::cover));
    EXPECT_FALSE(edits.sets(Field::rating));
    EXPECT_FALSE(edits.sets(Field::year));
    EXPECT_FALSE(edits.empty());
}

} // namespace
} // namespace velmora::portable
