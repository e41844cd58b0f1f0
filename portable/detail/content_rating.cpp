#include "content_rating.h"

#include "refusals.h"

#include <algorithm>
#include <array>

namespace velmora::portable {

namespace {

struct RatingNumber {
    std::string_view rating;
    std::string_view number;
};
constexpr std::array rating_numbers = {
    RatingNumber{"NR", "000"},    RatingNumber{"G", "100"}, RatingNumber{"PG", "200"},
    RatingNumber{"PG-13", "300"}, RatingNumber{"R", "400"}, RatingNumber{"NC-17", "500"},
};

} // namespace

std::string rating_in(std::string_view text) {
    const std::size_t begin = text.find('|');
    if (begin == std::string_view::npos) {
        return std::string(text);
    }
    text.remove_prefix(begin + 1);
    return std::string(text.substr(0, text.find('|')));
}

std::string text_with_rating(std::string_view old, std::string_view rating) {
    if (rating.find('|') != std::string_view::npos) {
        refuse_unsupported("a rating with the sign | in it");
    }
    if (!old.empty() && rating_in(old) == rating) {
        return std::string(old);
    }
    const auto* const known = std::find_if(rating_numbers.begin(), rating_numbers.end(),
                                           [&](const RatingNumber& row) { return row.rating == rating; });
    const std::string_view number = known == rating_numbers.end() ? "0" : known->number;
    return "mpaa|" + std::string(rating) + "|" + std::string(number) + "|";
}

} // namespace velmora::portable
