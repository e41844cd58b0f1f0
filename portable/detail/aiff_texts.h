#pragma once

#include "chunk.h"

/** The texts of AIFF itself, each a chunk (docs/portable-tags.md, "WAV and AIFF"): they are read after its
   ID3v2 tag, and updated where they exist. */
namespace velmora::portable {

class AiffTexts {
public:
    /** The field that chunks of FOURCC are places of; nothing where they are none. */
    [[nodiscard]] static std::optional<Field> field_of(std::uint32_t fourcc);

    /** Adds CHUNK, of the file of CURSOR, where it is a text of a field. Throws a Refusal where it can't be
       read. */
    void read(const ReadCursor& cursor, const Chunk& chunk);

    [[nodiscard]] bool empty() const { return texts_.empty(); }
    [[nodiscard]] TagValues values() const;
    [[nodiscard]] std::vector<TagItem> items() const;

    /** What is to be where a chunk was: nothing, where it goes. */
    struct Change {
        Chunk chunk;
        Bytes bytes;
    };
    /** What EDITS change: the first text of a field gets the value, further ones go. */
    [[nodiscard]] std::vector<Change> with(const TagEdits& edits) const;

private:
    struct Text {
        Chunk chunk;
        Field field;
        Bytes data;
    };
    std::vector<Text> texts_;
};

} // namespace velmora::portable
