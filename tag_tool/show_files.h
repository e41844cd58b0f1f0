#pragma once

#include "command_line.h"
#include "file_walk.h"

namespace velmora::tag_tool {

/** Prints what the tags of FILES say, as REQUEST asks. Returns whether all could be read. */
[[nodiscard]] bool show_files(const Request& request, const std::vector<FoundFile>& files);

} // namespace velmora::tag_tool
