#include "portable/detail/splices.h"

#include <gmock/gmock.h>

namespace velmora::portable {
namespace {

/** The segments as a text: ranges as "begin-end", own bytes as they are. */
std::string shown(const Splices& splices, std::uint64_t size) {
    std::string text;
    for (const Segment& segment : splices.segments(size)) {
        if (const Range* const range = std::get_if<Range>(&segment)) {
            text += std::to_string(range->begin) + "-" + std::to_string(range->end) + " ";
        } else {
            const Bytes& bytes = std::get<Bytes>(segment);
            text += std::string(bytes.begin(), bytes.end()) + " ";
        }
    }
    return text;
}

TEST(Splices, AreInTheOrderOfTheFileHoweverTheyWerePut) {
    Splices splices;
    splices.replace({50, 60}, {'c'});
    splices.replace({10, 12}, {'a', 'a', 'a'});
    splices.replace({20, 20}, {'b'});
    splices.replace({60, 70}, {});
    EXPECT_EQ("0-10 aaa 12-20 b 20-50 c 70-100 ", shown(splices, 100));
    EXPECT_EQ(1 + 1 - 9 - 10, splices.growth());
}

TEST(Splices, InsertionsAtOnePlaceKeepTheirOrderAndComeInFrontOfAReplacement) {
    Splices splices;
    splices.replace({5, 8}, {'r'});
    splices.replace({5, 5}, {'1'});
    splices.replace({5, 5}, {'2'});
    EXPECT_EQ("0-5 1 2 r 8-9 ", shown(splices, 9));
}

TEST(Splices, TellWhereBytesAreAfterwards) {
    Splices splices;
    splices.replace({50, 60}, {'c'});
    splices.replace({10, 12}, {'a', 'a', 'a'});
    splices.replace({20, 20}, {'b'});
    EXPECT_EQ(9U, splices.moved(9));
    EXPECT_EQ(13U, splices.moved(12));
    EXPECT_EQ(20U, splices.moved(19));
    EXPECT_EQ(22U, splices.moved(20));
    EXPECT_EQ(51U, splices.moved(49));
    EXPECT_EQ(53U, splices.moved(60));
}

TEST(RangesWithout, LeavesTheRest) {
    const std::vector<Range> expected = {{0, 5}, {20, 30}, {40, 50}};
    EXPECT_EQ(expected, ranges_without({{30, 40}, {5, 10}, {8, 20}}, 50));
    EXPECT_EQ((std::vector<Range>{{0, 7}}), ranges_without({}, 7));
}

} // namespace
} // namespace velmora::portable
