#include "id3v2_text.h"

#include "picture_mime.h"
#include "text.h"

#include <algorithm>
#include <charconv>
#include <id3v1genres.h>

namespace velmora::portable {

namespace {

using ByteView = std::span<const std::uint8_t>;

namespace encoding {
constexpr std::uint8_t latin1 = 0;
constexpr std::uint8_t utf16 = 1; ///< with a byte order mark
constexpr std::uint8_t utf16_big_endian = 2;
constexpr std::uint8_t utf8 = 3;
} // namespace encoding

constexpr std::size_t language_size = 3;

bool is_wide(std::uint8_t encoding) {
    return encoding == encoding::utf16 || encoding == encoding::utf16_big_endian;
}

/** Where the text at the beginning of BYTES ends: in front of a zero, or at their end. */
std::size_t text_size(ByteView bytes, std::uint8_t encoding) {
    if (!is_wide(encoding)) {
        return static_cast<std::size_t>(std::find(bytes.begin(), bytes.end(), 0) - bytes.begin());
    }
    std::size_t size = 0;
    while (size + 1 < bytes.size() && (bytes[size] != 0 || bytes[size + 1] != 0)) {
        size += 2;
    }
    return size + 1 < bytes.size() ? size : bytes.size();
}

bool has_mark(ByteView bytes) {
    return bytes.size() >= 2 &&
           ((bytes[0] == 0xFF && bytes[1] == 0xFE) || (bytes[0] == 0xFE && bytes[1] == 0xFF));
}

/** The order of BYTES, UTF-16 under an encoding that promises a mark. */
std::endian order_of(ByteView bytes) {
    if (has_mark(bytes)) {
        return bytes[0] == 0xFE ? std::endian::big : std::endian::little;
    }
    const bool zero_first = bytes.size() >= 2 && bytes[0] == 0 && bytes[1] != 0;
    return zero_first ? std::endian::big : std::endian::little;
}

std::string decoded(ByteView bytes, std::uint8_t encoding, std::endian order) {
    switch (encoding) {
    case encoding::utf16:
        return utf8_from_utf16(bytes, order);
    case encoding::utf16_big_endian:
        return utf8_from_utf16(bytes, std::endian::big);
    case encoding::utf8:
        return valid_utf8({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    default:
        return utf8_from_latin1(bytes);
    }
}

/** Takes the text at the beginning of BYTES, with the zero behind it, off them. */
ByteView take_text(ByteView& bytes, std::uint8_t encoding) {
    const std::size_t size = text_size(bytes, encoding);
    const ByteView text = bytes.first(size);
    bytes = bytes.subspan(std::min(bytes.size(), size + (is_wide(encoding) ? 2 : 1)));
    return text;
}

std::vector<std::string> values_in(ByteView bytes, std::uint8_t encoding) {
    std::vector<std::string> values;
    const std::endian order = order_of(bytes); // of all values, where only the first has a mark
    while (!bytes.empty()) {
        std::string value = decoded(take_text(bytes, encoding), encoding, order);
        if (!value.empty()) {
            values.push_back(std::move(value));
        }
    }
    return values;
}

bool is_ascii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::uint8_t encoding_for(std::string_view text, std::uint8_t version) {
    return version >= 4 ? encoding::utf8 : is_ascii(text) ? encoding::latin1 : encoding::utf16;
}

void append_text(Bytes& bytes, std::string_view text, std::uint8_t encoding) {
    if (encoding == encoding::utf16) {
        append(bytes, Bytes{0xFF, 0xFE});
        append(bytes, utf16_from_utf8(text, std::endian::little));
    } else {
        append(bytes, text);
    }
}

void append_end(Bytes& bytes, std::uint8_t encoding) {
    bytes.resize(bytes.size() + (is_wide(encoding) ? 2 : 1));
}

/** The genre that a number, or one of two abbreviations, stands for; nothing in it where TEXT is neither. */
std::string referred_genre(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && end == text.data() + text.size() && number >= 0) {
        return genre_name(number);
    }
    return text == "RX" ? "Remix" : text == "CR" ? "Cover" : std::string();
}

std::string mime_of_format(std::string_view format) {
    return equal_ignoring_case(format, "JPG")   ? "image/jpeg"
           : equal_ignoring_case(format, "PNG") ? "image/png"
                                                : std::string(format);
}

} // namespace

std::vector<std::string> text_values(ByteView content) {
    return content.empty() || content[0] > encoding::utf8 ? std::vector<std::string>()
                                                          : values_in(content.subspan(1), content[0]);
}

std::vector<std::string> genres_of(std::string_view text) {
    std::vector<std::string> genres;
    while (text.starts_with('(') && !text.starts_with("((")) {
        const std::size_t end = text.find(')');
        const std::string genre =
            end == std::string_view::npos ? std::string() : referred_genre(text.substr(1, end - 1));
        if (genre.empty()) {
            break;
        }
        genres.push_back(genre);
        text.remove_prefix(end + 1);
    }
    text.remove_prefix(text.starts_with("((") ? 1 : 0);
    if (!text.empty()) {
        const std::string genre = referred_genre(text);
        genres.push_back(genre.empty() ? std::string(text) : genre);
    }
    return genres;
}

std::vector<std::string> genre_values(ByteView content) {
    std::vector<std::string> genres;
    for (const std::string& value : text_values(content)) {
        const std::vector<std::string> named = genres_of(value);
        genres.insert(genres.end(), named.begin(), named.end());
    }
    return genres;
}

DescribedText described_text(ByteView content, bool has_language) {
    DescribedText text;
    const std::size_t begin = 1 + (has_language ? language_size : 0);
    if (content.size() < begin || content[0] > encoding::utf8) {
        return text;
    }
    if (has_language) {
        text.language.assign(content.begin() + 1, content.begin() + begin);
    }
    const std::uint8_t encoding = content[0];
    ByteView rest = content.subspan(begin);
    const ByteView description = take_text(rest, encoding);
    text.description = decoded(description, encoding, order_of(description));
    text.values = values_in(rest, encoding);
    return text;
}

AttachedPicture attached_picture(ByteView content, std::uint8_t version) {
    AttachedPicture picture;
    if (content.empty() || content[0] > encoding::utf8) {
        return picture;
    }
    ByteView rest = content.subspan(1);
    if (version == 2) {
        const ByteView format = rest.first(std::min<std::size_t>(3, rest.size()));
        picture.mime = mime_of_format(utf8_from_latin1(format));
        rest = rest.subspan(format.size());
    } else {
        picture.mime = utf8_from_latin1(take_text(rest, encoding::latin1));
    }
    if (rest.empty() || picture.mime == "-->") {
        return picture;
    }
    picture.type = rest[0];
    rest = rest.subspan(1);
    const ByteView description = take_text(rest, content[0]);
    picture.description.push_back(content[0]);
    append(picture.description, description);
    picture.bytes.assign(rest.begin(), rest.end());
    if (picture.mime.find('/') == std::string::npos) {
        picture.mime = picture_mime(picture.bytes);
    }
    return picture;
}

Bytes text_content(std::string_view text, std::uint8_t version) {
    const std::uint8_t encoding = encoding_for(text, version);
    Bytes content{encoding};
    append_text(content, text, encoding);
    return content;
}

Bytes genre_content(std::string_view genre, std::uint8_t version) {
    const bool looks_like_number =
        genre.starts_with('(') && genres_of(genre) != std::vector<std::string>{std::string(genre)};
    return text_content(looks_like_number ? '(' + std::string(genre) : std::string(genre), version);
}

Bytes described_content(const DescribedText& text, std::uint8_t version) {
    const std::string value = joined(text.values);
    const std::uint8_t encoding = encoding_for(text.description + value, version);
    Bytes content{encoding};
    append(content, text.language);
    append_text(content, text.description, encoding);
    append_end(content, encoding);
    append_text(content, value, encoding);
    return content;
}

Bytes picture_content(const AttachedPicture& picture, std::uint8_t version) {
    const std::uint8_t encoding = picture.description.empty() ? encoding::latin1 : picture.description[0];
    Bytes content{encoding};
    if (version == 2) {
        const bool png = picture.mime == "image/png";
        append(content, std::string_view(png ? "PNG" : "JPG"));
    } else {
        append(content, latin1_from_utf8(picture.mime));
        append_end(content, encoding::latin1);
    }
    content.push_back(picture.type);
    append(content, ByteView(picture.description).subspan(picture.description.empty() ? 0 : 1));
    append_end(content, encoding);
    append(content, picture.bytes);
    return content;
}

std::string genre_name(int number) {
    return TagLib::ID3v1::genre(number).to8Bit(true);
}

std::uint8_t genre_number(std::string_view name) {
    constexpr int none = 255;
    for (int number = 0; number < none; ++number) {
        const std::string candidate = genre_name(number);
        if (!candidate.empty() && equal_ignoring_case(candidate, name)) {
            return static_cast<std::uint8_t>(number);
        }
    }
    return none;
}

} // namespace velmora::portable
