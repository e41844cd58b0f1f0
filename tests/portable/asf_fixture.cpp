#include "asf_fixture.h"

#include "support/bytes.h"

#include <variant>

namespace velmora::test {

using portable::Edit;
using portable::Range;
using portable::Rewrite;
using portable::TagEdits;

namespace {

std::string record_list(std::string_view guid, std::initializer_list<std::string> records) {
    return object(guid, u16(static_cast<std::uint16_t>(records.size())) + joined(records));
}

std::string made(const Rewrite& rewrite, const std::string& old) {
    std::string bytes;
    for (const portable::Segment& segment : rewrite.segments) {
        if (const auto* range = std::get_if<Range>(&segment)) {
            bytes += old.substr(range->begin, range->size());
        } else {
            const auto& made_bytes = std::get<std::vector<std::uint8_t>>(segment);
            bytes.append(made_bytes.begin(), made_bytes.end());
        }
    }
    return bytes;
}

} // namespace

std::string file_properties(std::uint64_t size) {
    return object(other_guid, pattern(16, 5) + u64(size) + pattern(56, 6));
}

std::string metadata_record(std::uint16_t language, std::uint16_t stream, std::string_view name,
                            std::uint16_t type, std::string_view value) {
    const std::string encoded = wide_z(name);
    return u16(language) + u16(stream) + u16(static_cast<std::uint16_t>(encoded.size())) + u16(type) +
           u32(static_cast<std::uint32_t>(value.size())) + encoded + std::string(value);
}

std::string metadata(std::initializer_list<std::string> records) {
    return record_list(metadata_guid, records);
}

std::string metadata_library(std::initializer_list<std::string> records) {
    return record_list(library_guid, records);
}

std::string header_extension(std::initializer_list<std::string> objects) {
    const std::string all = joined(objects);
    return object(extension_guid, hex("11 D2 D3 AB BA A9 CF 11 8E E6 00 C0 0C 20 53 65 06 00") +
                                      u32(static_cast<std::uint32_t>(all.size())) + all);
}

std::string asf_media() {
    return object(data_guid, pattern(500, 7)) + pattern(90, 8);
}

std::string asf_picture(std::uint8_t type, std::string_view mime, std::string_view bytes) {
    return std::string(1, static_cast<char>(type)) + u32(static_cast<std::uint32_t>(bytes.size())) +
           wide_z(mime) + u16(0) + std::string(bytes);
}

std::string asf_file(std::initializer_list<std::string> children) {
    const std::string tail = joined(children);
    const std::uint64_t size = 30 + file_properties(0).size() + tail.size() + asf_media().size();
    const std::string head = hex(header_guid) + u64(size - asf_media().size()) +
                             u32(static_cast<std::uint32_t>(children.size() + 1)) + hex("01 02");
    return head + file_properties(size) + tail + asf_media();
}

portable::TagValues asf_values(const std::string& bytes, portable::Media media) {
    OpenBytes file(bytes);
    return portable::open_asf(file.file(), bytes.size(), media)->values();
}

std::string asf_with(const std::string& bytes, const TagEdits& edits, portable::Media media) {
    OpenBytes file(bytes);
    return made(portable::open_asf(file.file(), bytes.size(), media)->with(edits), bytes);
}

std::string asf_without_tags(const std::string& bytes) {
    OpenBytes file(bytes);
    return made(portable::open_asf(file.file(), bytes.size(), portable::Media::audio)->without_tags(), bytes);
}

TagEdits set_year(int year) {
    TagEdits edits;
    edits.year = Edit<int>::set(year);
    return edits;
}

TagEdits set_cover(std::string_view mime, std::string_view bytes) {
    TagEdits edits;
    edits.cover = Edit<portable::Cover>::set({{bytes.begin(), bytes.end()}, std::string(mime)});
    return edits;
}

} // namespace velmora::test
