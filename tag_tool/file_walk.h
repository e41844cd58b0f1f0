#pragma once

#include <string>
#include <vector>

namespace velmora::tag_tool {

/** A file to work on, or a path with which nothing can be done, and why. */
struct FoundFile {
    std::string path;
    std::string failure; ///< empty: none
};

/** The files that PATHS stand for, in their order. With RECURSIVE a folder stands for the files in it and
   below that the program knows by their extensions, in bytewise order of names; linked folders are not
   entered, and a DVD's folder stands for its video_ts.ifo. Without it a folder is a failure. */
[[nodiscard]] std::vector<FoundFile> find_files(const std::vector<std::string>& paths, bool recursive);

} // namespace velmora::tag_tool
