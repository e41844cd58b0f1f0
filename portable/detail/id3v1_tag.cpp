#include "id3v1_tag.h"

#include "date_text.h"
#include "id3v2_text.h"
#include "text.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace velmora::portable {

namespace {

struct Slot {
    const char* name;
    std::size_t begin;
    std::size_t size;
    std::optional<Field> field;
};

constexpr Slot genre_slot{"ID3v1 genre", 127, 1, Field::genre};
constexpr Slot year_slot{"ID3v1 year", 93, 4, Field::year};
constexpr std::array text_slots = {
    Slot{"ID3v1 title", 3, 30, Field::title},
    Slot{"ID3v1 artist", 33, 30, Field::artist},
    Slot{"ID3v1 album", 63, 30, Field::album},
};
/** With the number of the track, where there is one. */
constexpr Slot comment_slot{"ID3v1 comment", 97, 30, std::nullopt};
constexpr std::uint8_t no_genre = 255;

std::string text_in(std::span<const std::uint8_t> bytes) {
    std::string text = utf8_from_latin1(bytes);
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

} // namespace

std::optional<Id3v1Tag> Id3v1Tag::parse(std::span<const std::uint8_t> bytes) {
    if (bytes.size() != size || std::memcmp(bytes.data(), "TAG", 3) != 0) {
        return std::nullopt;
    }
    Id3v1Tag tag;
    std::copy(bytes.begin(), bytes.end(), tag.bytes_.begin());
    return tag;
}

TagValues Id3v1Tag::values() const {
    const std::span<const std::uint8_t> all(bytes_);
    TagValues values;
    for (const Slot& slot : text_slots) {
        std::string text = text_in(all.subspan(slot.begin, slot.size));
        if (!text.empty()) {
            values.text(*slot.field) = std::move(text);
        }
    }
    values.year = year_of(text_in(all.subspan(year_slot.begin, year_slot.size)));
    std::string genre = genre_name(bytes_[genre_slot.begin]);
    if (!genre.empty()) {
        values.text(Field::genre) = std::move(genre);
    }
    return values;
}

std::vector<TagItem> Id3v1Tag::items() const {
    std::vector<TagItem> items;
    const auto add = [&](const Slot& slot) {
        const auto begin = bytes_.begin() + static_cast<std::ptrdiff_t>(slot.begin);
        items.push_back({slot.name, {begin, begin + static_cast<std::ptrdiff_t>(slot.size)}, slot.field});
    };
    std::for_each(text_slots.begin(), text_slots.end(), add);
    add(year_slot);
    add(comment_slot);
    add(genre_slot);
    return items;
}

void Id3v1Tag::apply(const TagEdits& edits) {
    const TagValues old = values();
    const auto put = [&](const Slot& slot, const std::vector<std::uint8_t>& text) {
        const auto begin = bytes_.begin() + static_cast<std::ptrdiff_t>(slot.begin);
        std::fill_n(begin, slot.size, std::uint8_t{0});
        std::copy_n(text.begin(), std::min(text.size(), slot.size), begin);
    };
    for (const Slot& slot : text_slots) {
        const Edit<std::string>& edit = edits.text(*slot.field);
        if (!edit.leaves_alone() && edit.value() != old.text(*slot.field)) {
            put(slot, latin1_from_utf8(edit.value().value_or(std::string())));
        }
    }
    if (!edits.year.leaves_alone() && edits.year.value() != old.year) {
        put(year_slot, edits.year.sets() ? latin1_from_utf8(date_with_year({}, *edits.year.value()))
                                         : std::vector<std::uint8_t>());
    }
    if (const Edit<std::string>& genre = edits.text(Field::genre); !genre.leaves_alone()) {
        bytes_[genre_slot.begin] = genre.sets() ? genre_number(*genre.value()) : no_genre;
    }
}

} // namespace velmora::portable
