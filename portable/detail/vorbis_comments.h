#pragma once

#include "byte_appending.h"
#include "tagged_file.h"

#include "portable/tag_values.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::portable {

/** The comments of FLAC and Ogg (docs/portable-tags.md, "Fields"): a list of texts "KEY=value", whose keys
   may come more than once. */
class VorbisComments {
public:
    /** An empty list. */
    VorbisComments() = default;
    /** The one that BYTES begin with; what follows is kept. Throws the Refusal `damaged`. */
    explicit VorbisComments(std::span<const std::uint8_t> bytes);

    /** The fields but for the cover. */
    [[nodiscard]] TagValues values(Media media) const;
    /** The vendor, every comment, and what follows them. */
    [[nodiscard]] std::vector<TagItem> items(Media media) const;
    /** Puts in the fields but for the cover. Comments that say already what is asked stay. */
    void apply(const TagEdits& edits, Media media);

    /** Each as it lies in the file. */
    [[nodiscard]] const std::vector<std::string>& comments() const { return comments_; }
    [[nodiscard]] std::vector<std::string>& comments() { return comments_; }
    void clear() { comments_.clear(); }

    [[nodiscard]] Bytes bytes() const;

    /** The key of COMMENT, and its value; no key where there is none. */
    [[nodiscard]] static std::string_view key_of(std::string_view comment);
    [[nodiscard]] static std::string_view value_of(std::string_view comment);

private:
    [[nodiscard]] std::vector<std::string> values_of(Field field, Media media) const;
    void replace(Field field, Media media, std::optional<std::string> comment);

    std::string vendor_ = "Velmora";
    std::vector<std::string> comments_;
    Bytes rest_;
};

} // namespace velmora::portable
