#include "date_text.h"

#include <algorithm>
#include <cstddef>

namespace velmora::portable {

namespace {

constexpr std::size_t year_digits = 4;

bool is_digit(char letter) {
    return letter >= '0' && letter <= '9';
}

/** DIGITS are four at most. */
std::optional<int> year_in_digits(std::string_view digits) {
    int year = 0;
    for (const char digit : digits) {
        year = 10 * year + (digit - '0');
    }
    return year == 0 ? std::nullopt : std::optional(year);
}

} // namespace

std::optional<int> year_of(std::string_view date) {
    if (date.size() < year_digits && std::all_of(date.begin(), date.end(), is_digit)) {
        return year_in_digits(date);
    }
    for (std::size_t begin = 0; begin + year_digits <= date.size(); ++begin) {
        const std::string_view digits = date.substr(begin, year_digits);
        if (std::all_of(digits.begin(), digits.end(), is_digit)) {
            return year_in_digits(digits);
        }
    }
    return std::nullopt;
}

std::string date_with_year(std::string_view date, int year) {
    if (year_of(date) == year) {
        return std::string(date);
    }
    const std::string digits = std::to_string(year);
    return std::string(digits.size() < year_digits ? year_digits - digits.size() : 0, '0') + digits;
}

} // namespace velmora::portable
