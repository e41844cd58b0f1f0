#pragma once

#include <string>

/** Refusals in one word. */
namespace velmora::portable {

/** Throws the Refusal for a container that contradicts itself; DETAIL says what was met, in the format's
   terms. */
[[noreturn]] void refuse_damaged(std::string detail);

/** Throws the Refusal for a file that is whole, but of a sort that can't be written safely; DETAIL says
   which. */
[[noreturn]] void refuse_unsupported(std::string detail);

/** Throws the Refusal for what is larger than the format takes; DETAIL says what. */
[[noreturn]] void refuse_too_large(std::string detail);

} // namespace velmora::portable
