#include "asf_header.h"

#include "portable/reason.h"

#include <algorithm>

namespace velmora::portable {

namespace {

constexpr std::uint64_t largest_lists = std::uint64_t{64} << 20;
constexpr std::size_t most_attributes = 100000;
constexpr std::size_t most_objects = 10000;

constexpr const char* header_object = "the ASF header";
constexpr const char* extension_object = "the header extension object";

[[noreturn]] void refuse_damaged(const char* what) {
    throw Refusal({ReasonCode::damaged, 0, what});
}

struct Object {
    GUID guid{};
    Range range;
};

/** The object at CURSOR, which is moved behind it. */
Object read_object(ReadCursor& cursor) {
    Object object;
    object.range.begin = cursor.position();
    ReadCursor header = cursor;
    std::uint64_t size = 0;
    check_read(header.read(object.guid.bytes, sizeof object.guid.bytes), header_object);
    check_read(header.read_le64(&size), header_object);
    if (size < asf_object_header_size || !cursor.skip(size)) {
        refuse_damaged("an object reaches out of the ASF header");
    }
    object.range.end = cursor.position();
    return object;
}

std::optional<AsfListKind> list_kind(const GUID& guid) {
    if (guid == ASF_ContentDescription) {
        return AsfListKind::content_description;
    }
    if (guid == ASF_ExtendedContentDescription) {
        return AsfListKind::extended_content_description;
    }
    if (guid == ASF_Metadata) {
        return AsfListKind::metadata;
    }
    if (guid == ASF_MetadataLibrary) {
        return AsfListKind::metadata_library;
    }
    return std::nullopt;
}

/** Goes through the objects and holds what they claim against what one file may have. */
class Walk {
public:
    Walk(ReadWindow& window, AsfHeader& header) : window_(window), header_(header) {}

    /** COUNT objects from CURSOR on, which is moved behind them. */
    void through_header(ReadCursor& cursor) {
        for (std::uint32_t i = 0; i < header_.count; ++i) {
            const Object object = next(cursor, false);
            header_.padding = object.guid == ASF_PaddingObject ? std::optional(object.range) : std::nullopt;
            if (object.guid == ASF_FileProperties) {
                take_file_properties(object.range);
            } else if (object.guid == ASF_HeaderExtension && !header_.extension) {
                through_extension(object.range);
            }
        }
        header_.objects_end = cursor.position();
    }

private:
    Object next(ReadCursor& cursor, bool in_extension) {
        if (++objects_ > most_objects) {
            throw Refusal({ReasonCode::unsupported, 0, "an ASF header of more than 10000 objects"});
        }
        const Object object = read_object(cursor);
        if (const auto kind = list_kind(object.guid)) {
            take_list(*kind, object.range, in_extension);
        }
        return object;
    }

    void through_extension(const Range& range) {
        ReadCursor body(window_, range.begin, range.end);
        std::uint32_t size = 0;
        if (!body.skip(asf_extension_fixed_size - sizeof size)) {
            refuse_damaged("the header extension object is cut off");
        }
        check_read(body.read_le32(&size), extension_object);
        if (size > body.left()) {
            refuse_damaged("the header extension object is cut off");
        }
        ReadCursor objects = body.slice(size);
        while (objects.left() > 0) {
            static_cast<void>(next(objects, true));
        }
        header_.extension = {range, objects.end()};
    }

    void take_file_properties(const Range& range) {
        if (range.size() < asf_file_size_offset + sizeof(std::uint64_t)) {
            refuse_damaged("the file properties object is cut off");
        }
        header_.file_properties.push_back(range);
        ReadCursor field(window_, range.begin + asf_file_size_offset, range.end);
        std::uint64_t size = 0;
        check_read(field.read_le64(&size), header_object);
        header_.file_size = size;
    }

    void take_list(AsfListKind kind, const Range& range, bool in_extension) {
        list_bytes_ += range.size();
        if (list_bytes_ > largest_lists) {
            throw Refusal({ReasonCode::unsupported, 0, "ASF attributes of more than 64 MiB"});
        }
        AsfAttributeList list =
            read_asf_list(kind, ReadCursor(window_, range.begin + asf_object_header_size, range.end));
        list.range = range;
        list.in_extension = in_extension;
        attributes_ += list.attributes.size();
        if (attributes_ > most_attributes) {
            throw Refusal({ReasonCode::unsupported, 0, "more than 100000 ASF attributes"});
        }
        header_.lists.push_back(std::move(list));
    }

    ReadWindow& window_;
    AsfHeader& header_;
    std::size_t objects_ = 0;
    std::size_t attributes_ = 0;
    std::uint64_t list_bytes_ = 0;
};

} // namespace

AsfHeader read_asf_header(ReadWindow& window, std::uint64_t size) {
    AsfHeader header;
    ReadCursor file(window, 0, size);
    GUID guid{};
    check_read(file.read(guid.bytes, sizeof guid.bytes), header_object);
    if (guid != ASF_HeaderObject) {
        refuse_damaged("it does not begin with an ASF header");
    }
    check_read(file.read_le64(&header.size), header_object);
    check_read(file.read_le32(&header.count), header_object);
    if (header.size < asf_header_fixed_size || header.size > size) {
        refuse_damaged("the ASF header is cut off");
    }
    ReadCursor objects(window, asf_header_fixed_size, header.size);
    Walk(window, header).through_header(objects);
    std::stable_sort(header.lists.begin(), header.lists.end(),
                     [](const auto& left, const auto& right) { return left.kind < right.kind; });
    return header;
}

} // namespace velmora::portable
