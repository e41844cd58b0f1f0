#pragma once

#include "byte_appending.h"
#include "tagged_file.h"

#include "portable/tag_values.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace velmora::portable {

/** An APE tag, of version 1 or 2, as it stands behind the media (docs/portable-tags.md, "MP3 and MP2"). */
class ApeTag {
public:
    static constexpr std::size_t footer_size = 32;

    /** Bytes of the tag that ends with FOOTER, of footer_size bytes; nothing where that is none. */
    [[nodiscard]] static std::optional<std::uint64_t> size_by(std::span<const std::uint8_t> footer);

    /** The tag that BYTES are. Throws the Refusal `damaged`. */
    explicit ApeTag(std::span<const std::uint8_t> bytes);

    /** Such as "APEv2". */
    [[nodiscard]] std::string name() const { return version_ >= 2000 ? "APEv2" : "APEv1"; }
    [[nodiscard]] TagValues values(Media media) const;
    /** The several values that are one text in values(), without the empty ones. FIELD is a text field. */
    [[nodiscard]] std::vector<std::string> texts(Field field, Media media) const;
    [[nodiscard]] std::vector<TagItem> items(Media media) const;
    /** Changes and removes what is there; nothing is added. */
    void apply(const TagEdits& edits, Media media);
    /** No bytes where nothing is left in it. */
    [[nodiscard]] Bytes bytes() const;

private:
    struct Item {
        std::string key;
        std::uint32_t flags = 0;
        Bytes value;
    };

    [[nodiscard]] static std::optional<Field> field_of(const Item& item, Media media);
    [[nodiscard]] std::vector<std::string> texts_of(const Item& item) const;
    [[nodiscard]] std::string text_of(const Item& item) const;
    [[nodiscard]] Bytes value_with(const Item& item, Field field, const TagEdits& edits) const;
    [[nodiscard]] Bytes end_bytes(std::uint32_t items_size, std::uint32_t position_flag) const;

    std::uint32_t version_ = 2000;
    std::uint32_t flags_ = 0; ///< the footer's
    std::vector<Item> items_;
};

} // namespace velmora::portable
