#pragma once

#include "portable/detail/tagged_file.h"

#include <string>
#include <string_view>

/** Files taken apart and put together again in memory, for tests of a format by itself. */
namespace velmora::test {

/** The bytes of RANGES in FILE, one behind the other. */
[[nodiscard]] std::string bytes_of(std::string_view file, const std::vector<portable::Range>& ranges);

/** What BYTES, a file named with EXTENSION, say. Throws a Refusal. */
[[nodiscard]] portable::TagValues values_in(std::string_view bytes, std::string_view extension);

/** BYTES, a file named with EXTENSION, with EDITS in it. Fails the test unless the new file says what was
   asked for, has every other item, and the same media, where its offsets find them. Throws a Refusal. */
[[nodiscard]] std::string edited(std::string_view bytes, std::string_view extension,
                                 const portable::TagEdits& edits);

/** BYTES without any tag, under the same conditions. */
[[nodiscard]] std::string without_tags(std::string_view bytes, std::string_view extension);

/** Checks MADE, as what OLD became, by the format's own check of what moved. Throws a Refusal. */
void check_moved(std::string_view old, std::string_view made, std::string_view extension);

/** The edits that set FIELD, one of the text fields, to TEXT or delete it, and leave all others alone. */
[[nodiscard]] portable::TagEdits set_text(portable::Field field, std::string text);
[[nodiscard]] portable::TagEdits remove_text(portable::Field field);

/** The sentence of the refusal that ACTION throws; empty when it throws none. */
[[nodiscard]] std::string refusal_of(const std::function<void()>& action);

} // namespace velmora::test
