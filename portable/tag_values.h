#pragma once

#include "media_kind.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/** What the tags of a file say, whatever their format. All texts are UTF-8 without a zero in them. */
namespace velmora::portable {

/** The fields of a tag. The texts come first, so that a text's field is its index. */
enum class Field : std::uint8_t {
    title,
    artist,   ///< of a song; of a film its cast
    album,    ///< songs only
    director, ///< films only
    synopsis, ///< of a song its comment
    genre,
    rating, ///< films only
    year,
    cover,
};
inline constexpr std::size_t text_field_count = 7;
inline constexpr std::size_t field_count = 9;

/** Whether files of that media have FIELD. */
[[nodiscard]] bool has_field(Media media, Field field);

/** A picture as it is in the file. */
struct Cover {
    std::vector<std::uint8_t> bytes; ///< encoded, never decoded here
    std::string mime;                ///< such as "image/jpeg"

    friend bool operator==(const Cover&, const Cover&) = default;
};

/** The values of a file. What it does not have is nothing; an empty text is no value. */
struct TagValues {
    std::array<std::optional<std::string>, text_field_count> texts;
    std::optional<int> year;
    std::optional<Cover> cover;

    [[nodiscard]] std::optional<std::string>& text(Field field) {
        return texts[static_cast<std::size_t>(field)];
    }
    [[nodiscard]] const std::optional<std::string>& text(Field field) const {
        return texts[static_cast<std::size_t>(field)];
    }

    friend bool operator==(const TagValues&, const TagValues&) = default;
};

/** What is to become of a field: it is left alone, set to a value, or deleted. */
template <typename Value>
class Edit {
public:
    Edit() = default;
    [[nodiscard]] static Edit set(Value value) { return Edit(true, std::move(value)); }
    [[nodiscard]] static Edit remove() { return Edit(true, std::nullopt); }

    [[nodiscard]] bool leaves_alone() const { return !asked_; }
    [[nodiscard]] bool deletes() const { return asked_ && !value_; }
    [[nodiscard]] bool sets() const { return asked_ && value_; }
    /** The value that is set; nothing otherwise. */
    [[nodiscard]] const std::optional<Value>& value() const { return value_; }
    /** What is there afterwards where OLD was there before. */
    [[nodiscard]] std::optional<Value> applied_to(const std::optional<Value>& old) const {
        return asked_ ? value_ : old;
    }

private:
    Edit(bool asked, std::optional<Value> value) : asked_(asked), value_(std::move(value)) {}

    bool asked_ = false;
    std::optional<Value> value_;
};

/** What a save is asked to do. Everything that is left alone stays as the bytes that it is. */
struct TagEdits {
    std::array<Edit<std::string>, text_field_count> texts;
    Edit<int> year;
    Edit<Cover> cover;

    [[nodiscard]] Edit<std::string>& text(Field field) { return texts[static_cast<std::size_t>(field)]; }
    [[nodiscard]] const Edit<std::string>& text(Field field) const {
        return texts[static_cast<std::size_t>(field)];
    }
    /** Whether FIELD is set or deleted. */
    [[nodiscard]] bool asks_for(Field field) const;
    /** Whether FIELD is set, and not deleted. */
    [[nodiscard]] bool sets(Field field) const;
    /** Whether no field is set or deleted. */
    [[nodiscard]] bool empty() const;
    /** What a file that had OLD has afterwards. */
    [[nodiscard]] TagValues applied_to(const TagValues& old) const;
};

} // namespace velmora::portable
