#pragma once

#include <map>
#include <string>

namespace velmora::test {

/** Runs a shell command and returns all that it printed on both its streams; a failed command
   fails the test. */
std::string run_command(const std::string& command);

/** Makes the file at PATH by COMMAND, behind which the path comes and which has nothing to say. A file that
   the process has made by the same command is written again instead: what others make takes longer than what
   is done with it. */
void make_file(const std::string& command, const std::string& path);

/** What FRONT, the path and BEHIND print as one command about the file at PATH. The command runs once in a
   process for each contents of a file. */
std::string run_on_file(const std::string& front, const std::string& path, const std::string& behind);

/** The tags that ffprobe finds in the file at PATH: values in UTF-8 by the names that it gives them. Fails
   the test when ffprobe fails. */
[[nodiscard]] std::map<std::string, std::string> probed_tags(const std::string& path);

/** TEXT as one word of a shell command. */
[[nodiscard]] std::string shell_word(const std::string& text);

} // namespace velmora::test
