#pragma once

#include "portable/tag_values.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

/** What a user asks of the program, taken from its command line. */
namespace velmora::tag_tool {

struct Request {
    enum class Command { show, set, remove };

    Command command = Command::show;
    std::vector<std::string> paths; ///< in the file system's encoding
    bool recursive = false;
    bool json = false;        ///< show
    bool dry_run = false;     ///< set, remove
    bool break_links = false; ///< set, remove
    bool all = false;         ///< remove: every tag whole
    portable::TagEdits edits; ///< set; the artist and the cast are in the same field
    bool names_artist = false;
    bool names_cast = false;
    std::string cover_path; ///< set: a file whose bytes are to be the cover; empty: none
};

/** The program is done, and ends with this. */
struct Ending {
    int status = 0;
    std::string output; ///< for standard output
    std::string error;  ///< for standard error
};

/** What ARGUMENTS (without the program's name) ask for. Wrong use is an Ending with status 2. */
[[nodiscard]] std::variant<Request, Ending> parse_command_line(std::vector<std::string> arguments);

} // namespace velmora::tag_tool
