#pragma once

#include <map>
#include <string>
#include <vector>

namespace velmora::test {

/** What TagLib finds in an ASF file. */
struct TagLibView {
    bool valid = false;
    std::string title; ///< of the content description, as is the author
    std::string author;
    std::string copyright;
    std::map<std::string, std::vector<std::string>> attributes; ///< texts; numbers in decimal
    std::string picture;                                        ///< the first picture's bytes
    std::string picture_mime_type;
};

[[nodiscard]] TagLibView read_with_taglib(const std::string& path);

} // namespace velmora::test
