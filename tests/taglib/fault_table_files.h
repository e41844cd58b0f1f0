#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/** Files for the fault table, put together without the code under test: each with every field that its format
   has, so that what a store of a title and a picture may change of them is known to the byte. */
namespace velmora::test {

/** What a tag holds, in the file's order: each field's name in the format and its raw bytes. Fields that the
   library does not know are among them. */
using TagFields = std::vector<std::pair<std::string, std::string>>;

/** A file, and where the parts of it are that no store may lose. */
struct MediaSample {
    std::string bytes;
    std::size_t media = 0; ///< where the media data begins, behind a header where there is one
    std::size_t media_size = 0;
    std::size_t tag = 0; ///< where the part begins that a store in place may write to
    std::size_t tag_size = 0;
    TagFields fields = {};
};

/** The picture that the samples hold, as bytes of an image. */
[[nodiscard]] std::string old_picture();
/** An APIC frame's body, and the value of WM/Picture, that hold the image of these BYTES. */
[[nodiscard]] std::string apic_body(const std::string& bytes);
[[nodiscard]] std::string wm_picture(const std::string& bytes);
/** Zero-terminated ASCII text as UTF-16LE, and with the attribute type of texts in front of it. */
[[nodiscard]] std::string wide(const std::string& ascii);
[[nodiscard]] std::string wide_attribute(const std::string& ascii);

/** Media of SIZE bytes with an ID3v2.4 tag behind it. */
[[nodiscard]] MediaSample id3_appended_sample(std::size_t size);
/** Media of SIZE bytes with an ID3v2.4 tag in front of it. */
[[nodiscard]] MediaSample id3_leading_sample(std::size_t size);
/** An ID3v2.4 tag with a footer and nothing else. */
[[nodiscard]] MediaSample id3_side_file_sample();

/** An ASF file with a data object of SIZE bytes, whose header ends with PADDING bytes of padding; 0: with
   another object. ALBUM is the text of WM/AlbumTitle. */
[[nodiscard]] MediaSample asf_sample(std::size_t size, std::size_t padding, const std::string& album);

/** Where the INFO list of an AVI file is. */
enum class AviInfo { none, in_front, last };
/** An AVI file; its media is the list "movi" and the index behind it. */
[[nodiscard]] MediaSample avi_sample(std::size_t size, AviInfo info);

} // namespace velmora::test
