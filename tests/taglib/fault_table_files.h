#pragma once

#include <cstdint>
#include <string>

/** Files for the fault table, put together without the code under test: each with the tag "Old", so that what
   a store of "New" may change of them is known to the byte. */
namespace velmora::test {

/** A file, and where the parts of it are that no store may lose. */
struct MediaSample {
    std::string bytes;
    std::size_t media = 0; ///< where the media data begins, behind a header where there is one
    std::size_t media_size = 0;
    std::size_t tag = 0; ///< where the part begins that a store in place may write to
    std::size_t tag_size = 0;
};

/** Media of SIZE bytes with an ID3v2.4 tag behind it. */
[[nodiscard]] MediaSample id3_appended_sample(std::size_t size);
/** The same with the tag in front. */
[[nodiscard]] MediaSample id3_leading_sample(std::size_t size);
/** An ID3v2.4 tag with a footer and nothing else. */
[[nodiscard]] MediaSample id3_side_file_sample();

/** An ASF file with data of SIZE bytes, whose header ends with PADDING bytes of padding; 0: with another
    object. ALBUM is the text of WM/AlbumTitle. */
[[nodiscard]] MediaSample asf_sample(std::size_t size, std::size_t padding, const std::string& album);

/** Where the INFO list of an AVI file is. */
enum class AviInfo { none, in_front, last };
/** An AVI file; its media is the list "movi". */
[[nodiscard]] MediaSample avi_sample(std::size_t size, AviInfo info);

} // namespace velmora::test
