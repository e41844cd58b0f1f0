#include "library/path_index.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

/** The number that is found by HASH when NUMBER alone is meant. */
int found(const PathIndex& index, std::uint32_t hash, int number) {
    return index.find(hash, [number](int other) { return other == number; });
}

TEST(PathIndexTest, NothingIsFoundInAnEmptyOne) {
    const PathIndex index;
    EXPECT_EQ(-1, found(index, 7, 0));
}

TEST(PathIndexTest, ManyNumbersAreFoundByTheirHashesAlone) {
    PathIndex index;
    for (int number = 0; number < 1000; ++number) {
        index.insert(static_cast<std::uint32_t>(number) * 2654435761U, number);
    }
    for (int number = 0; number < 1000; ++number) {
        EXPECT_EQ(number, found(index, static_cast<std::uint32_t>(number) * 2654435761U, number));
        EXPECT_EQ(-1, found(index, static_cast<std::uint32_t>(number) * 2654435761U + 1, number));
    }
}

TEST(PathIndexTest, NumbersOfTheSameHashAreToldApart) {
    PathIndex index;
    for (int number = 0; number < 10; ++number) {
        index.insert(0xFFFFFFFF, number);
    }
    for (int number = 0; number < 10; ++number) {
        EXPECT_EQ(number, found(index, 0xFFFFFFFF, number));
    }
    EXPECT_EQ(-1, found(index, 0xFFFFFFFF, 10));
}

TEST(PathIndexTest, WhatStandsBehindARemovedNumberIsStillFound) {
    PathIndex index;
    // All of them begin at the last place, and so go on at the first one.
    for (int number = 0; number < 20; ++number) {
        index.insert(0xFFFFFFFF - static_cast<std::uint32_t>(number % 3) * 0x10000U, number);
    }
    for (int number = 0; number < 20; number += 2) {
        index.remove(0xFFFFFFFF - static_cast<std::uint32_t>(number % 3) * 0x10000U, number);
    }
    for (int number = 0; number < 20; ++number) {
        const std::uint32_t hash = 0xFFFFFFFF - static_cast<std::uint32_t>(number % 3) * 0x10000U;
        EXPECT_EQ(number % 2 == 0 ? -1 : number, found(index, hash, number)) << number;
    }
}

} // namespace
} // namespace velmora
