#pragma once

#include "library_column.h"

#include "portable/tag_values.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora {

/** What can be missing in a row, as bits: bit N is the field of that number; the bit behind the fields is the
   tag as a whole. */
using MissingBits = std::uint16_t;

inline constexpr MissingBits missingTag = 1U << portable::field_count;

[[nodiscard]] constexpr MissingBits missingBit(portable::Field field) {
    return static_cast<MissingBits>(1U << static_cast<unsigned>(field));
}

/** What a filter looks at in a row, wherever it is kept. */
struct FilterView {
    std::string_view folded; ///< the columns' texts, folded, each with a line break behind it
    int year = 0;            ///< 0: not known
    MissingBits missing = 0;
};

/** What a filter looks at in a row: 16 bytes and one text, in which the columns stand folded one behind the
   other. */
class FilterText {
public:
    FilterText() = default;
    /** Of a row that shows TEXTS, was made in YEAR (0: not known), and lacks MISSING. A row whose tags were
       not read yet lacks nothing. */
    FilterText(const RowTexts& texts, int year, MissingBits missing);

    /** The columns' texts, folded, each with a line break behind it. */
    [[nodiscard]] const std::string& folded() const { return folded_; }
    [[nodiscard]] int year() const { return year_; }
    [[nodiscard]] MissingBits missing() const { return missing_; }
    /** Good as long as this object. */
    operator FilterView() const { return {folded_, year_, missing_}; }

private:
    std::string folded_;
    std::int16_t year_ = 0;
    MissingBits missing_ = 0;
};

} // namespace velmora
