#pragma once

#include <optional>
#include <string>
#include <string_view>

/** Dates as tags write them: "1994", "1994-05-03", "19940503", "3.5.1994". */
namespace velmora::portable {

/** The year of DATE: the first four of its first four digits in a row, or all of it where it is a number of
   fewer. Nothing where there is none; the year 0 is none. */
[[nodiscard]] std::optional<int> year_of(std::string_view date);

/** The text for YEAR where DATE was: DATE itself, month and day included, when its year is YEAR, and
   otherwise the year alone in four digits. */
[[nodiscard]] std::string date_with_year(std::string_view date, int year);

} // namespace velmora::portable
