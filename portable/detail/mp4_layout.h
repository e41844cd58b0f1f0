#pragma once

#include "box.h"

#include "portable/media_kind.h"

/** Where the parts of an MP4 or QuickTime file are that have to do with tags (docs/portable-tags.md, "MP4
   and QuickTime"). */
namespace velmora::portable {

/** An item of a tag in an MP4 or QuickTime file. */
struct Mp4Item {
    Box box;
    Bytes bytes; ///< the whole box
    /** "©nam", "----:com.apple.iTunes:DIRECTOR", or the name of a key. */
    std::string name;
    std::optional<Field> field; ///< nothing where it is no place of a field of this kind of file
};

/** A list of items: there are three kinds of them, of which a file may have several. */
struct Mp4ItemList {
    enum class Kind {
        items,     ///< `ilst` of `data` boxes: what this tag is to most programs
        keys,      ///< `ilst` whose items are named by the box `keys` beside it (QuickTime)
        user_data, ///< texts in `udta` itself, whose types begin with the sign (c) (QuickTime)
    };
    Kind kind;
    std::vector<Box> path; ///< the boxes around the items, from `moov` on; the last one holds them
    std::vector<Mp4Item> items;
};

/** A `meta` box with a list of items in it, or made for one. */
struct Mp4Meta {
    std::vector<Box> path; ///< from `moov` on; the last one is the `meta` box itself
    std::uint32_t handler = 0;
    std::vector<Box> children;
};

struct Mp4Layout {
    std::uint64_t file_size = 0;
    std::vector<Box> top_level;
    /** Where the boxes end: at the end of the file, but for what others put behind them. */
    std::uint64_t end_of_boxes = 0;
    Box moov;
    std::uint64_t end_in_moov = 0; ///< behind the last box in `moov`, where another can go
    std::optional<Box> udta;       ///< the first in `moov`
    std::uint64_t end_in_udta = 0;
    std::vector<Box> all_udta; ///< every `udta` in `moov` itself
    std::vector<Mp4Meta> metas;
    std::vector<Mp4ItemList> lists; ///< the ones that count first come first
    std::vector<Box> traks;
};

/** The boxes inside META, a `meta` box: in MP4 version and flags stand in front of them, in QuickTime they
   don't. */
[[nodiscard]] std::vector<Box> boxes_in_meta(const ReadCursor& file, const Box& meta);

/** Finds the parts, and reads the items. Throws a Refusal where there is no `moov`, where boxes on the way
   contradict each other, or where the file can't be read. */
[[nodiscard]] Mp4Layout read_mp4_layout(ReadWindow& window, std::uint64_t file_size, Media media);

} // namespace velmora::portable
