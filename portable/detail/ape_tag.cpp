#include "ape_tag.h"

#include "date_text.h"
#include "id3v2_text.h"
#include "picture_mime.h"
#include "text.h"

#include "portable/reason.h"

#include <algorithm>
#include <cstring>

namespace velmora::portable {

namespace {

constexpr std::uint32_t most_items = 250'000; ///< what no tag has, and little memory

constexpr std::string_view signature = "APETAGEX";
constexpr std::uint32_t has_header = 1u << 31;
constexpr std::uint32_t is_header = 1u << 29;
constexpr std::uint32_t value_type = 0x6;
constexpr std::uint32_t binary_value = 0x2;

struct KeyRow {
    std::string_view key;
    Field field;
};

constexpr std::array keys = {
    KeyRow{"Title", Field::title},
    KeyRow{"Artist", Field::artist},
    KeyRow{"Album", Field::album},
    KeyRow{"Comment", Field::synopsis},
    KeyRow{"Genre", Field::genre},
    KeyRow{"Year", Field::year},
    KeyRow{"Cover Art (Front)", Field::cover},
};

[[noreturn]] void refuse_damaged() {
    throw Refusal({ReasonCode::damaged, 0, "APE tag"});
}

/** The bytes of a picture behind its file name, both in VALUE. */
std::span<const std::uint8_t> picture_in(std::span<const std::uint8_t> value) {
    const auto end = std::find(value.begin(), value.end(), 0);
    return end == value.end() ? std::span<const std::uint8_t>() : std::span(end + 1, value.end());
}

} // namespace

std::optional<std::uint64_t> ApeTag::size_by(std::span<const std::uint8_t> footer) {
    if (std::memcmp(footer.data(), signature.data(), signature.size()) != 0) {
        return std::nullopt;
    }
    const std::uint32_t flags = load_le32(footer.data() + 20);
    return std::uint64_t{load_le32(footer.data() + 12)} + ((flags & has_header) != 0 ? footer_size : 0);
}

ApeTag::ApeTag(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < footer_size) {
        refuse_damaged();
    }
    const auto footer = bytes.last(footer_size);
    version_ = load_le32(footer.data() + 8);
    flags_ = load_le32(footer.data() + 20);
    const std::uint32_t count = load_le32(footer.data() + 16);
    if (count > most_items) {
        throw Refusal({ReasonCode::too_large, 0, "items of an APE tag"});
    }
    const std::size_t begin = (flags_ & has_header) != 0 ? footer_size : 0;
    if (bytes.size() < begin + footer_size) {
        refuse_damaged();
    }
    auto rest = bytes.subspan(begin, bytes.size() - begin - footer_size);
    while (!rest.empty() && items_.size() <= count) {
        constexpr std::size_t numbers = 8;
        const auto key_end =
            rest.size() > numbers ? std::find(rest.begin() + numbers, rest.end(), 0) : rest.end();
        if (key_end == rest.end()) {
            refuse_damaged();
        }
        const std::uint32_t size = load_le32(rest.data());
        Item item{std::string(rest.begin() + numbers, key_end), load_le32(rest.data() + 4), {}};
        const auto value = rest.subspan(static_cast<std::size_t>(key_end - rest.begin()) + 1);
        if (size > value.size()) {
            refuse_damaged();
        }
        item.value.assign(value.begin(), value.begin() + size);
        items_.push_back(std::move(item));
        rest = value.subspan(size);
    }
    if (items_.size() != count) {
        refuse_damaged();
    }
}

std::optional<Field> ApeTag::field_of(const Item& item, Media media) {
    const auto* const row = std::find_if(keys.begin(), keys.end(), [&](const KeyRow& candidate) {
        return equal_ignoring_case(candidate.key, item.key);
    });
    const bool known = row != keys.end() && !(row->field == Field::album && media == Media::video);
    return known ? std::optional(row->field) : std::nullopt;
}

std::vector<std::string> ApeTag::texts_of(const Item& item) const {
    if ((item.flags & value_type) == binary_value) {
        return {};
    }
    std::vector<std::string> values;
    std::span<const std::uint8_t> rest = item.value;
    while (!rest.empty()) {
        const auto end = std::find(rest.begin(), rest.end(), 0);
        const std::span value(rest.begin(), end);
        values.push_back(version_ >= 2000
                             ? valid_utf8({reinterpret_cast<const char*>(value.data()), value.size()})
                             : utf8_from_latin1(value));
        rest = end == rest.end() ? std::span<const std::uint8_t>() : std::span(end + 1, rest.end());
    }
    std::erase(values, std::string());
    return values;
}

std::string ApeTag::text_of(const Item& item) const {
    return joined(texts_of(item));
}

std::vector<std::string> ApeTag::texts(Field field, Media media) const {
    for (const Item& item : items_) {
        std::vector<std::string> texts =
            field_of(item, media) == field ? texts_of(item) : std::vector<std::string>();
        if (!texts.empty()) {
            return texts;
        }
    }
    return {};
}

TagValues ApeTag::values(Media media) const {
    TagValues values;
    for (const Item& item : items_) {
        const std::optional<Field> field = field_of(item, media);
        if (field == Field::cover) {
            const auto picture = picture_in(item.value);
            if (!values.cover && !picture.empty()) {
                values.cover = Cover{{picture.begin(), picture.end()}, picture_mime(picture)};
            }
        } else if (field == Field::year) {
            values.year = values.year ? values.year : year_of(text_of(item));
        } else if (field && !values.text(*field)) {
            std::string text = text_of(item);
            if (!text.empty()) {
                values.text(*field) = std::move(text);
            }
        }
    }
    return values;
}

std::vector<TagItem> ApeTag::items(Media media) const {
    std::vector<TagItem> items;
    for (const Item& item : items_) {
        TagItem copy{"APE " + item.key, {}, field_of(item, media)};
        append_le32(copy.bytes, item.flags);
        append(copy.bytes, item.value);
        items.push_back(std::move(copy));
    }
    return items;
}

Bytes ApeTag::value_with(const Item& item, Field field, const TagEdits& edits) const {
    if (field == Field::cover) {
        // The file's name stays, and says nothing of what it is.
        const auto picture = picture_in(item.value);
        Bytes value(item.value.begin(), item.value.end() - static_cast<std::ptrdiff_t>(picture.size()));
        if (value.empty() || value.back() != 0) {
            value = {0};
        }
        append(value, edits.cover.value()->bytes);
        return value;
    }
    const std::string text = field == Field::year ? date_with_year(text_of(item), *edits.year.value())
                                                  : *edits.text(field).value();
    if (text == text_of(item)) {
        return item.value;
    }
    Bytes value;
    if (version_ >= 2000) {
        append(value, std::string_view(text));
    } else {
        value = latin1_from_utf8(text);
    }
    return value;
}

void ApeTag::apply(const TagEdits& edits, Media media) {
    const auto deletes = [&](Field field) {
        return field == Field::year    ? edits.year.deletes()
               : field == Field::cover ? edits.cover.deletes()
                                       : edits.text(field).deletes();
    };
    std::vector<Item> items;
    for (Item& item : items_) {
        const std::optional<Field> field = field_of(item, media);
        if (field && edits.asks_for(*field)) {
            if (deletes(*field)) {
                continue;
            }
            Bytes value = value_with(item, *field, edits);
            if (value != item.value && *field != Field::cover) {
                item.flags &= ~value_type; // a text from now on
            }
            item.value = std::move(value);
        }
        items.push_back(std::move(item));
    }
    items_ = std::move(items);
}

Bytes ApeTag::end_bytes(std::uint32_t items_size, std::uint32_t position_flag) const {
    Bytes bytes;
    append(bytes, signature);
    append_le32(bytes, version_);
    append_le32(bytes, items_size + static_cast<std::uint32_t>(footer_size));
    append_le32(bytes, static_cast<std::uint32_t>(items_.size()));
    append_le32(bytes, (flags_ & ~is_header) | position_flag);
    bytes.resize(footer_size);
    return bytes;
}

Bytes ApeTag::bytes() const {
    if (items_.empty()) {
        return {};
    }
    Bytes content;
    for (const Item& item : items_) {
        append_le32(content, static_cast<std::uint32_t>(item.value.size()));
        append_le32(content, item.flags);
        append(content, std::string_view(item.key));
        content.push_back(0);
        append(content, item.value);
    }
    const auto size = static_cast<std::uint32_t>(content.size());
    Bytes tag;
    if ((flags_ & has_header) != 0) {
        tag = end_bytes(size, is_header);
    }
    append(tag, content);
    append(tag, end_bytes(size, 0));
    return tag;
}

} // namespace velmora::portable
