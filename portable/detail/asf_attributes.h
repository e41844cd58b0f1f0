#pragma once

#include "byte_appending.h"
#include "checked_read.h"
#include "tagged_file.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

/** The attributes of an ASF header, which lie in four kinds of objects (docs/portable-tags.md, "Windows
   Media"). */
namespace velmora::portable {

/** The types of an attribute's value that matter here. The whole numbers differ by their widths alone. */
inline constexpr std::uint16_t asf_type_unicode = 0;
inline constexpr std::uint16_t asf_type_byte_array = 1;

/** Which object a list of attributes is, in the order in which they count. */
enum class AsfListKind : std::uint8_t {
    content_description,          ///< five texts in fixed places: attributes without a value may stand in it
    extended_content_description, ///< of the whole file, values up to 65,535 bytes
    metadata,                     ///< of the whole file or of a stream, values up to 65,535 bytes
    metadata_library,             ///< of any language and stream, values of any size
};

struct AsfAttribute {
    std::string name; ///< UTF-8
    std::uint16_t language = 0;
    std::uint16_t stream = 0; ///< 0: the whole file
    std::uint16_t type = asf_type_unicode;
    Bytes record;                 ///< as it lies in its object; the value is its end
    std::size_t value_offset = 0; ///< in the record
    Range range;                  ///< of the record in the file; empty for a new one

    [[nodiscard]] std::span<const std::uint8_t> value() const {
        return std::span(record).subspan(value_offset);
    }
    /** The value as a text: texts and whole numbers; empty for all others. UTF-8. */
    [[nodiscard]] std::string text() const;
};

/** One object. */
struct AsfAttributeList {
    AsfListKind kind = AsfListKind::content_description;
    std::vector<AsfAttribute> attributes;
    Bytes rest;                ///< what lies behind the attributes, and is kept there
    Range range;               ///< of the object in the file, its header included; empty for a new one
    bool in_extension = false; ///< it lies in the header extension object
    bool changed = false;      ///< since it was read

    /** The whole object, its header included. */
    [[nodiscard]] Bytes object() const;
};

/** A new list of KIND that holds nothing. */
[[nodiscard]] AsfAttributeList empty_asf_list(AsfListKind kind);

/** The lists of a file, those that count more in front. */
using AsfLists = std::vector<AsfAttributeList>;

/** Reads what is behind the header of an object of KIND, up to the end of BODY. Throws a Refusal. */
[[nodiscard]] AsfAttributeList read_asf_list(AsfListKind kind, ReadCursor body);

/** The attribute NAME with VALUE of TYPE as it stands in an object of KIND, of the whole file and in
   LANGUAGE. VALUE fits. */
[[nodiscard]] AsfAttribute asf_attribute(AsfListKind kind, const std::string& name, std::uint16_t type,
                                         std::span<const std::uint8_t> value, std::uint16_t language = 0);

/** TEXT as an attribute's value: UTF-16 with a terminator, which is left out where it alone would be too
   much. Throws a Refusal that names NAME where TEXT takes more than 65,534 bytes. */
[[nodiscard]] Bytes asf_text(const std::string& name, const std::string& text);

} // namespace velmora::portable
