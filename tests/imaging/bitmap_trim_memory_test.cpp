// Linked with --wrap=malloc, so that an allocation of a given size can be made to fail.

#include "test_bitmap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

namespace {
std::size_t failingSize = 0;
}

extern "C" {
void* __real_malloc(std::size_t size);
void* __wrap_malloc(std::size_t size) {
    if (size != 0 && size == failingSize) {
        errno = ENOMEM;
        return nullptr;
    }
    return __real_malloc(size);
}
}

namespace velmora::test {
namespace {

class BitmapTrimWithoutMemory : public testing::Test {
protected:
    BitmapTrimWithoutMemory() : bitmap_(90, 90, 0) {
        bitmap_.fill(10, 10, 71, 59, 0xffffffff);
        StreamCapture errors(stderr);
        failingSize = 71 * 59 * 4;
        outcome_ = trim(bitmap_);
        failingSize = 0;
        errors_ = errors.text();
    }
    TestBitmap bitmap_;
    TrimOutcome outcome_;
    std::string errors_;
};

TEST_F(BitmapTrimWithoutMemory, TellsTheSizeAndTheReasonOnStandardError) {
    EXPECT_EQ("malloc(16756) failed: Cannot allocate memory\n", errors_);
}

TEST_F(BitmapTrimWithoutMemory, GivesNullAndLeavesTheSizeUnchanged) {
    EXPECT_FALSE(outcome_.bitmap);
    EXPECT_EQ(90U, outcome_.width);
    EXPECT_EQ(90U, outcome_.height);
}

TEST_F(BitmapTrimWithoutMemory, PrintsNoNewSize) {
    EXPECT_THAT(outcome_.output, testing::EndsWith("x0=10, x1=80, y0=10, y1=68\n"));
}

} // namespace
} // namespace velmora::test
