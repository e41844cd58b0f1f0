#pragma once

#include "byte_appending.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/** What the frames of ID3v2 hold: texts, described texts and pictures. */
namespace velmora::portable {

/** A text with a description: a comment (with a language) or a user-defined text (without). */
struct DescribedText {
    std::string language; ///< three letters, or empty
    std::string description;
    std::vector<std::string> values;
};

struct AttachedPicture {
    std::string mime; ///< made from the three letters of 2.2
    std::uint8_t type = 0;
    Bytes description; ///< with its encoding's byte in front, as it lies there, without its end
    Bytes bytes;
};

/** The values of a text frame's content, without the empty ones. */
[[nodiscard]] std::vector<std::string> text_values(std::span<const std::uint8_t> content);
/** The values of a genre frame: numbers are names. */
[[nodiscard]] std::vector<std::string> genre_values(std::span<const std::uint8_t> content);
/** The genres that TEXT, one value of a genre frame, names: "17", "(17)", "(4)Italo", "Trip Hop". */
[[nodiscard]] std::vector<std::string> genres_of(std::string_view text);
/** HAS_LANGUAGE: of a comment. All are empty where CONTENT ends in front of a description's end. */
[[nodiscard]] DescribedText described_text(std::span<const std::uint8_t> content, bool has_language);
/** No bytes where CONTENT is no picture, or only a link to one. */
[[nodiscard]] AttachedPicture attached_picture(std::span<const std::uint8_t> content, std::uint8_t version);

/* The contents of frames of a tag of VERSION. Texts are UTF-8 in 2.4; before that UTF-16 unless they are
ASCII. */
[[nodiscard]] Bytes text_content(std::string_view text, std::uint8_t version);
[[nodiscard]] Bytes genre_content(std::string_view genre, std::uint8_t version);
[[nodiscard]] Bytes described_content(const DescribedText& text, std::uint8_t version);
[[nodiscard]] Bytes picture_content(const AttachedPicture& picture, std::uint8_t version);

/** The name of genre NUMBER of ID3v1, or nothing in it. */
[[nodiscard]] std::string genre_name(int number);
/** The number of the genre of that name, in any case; 255 where there is none. */
[[nodiscard]] std::uint8_t genre_number(std::string_view name);

} // namespace velmora::portable
