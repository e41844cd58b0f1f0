#pragma once

#include "command_line.h"
#include "file_walk.h"

namespace velmora::tag_tool {

/** Writes into the tags of FILES, or removes them, as REQUEST asks. Returns whether all went well. */
[[nodiscard]] bool change_files(const Request& request, const std::vector<FoundFile>& files);

} // namespace velmora::tag_tool
