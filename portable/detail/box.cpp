#include "box.h"

#include "checked_read.h"
#include "refusals.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <limits>

namespace velmora::portable {

namespace {

constexpr std::uint64_t small_header = 8;
constexpr std::uint64_t large_header = 16;
constexpr std::size_t most_boxes = 250'000; ///< in one box: what no sound file has, and little memory
constexpr std::uint32_t size_is_64_bits = 1;
constexpr std::uint32_t size_to_end = 0;

} // namespace

std::string type_name(std::uint32_t type) {
    std::array<std::uint8_t, 4> letters{};
    store_be32(letters.data(), type);
    return utf8_from_latin1(letters);
}

bool Box::is_free() const {
    return type == box_type("free") || type == box_type("skip");
}

Bytes size_field_for(const Box& box, std::uint64_t size) {
    Bytes field;
    if (box.to_end) {
        append_be32(field, size_to_end);
    } else if (box.header_size == large_header) {
        append_be64(field, size);
    } else if (size <= std::numeric_limits<std::uint32_t>::max()) {
        append_be32(field, static_cast<std::uint32_t>(size));
    } else {
        refuse_too_large(type_name(box.type) + " box of more than 4 GiB");
    }
    return field;
}

Bytes make_box(std::uint32_t type, std::span<const std::uint8_t> content) {
    const Box box{type, {0, small_header + content.size()}};
    Bytes bytes = size_field_for(box, box.whole.size());
    append_be32(bytes, type);
    append(bytes, content);
    return bytes;
}

std::optional<Box> next_box(ReadCursor& cursor, bool in_file) {
    ReadCursor header = cursor;
    std::array<std::uint8_t, large_header> bytes{};
    if (header.left() < small_header) {
        return std::nullopt;
    }
    check_read(header.read(bytes.data(), small_header), "a box");
    Box box{load_be32(bytes.data() + 4), {cursor.position(), 0}};
    std::uint64_t size = load_be32(bytes.data());
    if (size == size_is_64_bits) {
        if (header.left() < large_header - small_header) {
            return std::nullopt;
        }
        check_read(header.read(bytes.data() + small_header, large_header - small_header), "a box");
        size = load_be64(bytes.data() + small_header);
        box.header_size = large_header;
    } else if (size == size_to_end && in_file && box.type != 0) {
        size = cursor.left();
        box.to_end = true;
    }
    if (size < box.header_size || size > cursor.left()) {
        return std::nullopt;
    }
    box.whole.end = box.whole.begin + size;
    return cursor.skip(size) ? std::optional(box) : std::nullopt;
}

void require_end_of_boxes(ReadCursor cursor, std::uint32_t parent) {
    std::array<std::uint8_t, 4> size{};
    const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(cursor.left(), size.size()));
    check_read(cursor.read(size.data(), length), "a box");
    // QuickTime ends a list of atoms with a size of 0, and some programs with fewer bytes than that.
    if (load_be32(size.data()) != 0) {
        refuse_damaged("a box in " + type_name(parent) + " reaches out of it");
    }
}

std::vector<Box> boxes_in(ReadCursor cursor, Range range, std::uint32_t parent) {
    std::vector<Box> boxes;
    if (!cursor.seek(range.begin)) {
        refuse_damaged("a box in " + type_name(parent) + " reaches out of it");
    }
    ReadCursor content = cursor.slice(range.size());
    while (const std::optional<Box> box = next_box(content)) {
        if (boxes.size() == most_boxes) {
            refuse_unsupported("more than " + std::to_string(most_boxes) + " boxes in " + type_name(parent));
        }
        boxes.push_back(*box);
    }
    require_end_of_boxes(content, parent);
    return boxes;
}

std::optional<Box> find_box(const ReadCursor& cursor, const Box& box, std::uint32_t type) {
    for (const Box& child : boxes_in(cursor, box.content(), box.type)) {
        if (child.type == type) {
            return child;
        }
    }
    return std::nullopt;
}

} // namespace velmora::portable
