#pragma once

#include "harness.h"

#include "portable/portable_tags.h"

/** What the targets for the portable tags share. */
namespace velmora::fuzz {

/** Takes a byte: which kind of file follows. */
[[nodiscard]] std::string_view take_extension(Input& input);

/** Takes what a save is asked to do with a file of that extension: two bytes that say which fields are set,
   and two that say which are deleted, a bit a field; then for each set text and the cover a length byte and
   the bytes, for the year two bytes. Fields that such a file does not have are left alone. */
[[nodiscard]] portable::TagEdits take_edits(Input& input, std::string_view extension);

/** Requires that each text is UTF-8 without a zero, and none is empty. */
void require_sound(const portable::TagValues& values);

} // namespace velmora::fuzz
