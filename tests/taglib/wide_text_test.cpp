#include "support/bytes.h"
#include "taglib/wide_text.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

namespace velmora {
namespace {

using test::hex;
using test::to_hex;

constexpr std::size_t failed = static_cast<std::size_t>(-1);

/** What a conversion leaves: the target was filled with 0xEE, so bytes that it did not write show. */
struct Converted {
    std::size_t result;
    std::string bytes;
};

Converted to_utf8(const std::string& wide_bytes, std::size_t capacity) {
    std::vector<wchar_t> source(wide_bytes.size() / sizeof(wchar_t) + 2, L'\0');
    std::memcpy(source.data(), wide_bytes.data(), wide_bytes.size());
    std::string target(8, '\xEE');
    const std::size_t result = unitobcs(source.data(), target.data(), capacity);
    return {result, to_hex(target)};
}

Converted to_wide(const char* source, std::size_t capacity) {
    std::array<wchar_t, 4> target;
    std::memset(target.data(), 0xEE, sizeof target);
    const std::size_t result = bcstouni(source, target.data(), capacity);
    return {result, to_hex({reinterpret_cast<const char*>(target.data()), sizeof target})};
}

const std::string untouched = "ee ee ee ee ee ee ee ee ";

TEST(UniToBcs, EndsAtTheFirstZeroByteAndSoFailsInsideAnAsciiCharacter) {
    // "AB": one byte stands in front of the first zero byte, a quarter of a character.
    errno = 0;
    const Converted converted = to_utf8(hex("41000000 42000000"), 8);
    EXPECT_EQ(failed, converted.result);
    EXPECT_EQ(EINVAL, errno);
    EXPECT_EQ(untouched, converted.bytes);
}

TEST(UniToBcs, ConvertsNothingWhenTheFirstByteIsZero) {
    const Converted converted = to_utf8(hex("00010000"), 8); // U+0100
    EXPECT_EQ(0u, converted.result);
    EXPECT_EQ(untouched, converted.bytes);
}

TEST(UniToBcs, ConvertsNothingOfAnEmptyText) {
    const Converted converted = to_utf8("", 8);
    EXPECT_EQ(0u, converted.result);
    EXPECT_EQ(untouched, converted.bytes);
}

TEST(UniToBcs, ConvertsFourBytesWithoutAZeroAsOneCharacterAndWritesNoTerminator) {
    const Converted converted = to_utf8(hex("2D4E8765"), 8);
    EXPECT_EQ(0u, converted.result);
    EXPECT_EQ("fd a5 a1 b4 b8 ad ee ee ", converted.bytes);
}

TEST(UniToBcs, FailsWhenTheTargetIsTooSmall) {
    errno = 0;
    const Converted converted = to_utf8(hex("2D4E8765"), 5);
    EXPECT_EQ(failed, converted.result);
    EXPECT_EQ(E2BIG, errno);
    EXPECT_EQ(untouched, converted.bytes);
}

TEST(UniToBcs, WorksAgainAfterAFailure) {
    EXPECT_EQ(failed, to_utf8(hex("41000000"), 8).result);
    EXPECT_EQ("fd a5 a1 b4 b8 ad ee ee ", to_utf8(hex("2D4E8765"), 8).bytes);
}

TEST(BcsToUni, GivesFourBytesACharacterAndNoTerminator) {
    const Converted converted = to_wide("A\xC3\xA9", 16);
    EXPECT_EQ(0u, converted.result);
    EXPECT_EQ("41 00 00 00 e9 00 00 00 " + untouched, converted.bytes);
}

TEST(BcsToUni, ConvertsCharactersOfEveryLength) {
    // U+0041, U+00E9, U+20AC, U+1D11E
    const Converted converted = to_wide("A\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E", 16);
    EXPECT_EQ(0u, converted.result);
    EXPECT_EQ("41 00 00 00 e9 00 00 00 ac 20 00 00 1e d1 01 00 ", converted.bytes);
}

TEST(BcsToUni, ConvertsNothingOfAnEmptyText) {
    const Converted converted = to_wide("", 16);
    EXPECT_EQ(0u, converted.result);
    EXPECT_EQ(untouched + untouched, converted.bytes);
}

TEST(BcsToUni, TakesTheCapacityInBytes) {
    errno = 0;
    const Converted converted = to_wide("ABC", 8);
    EXPECT_EQ(failed, converted.result);
    EXPECT_EQ(E2BIG, errno);
    EXPECT_EQ("41 00 00 00 42 00 00 00 " + untouched, converted.bytes);
}

TEST(BcsToUni, FailsAtBytesThatAreNoUtf8AndKeepsWhatStandsBefore) {
    errno = 0;
    const Converted converted = to_wide("A\xFF"
                                        "B",
                                        16);
    EXPECT_EQ(failed, converted.result);
    EXPECT_EQ(EILSEQ, errno);
    EXPECT_EQ("41 00 00 00 ee ee ee ee " + untouched, converted.bytes);
}

TEST(BcsToUni, FailsAtACharacterThatIsCut) {
    errno = 0;
    const Converted converted = to_wide("A\xE2\x82", 16);
    EXPECT_EQ(failed, converted.result);
    EXPECT_EQ(EINVAL, errno);
    EXPECT_EQ("41 00 00 00 ee ee ee ee " + untouched, converted.bytes);
}

TEST(BcsToUni, WorksAgainAfterAFailure) {
    EXPECT_EQ(failed, to_wide("\xE2\x82", 16).result);
    EXPECT_EQ("42 00 00 00 ee ee ee ee " + untouched, to_wide("B", 16).bytes);
}

} // namespace
} // namespace velmora
