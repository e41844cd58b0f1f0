#include "ogg_page.h"

#include "checked_read.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>

namespace velmora::portable {

namespace {

constexpr std::size_t most_segments = 255; ///< of a page, and bytes of a segment
constexpr std::size_t checksum_begin = 22;
constexpr std::size_t checksum_end = 26;

constexpr std::array<std::uint32_t, 256> checksum_table = [] {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < table.size(); ++i) {
        std::uint32_t value = i << 24;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value << 1) ^ ((value >> 31) * 0x04C11DB7u);
        }
        table[i] = value;
    }
    return table;
}();

/** The sizes of the segments that PACKETS make, and whether a packet ends with each. */
struct Segments {
    Bytes sizes;
    std::vector<bool> ends;
};

Segments segments_of(const std::vector<Bytes>& packets) {
    Segments segments;
    for (const Bytes& packet : packets) {
        segments.sizes.insert(segments.sizes.end(), packet.size() / most_segments,
                              std::uint8_t{most_segments});
        segments.sizes.push_back(static_cast<std::uint8_t>(packet.size() % most_segments));
        segments.ends.resize(segments.sizes.size(), false);
        segments.ends.back() = true;
    }
    return segments;
}

} // namespace

std::uint32_t OggPageHeader::body_size() const {
    return std::accumulate(segments.begin(), segments.end(), 0u);
}

std::optional<OggPageHeader> read_ogg_page_header(ReadCursor& cursor) {
    std::array<std::uint8_t, OggPageHeader::fixed_size> bytes;
    const ReadStatus status = cursor.read(bytes.data(), bytes.size());
    if (status == ReadStatus::failed) {
        check_read(status, "Ogg page");
    }
    if (status != ReadStatus::whole || std::memcmp(bytes.data(), "OggS", 5) != 0) { // with version 0
        return std::nullopt;
    }
    OggPageHeader header;
    header.flags = bytes[5];
    header.position = load_le64(bytes.data() + 6);
    header.serial = load_le32(bytes.data() + 14);
    header.sequence = load_le32(bytes.data() + 18);
    header.checksum = load_le32(bytes.data() + checksum_begin);
    if (bytes[26] > cursor.left()) {
        return std::nullopt;
    }
    header.segments = read_bytes(cursor, bytes[26], "Ogg page");
    return header;
}

std::uint32_t ogg_checksum(std::span<const std::uint8_t> page) {
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < page.size(); ++i) {
        const std::uint8_t byte = i >= checksum_begin && i < checksum_end ? 0 : page[i];
        sum = sum << 8 ^ checksum_table[(sum >> 24) ^ byte];
    }
    return sum;
}

Bytes ogg_page(const OggPageHeader& header, std::span<const std::uint8_t> body) {
    Bytes page;
    append(page, std::string_view("OggS"));
    page.push_back(0);
    page.push_back(header.flags);
    append_le64(page, header.position);
    append_le32(page, header.serial);
    append_le32(page, header.sequence);
    append_le32(page, 0);
    page.push_back(static_cast<std::uint8_t>(header.segments.size()));
    append(page, header.segments);
    append(page, body);
    store_le32(page.data() + checksum_begin, ogg_checksum(page));
    return page;
}

std::vector<Bytes> ogg_pages(const std::vector<Bytes>& packets, std::uint32_t serial, std::uint32_t sequence,
                             std::size_t at_least) {
    const Segments segments = segments_of(packets);
    Bytes all;
    for (const Bytes& packet : packets) {
        append(all, packet);
    }
    std::vector<Bytes> pages;
    std::span<const std::uint8_t> rest = all;
    for (std::size_t begin = 0; begin < segments.sizes.size();) {
        const std::size_t still_wanted = at_least > pages.size() + 1 ? at_least - pages.size() - 1 : 0;
        const std::size_t left = segments.sizes.size() - begin;
        const std::size_t count = std::min(most_segments, left > still_wanted ? left - still_wanted : 1);
        OggPageHeader header;
        header.serial = serial;
        header.sequence = sequence++;
        header.segments.assign(segments.sizes.begin() + static_cast<std::ptrdiff_t>(begin),
                               segments.sizes.begin() + static_cast<std::ptrdiff_t>(begin + count));
        header.flags = begin > 0 && !segments.ends[begin - 1] ? ogg_flag::continued : 0;
        const auto ends = segments.ends.begin() + static_cast<std::ptrdiff_t>(begin);
        const bool packet_ends = std::find(ends, ends + static_cast<std::ptrdiff_t>(count), true) !=
                                 ends + static_cast<std::ptrdiff_t>(count);
        header.position = packet_ends ? 0 : OggPageHeader::no_position;
        const std::uint32_t size = header.body_size();
        pages.push_back(ogg_page(header, rest.first(size)));
        rest = rest.subspan(size);
        begin += count;
    }
    return pages;
}

} // namespace velmora::portable
