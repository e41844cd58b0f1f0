#pragma once

#include "tagged_file.h"

#include "portable/tag_values.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace velmora::portable {

/** The block of 128 bytes at the end of a file (docs/portable-tags.md, "MP3 and MP2"). Its texts are ISO
   8859-1 of 30 bytes at most. */
class Id3v1Tag {
public:
    static constexpr std::size_t size = 128;

    /** Nothing where BYTES, which are as many, are none. */
    [[nodiscard]] static std::optional<Id3v1Tag> parse(std::span<const std::uint8_t> bytes);

    /** A song's; the comment is none of them. */
    [[nodiscard]] TagValues values() const;
    [[nodiscard]] std::vector<TagItem> items() const;
    /** What does not fit is cut off, what ISO 8859-1 does not have becomes "?". */
    void apply(const TagEdits& edits);
    [[nodiscard]] std::vector<std::uint8_t> bytes() const { return {bytes_.begin(), bytes_.end()}; }

private:
    std::array<std::uint8_t, size> bytes_{};
};

} // namespace velmora::portable
