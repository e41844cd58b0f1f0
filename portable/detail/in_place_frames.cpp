#include "in_place_frames.h"

#include "id3v2_text.h"
#include "text.h"

#include "portable/reason.h"
#include "taglib/id3/genres.h"
#include "taglib/id3/text.h"

#include <algorithm>
#include <cstdlib>

namespace velmora::portable {

namespace {

constexpr std::size_t largest_text = 8191;
constexpr std::uint8_t picture_type_written = 0x10;

std::string_view up_to_zero(ByteView bytes) {
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return text.substr(0, std::min(text.find('\0'), largest_text));
}

/** A text as the media file model decodes it. */
std::string decoded(std::string_view text) {
    const std::string valid = valid_utf8(text);
    return valid == text
               ? valid
               : utf8_from_latin1({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

} // namespace

bool has_owner(const Id3v2Frame& frame, std::string_view owner) {
    return equal_ignoring_case(up_to_zero(frame.body), owner);
}

std::string text_of(const Id3v2Frame& frame) {
    if (frame.body.empty()) {
        return {};
    }
    const std::uint8_t encoding = frame.body[0];
    if (encoding == id3_encoding::latin1 || encoding == id3_encoding::utf8) {
        return decoded(up_to_zero(ByteView(frame.body).subspan(1)));
    }
    // It reads no UTF-16. What another program wrote into its tag must not be lost for that.
    return joined(text_values(frame.body));
}

std::string rating_of(const Id3v2Frame& frame) {
    const std::size_t owner = up_to_zero(frame.body).size();
    return owner < frame.body.size() ? decoded(up_to_zero(ByteView(frame.body).subspan(owner + 1)))
                                     : std::string();
}

std::string genre_of(const Id3v2Frame& frame) {
    const auto name = [](std::int64_t index) {
        const char* const text = id3_genre_name(index);
        return std::string(text ? text : "");
    };
    if (frame.body.size() == 1) {
        return name(frame.body[0]);
    }
    std::string text = text_of(frame);
    return text.starts_with('(') ? name(std::strtoll(text.c_str() + 1, nullptr, 10)) : text;
}

std::optional<int> year_of_frame(const Id3v2Frame& frame) {
    const std::string text(frame.body.empty() ? std::string_view()
                                              : up_to_zero(ByteView(frame.body).subspan(1)));
    const long year = std::strtol(text.c_str(), nullptr, 10);
    return year > 0 && year <= 9999 ? std::optional(static_cast<int>(year)) : std::nullopt;
}

std::optional<Cover> cover_of(const Id3v2Frame& frame) {
    AttachedPicture picture = attached_picture(frame.body, 4);
    const bool jpeg =
        equal_ignoring_case(picture.mime, "image/jpeg") || equal_ignoring_case(picture.mime, "image/jpg");
    if (!jpeg || picture.bytes.empty() || frame.body[0] != id3_encoding::latin1) {
        return std::nullopt;
    }
    return Cover{std::move(picture.bytes), "image/jpeg"};
}

Bytes text_body(std::string_view text) {
    if (text.size() > largest_text) {
        throw Refusal({ReasonCode::too_large, 0, "a text of more than 8,191 bytes"});
    }
    Bytes body{id3_encoding::latin1};
    append(body, text);
    return body;
}

Bytes rating_body(std::string_view rating) {
    Bytes body;
    append(body, in_place_rating_owner);
    append(body, text_body(rating)); // its first byte ends the owner
    return body;
}

Bytes cover_body(const Cover& cover) {
    if (cover.mime != "image/jpeg") {
        throw Refusal({ReasonCode::unsupported, 0, "its tag takes a JPEG as cover, and nothing else"});
    }
    AttachedPicture picture{cover.mime, picture_type_written, {}, cover.bytes};
    return picture_content(picture, 4);
}

std::vector<Id3v2Frame> in_place_frames(ByteView content, std::uint8_t version) {
    std::vector<Id3v2Frame> frames;
    while (content.size() >= in_place_record_size && load_be32(content.data()) != 0) {
        const std::uint32_t size =
            version >= 4 ? syncsafe_to_long(content.data() + 4) : load_be32(content.data() + 4);
        if (size > content.size() - in_place_record_size) {
            break;
        }
        const ByteView body = content.subspan(in_place_record_size, size);
        frames.push_back({std::string(content.begin(), content.begin() + 4), load_be16(content.data() + 8),
                          Bytes(body.begin(), body.end())});
        content = content.subspan(in_place_record_size + size);
    }
    return frames;
}

} // namespace velmora::portable
