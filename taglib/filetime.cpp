#include "filetime.h"

#include <cstdio>
#include <ctime>
#include <optional>
#include <sys/time.h>
#include <sys/times.h>
#include <unistd.h>

namespace velmora {

namespace {

constexpr std::int64_t seconds_between_epochs = 11'644'473'600;
constexpr std::int64_t units_per_second = 10'000'000;

/** Local broken-down time as seconds since 1970 in 64 bits; nothing when no calendar has it. */
std::optional<std::int64_t> seconds_of_local_time(std::tm time) {
    time.tm_isdst = -1;
    time.tm_wday = -1; // stays so only on failure: -1 alone is also the second before 1970
    const std::time_t seconds = std::mktime(&time);
    return time.tm_wday < 0 ? std::nullopt : std::optional<std::int64_t>(seconds);
}

} // namespace

void timet_to_filetime(std::int32_t seconds, FILETIME* time) {
    *time = filetime_from_value(
        static_cast<std::uint64_t>((seconds + seconds_between_epochs) * units_per_second));
}

std::int32_t filetime_to_timet(FILETIME time) {
    const std::uint64_t seconds = filetime_value(time) / units_per_second;
    if (seconds <= seconds_between_epochs) {
        return 0;
    }
    return static_cast<std::int32_t>(seconds - seconds_between_epochs);
}

std::int32_t ParseID3Time(const char* text) {
    std::tm time{};
    int zone_hours = 0;
    int zone_minutes = 0;
    const int values =
        std::sscanf(text, "%d-%d-%dT:%d:%d:%d+%d:%d", &time.tm_year, &time.tm_mon, &time.tm_mday,
                    &time.tm_hour, &time.tm_min, &time.tm_sec, &zone_hours, &zone_minutes);
    if (values < 6 || time.tm_year < 1900 || time.tm_mon < 1) {
        return 0;
    }
    time.tm_year -= 1900;
    time.tm_mon -= 1;
    const std::optional<std::int64_t> seconds = seconds_of_local_time(time);
    const std::int64_t zone = (std::int64_t{zone_hours} * 60 + zone_minutes) * 60;
    return seconds ? static_cast<std::int32_t>(*seconds + zone) : 0;
}

char* FormatID3Time(std::int32_t seconds, char* text) {
    const std::time_t moment = seconds;
    std::tm time{};
    ::tzset(); // unlike mktime, localtime_r need not look whether the zone has changed
    if (seconds == 0 || !text || !::localtime_r(&moment, &time)) {
        return text;
    }
    std::snprintf(text, id3_time_capacity, "%d-%02d-%02dT:%02d:%02d:%02d+%d:%d", time.tm_year + 1900,
                  time.tm_mon + 1, time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec, 0, 0);
    return text;
}

void GetSystemTimeAsFileTime(FILETIME* time) {
    timeval now{};
    ::gettimeofday(&now, nullptr);
    const std::uint32_t milliseconds =
        static_cast<std::uint32_t>(now.tv_sec) * 1000u + static_cast<std::uint32_t>(now.tv_usec) / 1000u;
    const std::int64_t extended = static_cast<std::int32_t>(milliseconds);
    *time = filetime_from_value(static_cast<std::uint64_t>(extended));
}

std::uint32_t GetTickCount() {
    tms unused{};
    const auto ticks = static_cast<std::uint32_t>(::times(&unused));
    return ticks * 1000u / static_cast<std::uint32_t>(::sysconf(_SC_CLK_TCK));
}

std::int64_t llmuldiv(std::int64_t a, std::int64_t b, std::int64_t c) {
    // Unsigned arithmetic wraps where signed would be undefined.
    const std::uint64_t product = static_cast<std::uint64_t>(a) * static_cast<std::uint64_t>(b);
    if (c == 0) {
        return 0;
    }
    if (c == -1) {
        return static_cast<std::int64_t>(0 - product);
    }
    return static_cast<std::int64_t>(product + static_cast<std::uint64_t>(c / 2)) / c;
}

} // namespace velmora
