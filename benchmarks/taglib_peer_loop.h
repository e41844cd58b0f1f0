#pragma once

#include <string>
#include <vector>

/** Reads the tags of the files at PATHS with TagLib's FileRef on all cores, and says how much text they
   hold. */
[[nodiscard]] unsigned long lengthOfTags(const std::vector<std::string>& paths);
