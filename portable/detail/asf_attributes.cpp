#include "asf_attributes.h"

#include "asf_guids.h"
#include "text.h"

#include "portable/reason.h"

#include <array>

namespace velmora::portable {

namespace {

constexpr std::array content_description_names = {"Title", "Author", "Copyright", "Description", "Rating"};
constexpr std::size_t largest_text = 65534;

std::uint16_t read_le16(ReadCursor& cursor, const std::string& what) {
    std::uint16_t value = 0;
    check_read(cursor.read_le16(&value), what);
    return value;
}

std::uint32_t read_le32(ReadCursor& cursor, const std::string& what) {
    std::uint32_t value = 0;
    check_read(cursor.read_le32(&value), what);
    return value;
}

std::string list_name(AsfListKind kind) {
    switch (kind) {
    case AsfListKind::content_description:
        return "the content description object";
    case AsfListKind::extended_content_description:
        return "the extended content description object";
    case AsfListKind::metadata:
        return "the metadata object";
    case AsfListKind::metadata_library:
        break;
    }
    return "the metadata library object";
}

AsfAttributeList read_content_description(ReadCursor body) {
    const std::string what = list_name(AsfListKind::content_description);
    std::array<std::uint16_t, content_description_names.size()> lengths{};
    for (std::uint16_t& length : lengths) {
        length = read_le16(body, what);
    }
    AsfAttributeList list;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        AsfAttribute& text = list.attributes.emplace_back();
        text.name = content_description_names[i];
        text.range.begin = body.position();
        text.record = read_bytes(body, lengths[i], what);
        text.range.end = body.position();
    }
    list.rest = read_bytes(body, body.left(), what);
    return list;
}

/** The record that begins at CURSOR and is of an extended content description: name, type, value. */
AsfAttribute read_descriptor(ReadCursor& cursor, const std::string& what) {
    AsfAttribute attribute;
    const std::uint16_t name_length = read_le16(cursor, what);
    attribute.name = utf8_from_utf16(read_bytes(cursor, name_length, what), std::endian::little);
    attribute.type = read_le16(cursor, what);
    const std::uint16_t value_length = read_le16(cursor, what);
    attribute.value_offset = std::size_t{6} + name_length;
    if (!cursor.skip(value_length)) {
        check_read(ReadStatus::ended, what);
    }
    return attribute;
}

/** The record that begins at CURSOR and is of a metadata or metadata library object: all lengths, name,
   value. */
AsfAttribute read_metadata_record(ReadCursor& cursor, const std::string& what) {
    AsfAttribute attribute;
    attribute.language = read_le16(cursor, what);
    attribute.stream = read_le16(cursor, what);
    const std::uint16_t name_length = read_le16(cursor, what);
    attribute.type = read_le16(cursor, what);
    const std::uint32_t value_length = read_le32(cursor, what);
    attribute.name = utf8_from_utf16(read_bytes(cursor, name_length, what), std::endian::little);
    attribute.value_offset = std::size_t{12} + name_length;
    if (!cursor.skip(value_length)) {
        check_read(ReadStatus::ended, what);
    }
    return attribute;
}

bool is_metadata(AsfListKind kind) {
    return kind == AsfListKind::metadata || kind == AsfListKind::metadata_library;
}

GUID guid_of(AsfListKind kind) {
    switch (kind) {
    case AsfListKind::content_description:
        return ASF_ContentDescription;
    case AsfListKind::extended_content_description:
        return ASF_ExtendedContentDescription;
    case AsfListKind::metadata:
        return ASF_Metadata;
    case AsfListKind::metadata_library:
        break;
    }
    return ASF_MetadataLibrary;
}

} // namespace

std::string AsfAttribute::text() const {
    const std::span<const std::uint8_t> bytes = value();
    switch (type) {
    case asf_type_unicode:
        return utf8_from_utf16(bytes, std::endian::little);
    case asf_type_byte_array:
        return {};
    default:
        break;
    }
    switch (bytes.size()) {
    case 2:
        return std::to_string(load_le16(bytes.data()));
    case 4:
        return std::to_string(load_le32(bytes.data()));
    case 8:
        return std::to_string(load_le64(bytes.data()));
    default:
        return {};
    }
}

AsfAttributeList empty_asf_list(AsfListKind kind) {
    AsfAttributeList list;
    list.kind = kind;
    list.in_extension = is_metadata(kind);
    list.changed = true;
    if (kind == AsfListKind::content_description) {
        for (const char* name : content_description_names) {
            list.attributes.emplace_back().name = name;
        }
    }
    return list;
}

AsfAttributeList read_asf_list(AsfListKind kind, ReadCursor body) {
    if (kind == AsfListKind::content_description) {
        return read_content_description(body);
    }
    const std::string what = list_name(kind);
    AsfAttributeList list;
    list.kind = kind;
    const std::uint16_t count = read_le16(body, what);
    for (std::uint16_t i = 0; i < count; ++i) {
        ReadCursor record = body;
        AsfAttribute attribute =
            is_metadata(kind) ? read_metadata_record(body, what) : read_descriptor(body, what);
        attribute.range = {record.position(), body.position()};
        attribute.record = read_bytes(record, attribute.range.size(), what);
        list.attributes.push_back(std::move(attribute));
    }
    list.rest = read_bytes(body, body.left(), what);
    return list;
}

Bytes AsfAttributeList::object() const {
    Bytes body;
    if (kind == AsfListKind::content_description) {
        for (const AsfAttribute& text : attributes) {
            append_le16(body, static_cast<std::uint16_t>(text.record.size()));
        }
    } else {
        append_le16(body, static_cast<std::uint16_t>(attributes.size()));
    }
    for (const AsfAttribute& attribute : attributes) {
        append(body, attribute.record);
    }
    append(body, rest);
    Bytes object = asf_object_header(guid_of(kind), asf_object_header_size + body.size());
    append(object, body);
    return object;
}

AsfAttribute asf_attribute(AsfListKind kind, const std::string& name, std::uint16_t type,
                           std::span<const std::uint8_t> value, std::uint16_t language) {
    AsfAttribute attribute;
    attribute.name = name;
    attribute.language = language;
    attribute.type = type;
    Bytes encoded_name = utf16_from_utf8(name, std::endian::little);
    append_le16(encoded_name, 0);
    const auto name_length = static_cast<std::uint16_t>(encoded_name.size());
    if (kind == AsfListKind::extended_content_description) {
        append_le16(attribute.record, name_length);
        append(attribute.record, encoded_name);
        append_le16(attribute.record, type);
        append_le16(attribute.record, static_cast<std::uint16_t>(value.size()));
    } else if (is_metadata(kind)) {
        append_le16(attribute.record, language);
        append_le16(attribute.record, attribute.stream);
        append_le16(attribute.record, name_length);
        append_le16(attribute.record, type);
        append_le32(attribute.record, static_cast<std::uint32_t>(value.size()));
        append(attribute.record, encoded_name);
    }
    attribute.value_offset = attribute.record.size();
    append(attribute.record, value);
    return attribute;
}

Bytes asf_text(const std::string& name, const std::string& text) {
    Bytes value = utf16_from_utf8(text, std::endian::little);
    if (value.size() > largest_text) {
        throw Refusal({ReasonCode::too_large, 0, name + " takes 65534 bytes of UTF-16"});
    }
    if (value.size() < largest_text) {
        append_le16(value, 0);
    }
    return value;
}

} // namespace velmora::portable
