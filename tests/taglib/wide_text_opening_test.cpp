#include "taglib/wide_text.h"

#include <gtest/gtest.h>

#include <cstring>
#include <iconv.h>
#include <string>

namespace {
bool refuse = false;
std::string openings; // "to<from", each
int conversions = 0;
} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" std::size_t __real_iconv(iconv_t handle, char** in, std::size_t* in_left, char** out,
                                    std::size_t* out_left);
extern "C" std::size_t __wrap_iconv(iconv_t handle, char** in, std::size_t* in_left, char** out,
                                    std::size_t* out_left) {
    ++conversions;
    return __real_iconv(handle, in, in_left, out, out_left);
}
extern "C" iconv_t __real_iconv_open(const char* to, const char* from);
extern "C" iconv_t __wrap_iconv_open(const char* to, const char* from) {
    openings += std::string(to) + "<" + from + " ";
    return refuse ? reinterpret_cast<iconv_t>(-1) : __real_iconv_open(to, from);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace velmora {
namespace {

// A process opens each converter once, so each has one test with its whole life in it.

TEST(UniToBcs, OpensItsConverterOnFirstSuccessAndKeepsIt) {
    wchar_t source[2] = {};
    std::memcpy(source, "\x2D\x4E\x87\x65", 4);
    char target[8] = "uuuuuuu";
    openings.clear();

    refuse = true;
    EXPECT_EQ(0u, unitobcs(source, target, sizeof target));
    EXPECT_STREQ("uuuuuuu", target);
    refuse = false;
    EXPECT_EQ(0u, unitobcs(source, target, sizeof target));
    EXPECT_STREQ("\xFD\xA5\xA1\xB4\xB8\xADu", target);
    refuse = true;
    std::memset(target, 0, sizeof target);
    EXPECT_EQ(0u, unitobcs(source, target, sizeof target));
    EXPECT_STREQ("\xFD\xA5\xA1\xB4\xB8\xAD", target);

    EXPECT_EQ("UTF-8<WCHAR_T UTF-8<WCHAR_T ", openings);
}

TEST(BcsToUni, OpensItsConverterOnFirstSuccessAndKeepsIt) {
    wchar_t target[3] = L"uu";
    openings.clear();

    refuse = true;
    EXPECT_EQ(0u, bcstouni("A", target, sizeof target));
    EXPECT_STREQ(L"uu", target);
    refuse = false;
    EXPECT_EQ(0u, bcstouni("A", target, sizeof target));
    EXPECT_STREQ(L"Au", target);
    refuse = true;
    EXPECT_EQ(0u, bcstouni("B", target, sizeof target));
    EXPECT_STREQ(L"Bu", target);

    EXPECT_EQ("WCHAR_T<UTF-8 WCHAR_T<UTF-8 ", openings);
}

TEST(WideText, EachConversionIsOneCallOfIconvAlsoAfterAFailure) {
    wchar_t wide[3] = L"uu";
    char bytes[8] = {};
    refuse = false;
    conversions = 0;
    EXPECT_NE(0u, bcstouni("\xFF", wide, sizeof wide));
    EXPECT_EQ(0u, bcstouni("A", wide, sizeof wide));
    EXPECT_EQ(0u, unitobcs(L"", bytes, sizeof bytes));
    EXPECT_EQ(3, conversions);
}

} // namespace
} // namespace velmora
