#pragma once

#include "id3v2_tag.h"
#include "tagged_file.h"

#include "portable/media_kind.h"
#include "portable/tag_values.h"
#include "taglib/read_cursor.h"

#include <optional>

namespace velmora::portable {

/** The tag behind the media that the program writes in place, with that way's table of frames and its
   decoding (docs/id3.md): texts are UTF-8 under the encoding of ISO 8859-1, a film's title is its album. */
class InPlaceTag {
public:
    /** A new one, without a frame. */
    InPlaceTag() = default;

    /** The one that ends where the file of SIZE bytes does, and where it begins; nothing where there is none.
       Throws a Refusal where the file can't be read. */
    struct Found;
    [[nodiscard]] static std::optional<Found> find(ReadWindow& window, std::uint64_t size);

    [[nodiscard]] TagValues values(Media media) const;
    [[nodiscard]] std::vector<TagItem> items(Media media) const;
    /** Throws a Refusal for what could not be read back: too long a text, a cover that is no JPEG. */
    void apply(const TagEdits& edits, Media media);
    /** The frames that are no place of a field. */
    [[nodiscard]] std::vector<Id3v2Frame> other_frames(Media media) const;
    [[nodiscard]] std::uint8_t version() const { return version_; }
    [[nodiscard]] bool empty() const { return frames_.empty(); }
    /** Writes the tag behind the POSITION bytes of FILE as a save in place does, with its header, its frames
       and its footer, and without a line in the log. Throws a Refusal where the file can't be written,
       std::bad_alloc where memory is exhausted; what is behind POSITION is undefined then. */
    void store(FIOFUNCSTRUCT* file, std::uint64_t position) const;

    friend bool operator==(const InPlaceTag& left, const InPlaceTag& right);

private:
    [[nodiscard]] std::size_t first_cover() const;
    [[nodiscard]] std::optional<Field> field_of(std::size_t index, Media media) const;
    void put(Field field, const std::optional<Bytes>& body, Media media);

    std::uint8_t version_ = 4;
    std::uint8_t revision_ = 0;
    std::uint8_t flags_ = 0x10;
    std::vector<Id3v2Frame> frames_;
};

struct InPlaceTag::Found {
    InPlaceTag tag;
    std::uint64_t begin = 0; ///< in the file; it ends with that
};

} // namespace velmora::portable
