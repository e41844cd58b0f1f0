#pragma once

#include <string>
#include <string_view>

/** Parental ratings as the item iTunEXTC of MP4 files has them: "system|rating|number|note". */
namespace velmora::portable {

/** The rating in TEXT; all of it where it is not made so. */
[[nodiscard]] std::string rating_in(std::string_view text);

/** The text for RATING where OLD was: OLD itself when that says RATING; otherwise under the system "mpaa",
   with that system's number, or 0 for what is no rating of it. Throws a Refusal where RATING has the sign in
   it that separates the parts. */
[[nodiscard]] std::string text_with_rating(std::string_view old, std::string_view rating);

} // namespace velmora::portable
