#pragma once

#include <string>
#include <string_view>

namespace velmora::tag_tool {

/** TEXT as it can be shown in one line of a terminal: control characters are escaped as in C. */
[[nodiscard]] std::string in_one_line(std::string_view text);

/** Writes TEXT to standard output, which collects. */
void print(std::string_view text);
/** Writes what was collected. False where some of it could not be written; a line on standard error says
   why. */
[[nodiscard]] bool finish_printing();

/** Writes the line "PATH: REASON" to standard error. */
void print_failure(std::string_view path, std::string_view reason);

} // namespace velmora::tag_tool
