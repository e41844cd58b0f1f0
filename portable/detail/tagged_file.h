#pragma once

#include "portable/media_kind.h"
#include "portable/tag_values.h"
#include "taglib/fio.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

/** What each format does for the others: it takes a file apart, and says how the new one is put together. */
namespace velmora::portable {

/** Bytes of a file, from BEGIN up to END. */
struct Range {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;

    [[nodiscard]] std::uint64_t size() const { return end - begin; }
    friend bool operator==(const Range&, const Range&) = default;
};

/** One item of a tag as it lies in the file: a frame, an `ilst` item, an attribute, a comment, an INFO chunk,
   a picture. */
struct TagItem {
    /** Which tag, and which item of it, such as "ID3v2 TIT2" or "INFO INAM". Items may share it. */
    std::string name;
    /** Its bytes, header included, as far as they have to go over unchanged: without what its place decides
       (a size of padding, an offset that is mended). A size that the rest of the bytes tells may be left
       out. */
    std::vector<std::uint8_t> bytes;
    /** The field that it is a place of; nothing for all others. */
    std::optional<Field> field;
};

/** Bytes of the new file, in its order: made anew, or those of the old one. */
using Segment = std::variant<std::vector<std::uint8_t>, Range>;

/** How the new file is made. */
struct Rewrite {
    std::vector<Segment> segments;
    /** Run on the new file when its segments are in it, for formats that a library edits in place. May be
       empty. Throws a Refusal. */
    std::function<void(FIOFUNCSTRUCT* file)> finish;
    /** What of the segments' ranges `finish` changes in the new file: the same ranges of the old one, in any
       order. */
    std::vector<Range> patched{};
};

/** A file that was taken apart. It stays open, and is the caller's, while this lives. All members may throw a
   Refusal, and std::bad_alloc. */
class TaggedFile {
public:
    virtual ~TaggedFile() = default;

    /** The tags that are there, by the names that users know, the one that counts first. */
    [[nodiscard]] virtual std::vector<std::string> tags() const = 0;
    [[nodiscard]] virtual TagValues values() const = 0;
    /** Every item of every tag, in the order of the file. */
    [[nodiscard]] virtual std::vector<TagItem> items() const = 0;
    /** The media: what must be the same bytes in the same order in the new file. Ranges that lie apart here
       may lie elsewhere there; as one text they are equal. */
    [[nodiscard]] virtual std::vector<Range> payload() const = 0;
    /** Checks, on the new file, what moved with the media, such as offsets. ORIGINAL is of the same class.
       Throws a Refusal where something is wrong. */
    virtual void check_against(const TaggedFile& original) const { static_cast<void>(original); }

    /** EDITS and what a save has to do besides, such as to set what a tag says that is folded into another.
       That counts as asked for. */
    [[nodiscard]] virtual TagEdits completed(const TagEdits& edits) const { return edits; }
    /** What the file says with EDITS in it. For formats in which a place that was hidden by another shows
       when that goes. */
    [[nodiscard]] virtual TagValues values_with(const TagEdits& edits) const {
        return edits.applied_to(values());
    }

    /** The file with EDITS, which are completed, in it. Only what they ask for is touched. */
    [[nodiscard]] virtual Rewrite with(const TagEdits& edits) const = 0;
    /** The file without any tag. */
    [[nodiscard]] virtual Rewrite without_tags() const = 0;
};

/** Takes the file apart that is open as FILE, of KIND, SIZE bytes long. Throws a Refusal where it is damaged
   or can't be read. */
[[nodiscard]] std::unique_ptr<TaggedFile> open_tagged_file(FIOFUNCSTRUCT* file, std::uint64_t size,
                                                           const MediaKind& kind);

} // namespace velmora::portable
