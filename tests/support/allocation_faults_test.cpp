#include "support/allocation_faults.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <new>
#include <tuple>

namespace velmora::test {
namespace {

// Volatile, so that the compiler takes no request for granted and drops none.
void* (*volatile allocate)(std::size_t) = std::malloc;
void* (*volatile allocate_zeroed)(std::size_t, std::size_t) = std::calloc;
void* (*volatile reallocate)(void*, std::size_t) = std::realloc;
char* (*volatile duplicate)(const char*) = ::strdup;

TEST(AllocationFaults, TheNthRequestFailsAndTheOthersSucceed) {
    AllocationFaults faults(2);
    void* const first = allocate(10);
    errno = 0;
    void* const second = allocate(20);
    const int error = errno;
    void* const third = allocate(30);
    EXPECT_NE(nullptr, first);
    EXPECT_EQ(nullptr, second);
    EXPECT_EQ(ENOMEM, error);
    EXPECT_NE(nullptr, third);
    std::free(first);
    std::free(third);
}

TEST(AllocationFaults, AFailedGrowthLeavesTheOldMemory) {
    AllocationFaults faults(2);
    char* const memory = static_cast<char*>(allocate(4));
    std::strcpy(memory, "old");
    EXPECT_EQ(nullptr, reallocate(memory, 100));
    EXPECT_STREQ("old", memory);
    std::free(memory);
}

TEST(AllocationFaults, EveryKindOfRequestIsCountedAndTheLargestIsKnown) {
    AllocationFaults faults;
    void* const a = allocate(10);
    void* const b = allocate_zeroed(30, 4);
    void* const c = reallocate(nullptr, 20);
    void* const d = duplicate("text");
    EXPECT_EQ(4, faults.count());
    EXPECT_EQ(120u, faults.largest());
    std::free(a);
    std::free(b);
    std::free(c);
    std::free(d);
}

TEST(AllocationFaults, NothingFailsAfterTheObjectsEnd) {
    { const AllocationFaults faults(1); }
    void* const memory = allocate(1);
    EXPECT_NE(nullptr, memory);
    std::free(memory);
}

TEST(AllocationFaults, NewIsWatchedApartFromTheMallocFamily) {
    AllocationFaults faults(2, Memory::operator_new);
    void* const block = allocate(10);
    auto* const first = ::operator new(4);
    EXPECT_THROW(std::ignore = ::operator new(5), std::bad_alloc);
    auto* const third = ::operator new[](6, std::nothrow);
    EXPECT_NE(nullptr, third);
    EXPECT_EQ(3, faults.count());
    std::free(block);
    ::operator delete(first);
    ::operator delete[](third);
}

} // namespace
} // namespace velmora::test
