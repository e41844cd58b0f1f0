#pragma once

#include "box.h"

/** What is inside the items of MP4 and QuickTime tags: values with a kind, and texts with a language. */
namespace velmora::portable {

/** A box inside an item. */
struct Mp4Child {
    std::uint32_t type;
    std::span<const std::uint8_t> bytes; ///< header of eight bytes included; the item's own

    [[nodiscard]] std::span<const std::uint8_t> content() const { return bytes.subspan(8); }
};

/** The boxes inside the item whose box is ITEM; what does not fit is none. */
[[nodiscard]] std::vector<Mp4Child> mp4_children(std::span<const std::uint8_t> item);

/** A value as a `data` box holds it. */
struct Mp4Value {
    static constexpr std::uint32_t utf8 = 1;
    static constexpr std::uint32_t utf16 = 2;

    std::uint32_t kind = utf8; ///< the number of a kind of text or picture, or 0
    std::uint32_t locale = 0;
    std::span<const std::uint8_t> bytes;

    /** The bytes as UTF-8, where they are a text. */
    [[nodiscard]] std::string text() const;
    /** The `data` box. Throws a Refusal where it would be too large. */
    [[nodiscard]] Bytes box() const;
};

/** The value in CHILD; nothing where it is no `data` box. */
[[nodiscard]] std::optional<Mp4Value> mp4_value(const Mp4Child& child);

/** A text of QuickTime user data: its length, its language, its letters. */
struct UserText {
    static constexpr std::uint16_t undetermined = 0x55C4;

    std::uint16_t language = undetermined;
    std::span<const std::uint8_t> letters;

    /** Whether the language is one of ISO 639, whose texts are UTF-8 or marked UTF-16, and not a number of
       the Macintosh, whose texts are in its character sets. */
    [[nodiscard]] bool is_unicode() const;
    [[nodiscard]] std::string text() const;
    /** The contents of its box. Throws a Refusal where it is too long. */
    [[nodiscard]] Bytes content() const;
};

/** The first text in CONTENT, what a box of user data holds; further ones say the same in other languages.
   Nothing where there is none. */
[[nodiscard]] std::optional<UserText> user_text(std::span<const std::uint8_t> content);

} // namespace velmora::portable
