#pragma once

#include "mp4_layout.h"
#include "splices.h"

#include <map>

/** Changes inside the boxes of an MP4 or QuickTime file. */
namespace velmora::portable {

struct Mp4Change {
    Splices splices;
    /** Boxes that were touched, or used up: nothing of the media may be in them. */
    std::vector<Range> gone;
};

/** Collects the changes, and sees to the sizes of the boxes around them. */
class BoxChange {
public:
    /** Of the file of LAYOUT, which must outlive it. */
    explicit BoxChange(const Mp4Layout& layout) : layout_(layout) {}

    /** Puts BYTES where OLD is; PATH are the boxes around it, from `moov` on. */
    void replace(const std::vector<Box>& path, Range old, Bytes bytes);

    /** The changes, with the sizes of the boxes mended, and with free bytes given or taken so that the media
       stay where they are, as far as that is possible. PADS_INSIDE: lists of items stay, beside which these
       may be. Throws a Refusal where a box becomes too large. */
    [[nodiscard]] Mp4Change finish(bool pads_inside);

private:
    void keep_media_in_place(bool pads_inside);
    [[nodiscard]] bool pad_inside(std::int64_t growth);
    void pad_behind(std::int64_t growth);
    [[nodiscard]] bool media_follow() const;

    struct Growth {
        Box box;
        std::int64_t bytes = 0;
    };

    const Mp4Layout& layout_;
    Mp4Change change_;
    std::map<std::uint64_t, Growth> growths_; ///< of the boxes around what changed, by their positions
};

} // namespace velmora::portable
