#include "time_text.h"

#include <cstdint>
#include <cstdio>
#include <ctime>

namespace velmora {

int id3_parse_time(const char* text, FILETIME* time) {
    std::tm parts{};
    int zone_hours = 0;
    int zone_minutes = 0;
    const int count =
        std::sscanf(text, "%d-%d-%dT:%d:%d:%d+%d:%d", &parts.tm_year, &parts.tm_mon, &parts.tm_mday,
                    &parts.tm_hour, &parts.tm_min, &parts.tm_sec, &zone_hours, &zone_minutes);
    if (count < 6 || parts.tm_year < 1900 || parts.tm_mon < 1) {
        return 0;
    }
    if (count > 6) {
        parts.tm_gmtoff = (zone_hours * 60L + zone_minutes) * 60L; // mktime takes no notice of it
    }
    timet_to_filetime(static_cast<std::int32_t>(std::mktime(&parts)), time);
    return 1;
}

int id3_store_time(FILETIME time, char* text, std::size_t capacity) {
    const std::time_t seconds = filetime_to_timet(time);
    std::tm parts{};
    ::tzset();
    ::localtime_r(&seconds, &parts);
    return std::snprintf(text, capacity, "%d-%02d-%02dT:%02d:%02d:%02d+%d:%d", parts.tm_year, parts.tm_mon,
                         parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec,
                         static_cast<int>(parts.tm_gmtoff / 3600),
                         static_cast<int>(parts.tm_gmtoff % 3600 / 60));
}

} // namespace velmora
