#include "mp4_offset_search.h"

#include "checked_read.h"
#include "refusals.h"

#include <algorithm>

namespace velmora::portable {

namespace {

constexpr const char* offset_table_words = "a table of offsets";

/** Finds the tables. */
class Finder {
public:
    Finder(const ReadCursor& file, const Mp4Layout& layout) : file_(file), layout_(layout) {}

    OffsetTables find() {
        for (const Box& trak : layout_.traks) {
            find_in_trak(trak);
        }
        for (const Mp4Meta& meta : layout_.metas) {
            find_locations(meta.children);
        }
        for (const Box& box : layout_.top_level) {
            find_in_top_level(box);
        }
        std::sort(
            found_.tables.begin(), found_.tables.end(),
            [](const OffsetTable& left, const OffsetTable& right) { return left.position < right.position; });
        return std::move(found_);
    }

private:
    void find_in_top_level(const Box& box) {
        if (box.type == box_type("moof")) {
            find_in_fragment(box);
        } else if (box.type == box_type("sidx")) {
            find_in_index(box);
        } else if (box.type == box_type("mfra")) {
            for (const Box& child : boxes_in(file_, box.content(), box.type)) {
                if (child.type == box_type("tfra")) {
                    find_in_random_access(child);
                }
            }
        } else if (box.type == box_type("meta")) {
            find_locations(boxes_in_meta(file_, box));
        } else if (box.type == box_type("abst") || box.type == box_type("afra") ||
                   box.type == box_type("meco")) {
            found_.immovable = "a " + type_name(box.type) + " box";
        }
    }

    /** Whatever a `meta` box locates by offsets. */
    void find_locations(const std::vector<Box>& children_of_meta) {
        for (const Box& child : children_of_meta) {
            if (child.type == box_type("iloc")) {
                found_.immovable = "an iloc box";
            }
        }
    }

    void find_in_trak(const Box& trak) {
        for (const Box& child : boxes_in(file_, trak.content(), trak.type)) {
            if (child.type == box_type("meta")) {
                find_locations(boxes_in_meta(file_, child));
            } else if (child.type == box_type("mdia")) {
                find_in_media(child);
            }
        }
    }

    void find_in_media(const Box& mdia) {
        const std::optional<Box> minf = find_box(file_, mdia, box_type("minf"));
        const std::optional<Box> stbl = minf ? find_box(file_, *minf, box_type("stbl")) : std::nullopt;
        if (!stbl) {
            return;
        }
        const References references = media_references(*minf);
        if (references == References::elsewhere) {
            return; // offsets of other files
        }
        if (references == References::mixed) {
            found_.immovable = "a track with media in several files";
        }
        for (const Box& box : boxes_in(file_, stbl->content(), stbl->type)) {
            if (box.type == box_type("stco")) {
                add_table(box, 4, 4);
            } else if (box.type == box_type("co64")) {
                add_table(box, 4, 8);
            } else if (box.type == box_type("saio")) {
                const bool typed = (version_and_flags(box) & 1) != 0;
                add_table(box, typed ? 12 : 4, version_and_flags(box) >> 24 != 0 ? 8 : 4);
            }
        }
    }

    enum class References { here, elsewhere, mixed };

    [[nodiscard]] References media_references(const Box& minf) const {
        const std::optional<Box> dinf = find_box(file_, minf, box_type("dinf"));
        const std::optional<Box> dref = dinf ? find_box(file_, *dinf, box_type("dref")) : std::nullopt;
        if (!dref || dref->content().size() < 8) {
            return References::here;
        }
        bool here = false;
        bool elsewhere = false;
        const Range entries{dref->content().begin + 8, dref->whole.end};
        for (const Box& entry : boxes_in(file_, entries, dref->type)) {
            ((version_and_flags(entry) & 1) != 0 ? here : elsewhere) = true;
        }
        return !elsewhere ? References::here : here ? References::mixed : References::elsewhere;
    }

    /** A table whose count of four bytes stands behind version, flags and what else is in front of it: AHEAD
       bytes. */
    void add_table(const Box& box, std::uint64_t ahead, std::uint32_t width) {
        ReadCursor cursor = content_of(box, ahead);
        std::uint32_t count = 0;
        check_read(cursor.read_be32(&count), offset_table_words);
        add({cursor.position(), count, width, width, 0}, box);
    }

    void find_in_fragment(const Box& moof) {
        for (const Box& traf : boxes_in(file_, moof.content(), moof.type)) {
            if (traf.type != box_type("traf")) {
                continue;
            }
            for (const Box& box : boxes_in(file_, traf.content(), traf.type)) {
                // With this flag a data offset that counts from the beginning of the file stands behind the
                // track's number.
                if (box.type == box_type("tfhd") && (version_and_flags(box) & 1) != 0) {
                    add({box.content().begin + 8, 1, 8, 8, 0}, box);
                }
            }
        }
    }

    void find_in_index(const Box& sidx) {
        const std::uint32_t width = version_and_flags(sidx) >> 24 != 0 ? 8 : 4;
        const OffsetTable table{sidx.content().begin + 12 + width, 1, width, width, sidx.whole.end};
        add(table, sidx);
        OffsetReader reader(file_, table);
        if (sidx.whole.begin < layout_.moov.whole.begin && reader.next() < layout_.moov.whole.begin) {
            found_.immovable = "a sidx box of media in front of moov";
        }
    }

    void find_in_random_access(const Box& tfra) {
        const std::uint32_t width = version_and_flags(tfra) >> 24 != 0 ? 8 : 4;
        ReadCursor cursor = content_of(tfra, 8);
        std::uint32_t sizes = 0;
        std::uint32_t count = 0;
        check_read(cursor.read_be32(&sizes), offset_table_words);
        check_read(cursor.read_be32(&count), offset_table_words);
        // Two bits each, one less than the bytes that the numbers of the fragment, the run and the sample
        // take.
        const std::uint32_t numbers = 3 + (sizes >> 4 & 3) + (sizes >> 2 & 3) + (sizes & 3);
        add({cursor.position() + width, count, 2 * width + numbers, width, 0}, tfra);
    }

    void add(const OffsetTable& table, const Box& box) {
        if (table.count == 0) {
            return;
        }
        const std::uint64_t length = (table.count - 1) * table.stride + table.width;
        if (table.position > box.whole.end || length > box.whole.end - table.position) {
            refuse_damaged("more offsets than fit into " + type_name(box.type));
        }
        found_.tables.push_back(table);
    }

    [[nodiscard]] ReadCursor content_of(const Box& box, std::uint64_t offset) const {
        ReadCursor cursor = file_;
        if (!cursor.seek(box.content().begin)) {
            refuse_damaged(type_name(box.type) + " is cut off");
        }
        ReadCursor content = cursor.slice(box.content().size());
        if (!content.skip(offset)) {
            refuse_damaged(type_name(box.type) + " is cut off");
        }
        return content;
    }

    [[nodiscard]] std::uint32_t version_and_flags(const Box& box) const {
        ReadCursor cursor = content_of(box, 0);
        std::uint32_t value = 0;
        check_read(cursor.read_be32(&value), offset_table_words);
        return value;
    }

    ReadCursor file_;
    const Mp4Layout& layout_;
    OffsetTables found_;
};

} // namespace

OffsetTables find_offsets(const ReadCursor& file, const Mp4Layout& layout) {
    return Finder(file, layout).find();
}

} // namespace velmora::portable
