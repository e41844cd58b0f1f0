#include "portable_input.h"

#include <algorithm>
#include <array>

namespace velmora::fuzz {

namespace {

using portable::Edit;
using portable::Field;
using portable::Media;

constexpr std::array<std::string_view, 12> extensions = {"mp3", "flac", "m4a", "mp4",  "wav",  "wma",
                                                         "wmv", "avi",  "ogg", "opus", "aiff", "mpg"};

bool has_field(Media media, Field field) {
    const bool film = media == Media::video;
    return field == Field::album ? !film : field == Field::director || field == Field::rating ? film : true;
}

/** Bytes of the character that LEAD begins; 0 for none. */
std::size_t character_size(unsigned char lead) {
    return lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
}

bool is_sound(const std::string& text) {
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t size = character_size(static_cast<unsigned char>(text[i]));
        if (size == 0 || text[i] == 0 || size > text.size() - i) {
            return false;
        }
        const bool whole = std::all_of(text.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                                       text.begin() + static_cast<std::ptrdiff_t>(i + size),
                                       [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; });
        if (!whole) {
            return false;
        }
        i += size;
    }
    return !text.empty();
}

} // namespace

std::string_view take_extension(Input& input) {
    return extensions[input.byte() % extensions.size()];
}

portable::TagEdits take_edits(Input& input, std::string_view extension) {
    const auto kind = portable::media_kind("x." + std::string(extension));
    const std::uint64_t set = input.number(2);
    const std::uint64_t deleted = input.number(2);
    portable::TagEdits edits;
    for (std::size_t i = 0; i < portable::field_count; ++i) {
        const auto field = static_cast<Field>(i);
        const bool sets = (set >> i & 1) != 0;
        const bool deletes = (deleted >> i & 1) != 0;
        if (!fuzz::has_field(kind->media, field) || (!sets && !deletes)) {
            continue;
        }
        if (field == Field::year) {
            edits.year =
                sets ? Edit<int>::set(static_cast<int>(input.number(2) % 10000)) : Edit<int>::remove();
        } else if (field == Field::cover) {
            const std::string bytes = sets ? input.bytes() : std::string();
            edits.cover = sets ? Edit<portable::Cover>::set({{bytes.begin(), bytes.end()}, "image/png"})
                               : Edit<portable::Cover>::remove();
        } else {
            edits.text(field) = sets ? Edit<std::string>::set(input.text()) : Edit<std::string>::remove();
        }
    }
    return edits;
}

void require_sound(const portable::TagValues& values) {
    for (const auto& text : values.texts) {
        require(!text || is_sound(*text), "a text is UTF-8, and not empty");
    }
    require(!values.year || *values.year != 0, "a year is a number");
    require(!values.cover || !values.cover->bytes.empty(), "a cover has bytes");
}

} // namespace velmora::fuzz
