#pragma once

#include <string>

namespace velmora::test {

/** Runs a shell command and returns all that it printed on both its streams; a failed command fails the test.
 */
std::string run_command(const std::string& command);

/** TEXT as one word of a shell command. */
[[nodiscard]] std::string shell_word(const std::string& text);

} // namespace velmora::test
