#include "taglib/filetime.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <sys/time.h>
#include <sys/times.h>
#include <unistd.h>

namespace {
// What the clocks show while a test sets them; the linker leads the calls of the two functions here.
std::optional<timeval> wall_clock;
std::optional<clock_t> tick_clock;
} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
int __real_gettimeofday(timeval* now, void* zone);
clock_t __real_times(tms* times);

int __wrap_gettimeofday(timeval* now, void* zone) {
    if (!wall_clock) {
        return __real_gettimeofday(now, zone);
    }
    *now = *wall_clock;
    return 0;
}

clock_t __wrap_times(tms* times) {
    return tick_clock ? *tick_clock : __real_times(times);
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace velmora {
namespace {

std::uint64_t system_time_at(std::int64_t seconds, long microseconds) {
    wall_clock = timeval{seconds, microseconds};
    FILETIME time{0xEEEEEEEE, 0xEEEEEEEE};
    GetSystemTimeAsFileTime(&time);
    wall_clock.reset();
    return filetime_value(time);
}

TEST(SystemTime, IsACountOfMillisecondsSince1970) {
    EXPECT_EQ(1'234u, system_time_at(1, 234'999));
    EXPECT_EQ(2'147'483'647u, system_time_at(2'147'483, 647'999));
}

TEST(SystemTime, TurnsNegativeBehind31Bits) {
    EXPECT_EQ(0xFFFFFFFF80000000u, system_time_at(2'147'483, 648'000));
    EXPECT_EQ(0xFFFFFFFFFFFFFFFFu, system_time_at(4'294'967, 295'000));
}

TEST(SystemTime, WrapsBehind32Bits) {
    EXPECT_EQ(0u, system_time_at(4'294'967, 296'000));
    // 2020-01-01 00:00 UTC: 1,577,836,800,000 ms is 0x16F'5E66E800.
    EXPECT_EQ(0x5E66E800u, system_time_at(1'577'836'800, 0));
    // 2021-01-01 00:00 UTC: 1,609,459,200,000 ms is 0x176'BB3E7000.
    EXPECT_EQ(0xFFFFFFFFBB3E7000u, system_time_at(1'609'459'200, 0));
}

std::uint32_t tick_count_at(clock_t ticks) {
    tick_clock = ticks;
    const std::uint32_t count = GetTickCount();
    tick_clock.reset();
    return count;
}

TEST(TickCount, IsTheTickClockInMilliseconds) {
    ASSERT_EQ(100, ::sysconf(_SC_CLK_TCK));
    EXPECT_EQ(0u, tick_count_at(0));
    EXPECT_EQ(10u, tick_count_at(1));
    EXPECT_EQ(42'949'670u, tick_count_at(4'294'967));
}

TEST(TickCount, WrapsInTheProductBeforeTheDivision) {
    ASSERT_EQ(100, ::sysconf(_SC_CLK_TCK));
    // 4,294,968 x 1000 is 704 more than 32 bits hold.
    EXPECT_EQ(7u, tick_count_at(4'294'968));
}

TEST(TickCount, TakesTheLow32BitsOfTheTicks) {
    ASSERT_EQ(100, ::sysconf(_SC_CLK_TCK));
    EXPECT_EQ(50u, tick_count_at((clock_t{1} << 32) + 5));
}

TEST(TickCount, RunsWithTheRealTime) {
    const std::uint32_t before = GetTickCount();
    ::usleep(60'000);
    const std::uint32_t elapsed = GetTickCount() - before;
    EXPECT_GE(elapsed, 40u);
    EXPECT_LT(elapsed, 42'949'670u);
}

} // namespace
} // namespace velmora
