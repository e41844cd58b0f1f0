#pragma once

#include "chunk.h"

#include "portable/media_kind.h"

/** The INFO lists of RIFF files (docs/portable-tags.md, "AVI and DivX"). A file may have several; they are
   read as one, and written as one. */
namespace velmora::portable {

struct InfoItem {
    std::uint32_t fourcc = 0;
    Bytes data;
};

/** The text that DATA are, up to a zero, as UTF-8. Nothing in the file says in what it is written: what is no
   UTF-8 is most often Latin-1. */
[[nodiscard]] std::string info_text(std::span<const std::uint8_t> data);

class RiffInfo {
public:
    /** Of files of MEDIA: songs and films have other codes. */
    explicit RiffInfo(Media media) : media_(media) {}

    /** Adds the items of the list CHUNK, which lies in the file of CURSOR. Damage among them is kept for
       refuse_damaged(). Throws a Refusal where the file can't be read. */
    void read(const ReadCursor& cursor, const Chunk& chunk);

    /** Whether there is an item. */
    [[nodiscard]] bool empty() const { return items_.empty(); }
    /** What the items say: of several of one code, all that are not empty. */
    [[nodiscard]] TagValues values() const;
    /** Each of them, as this room's other parts see them. */
    [[nodiscard]] std::vector<TagItem> items() const;

    /** Throws a Refusal where a list could not be read to its end: what is behind that would be lost. */
    void refuse_damaged() const;
    /** The list with EDITS in it, a chunk with its pad byte; nothing where no item is left. */
    [[nodiscard]] Bytes with(const TagEdits& edits) const;

private:
    [[nodiscard]] std::optional<Field> field_of(std::uint32_t fourcc) const;
    [[nodiscard]] std::string text_of(std::uint32_t fourcc) const;
    [[nodiscard]] Bytes data_for(std::uint32_t fourcc, Field field, const TagEdits& edits) const;

    Media media_;
    std::vector<InfoItem> items_;
    bool damaged_ = false;
};

} // namespace velmora::portable
