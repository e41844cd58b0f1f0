#pragma once

#include <map>
#include <string>
#include <vector>

namespace velmora::test {

/** What libid3tag, a reader that is not ours, finds in a file: the values of each frame by its id. Texts are
   given as the ISO-8859-1 bytes that they were written as, pictures as their bytes, private frames as owner,
   zero and bytes. */
using ForeignTag = std::map<std::string, std::vector<std::string>>;
[[nodiscard]] ForeignTag read_with_libid3tag(const std::string& path);

} // namespace velmora::test
