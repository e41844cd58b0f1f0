#include "id3v2_coding.h"

#include <zlib.h>

namespace velmora::portable {

namespace {

using ByteView = std::span<const std::uint8_t>;

/** What is larger when it is unpacked is left packed. */
constexpr std::uint32_t largest_unpacked = 32 * 1024 * 1024;

/** What the flags of a frame say of its body, in whatever version. */
struct Packing {
    bool compressed = false;
    bool encrypted = false;
    bool unsynchronised = false;
    bool data_length = false; ///< its first four bytes are the size of what it holds
    bool grouped = false;     ///< one byte says which group it is of
};

Packing packing_of(std::uint16_t flags, std::uint8_t version) {
    Packing packing;
    if (version == 3) {
        packing.compressed = (flags & 0x80) != 0;
        packing.encrypted = (flags & 0x40) != 0;
        packing.grouped = (flags & 0x20) != 0;
        packing.data_length = packing.compressed;
    } else if (version == 4) {
        packing.grouped = (flags & 0x40) != 0;
        packing.compressed = (flags & 0x08) != 0;
        packing.encrypted = (flags & 0x04) != 0;
        packing.unsynchronised = (flags & id3v2_unsynchronised_frame) != 0;
        packing.data_length = (flags & 0x01) != 0;
    }
    return packing;
}

std::optional<Bytes> unpacked(ByteView packed, std::uint32_t size) {
    if (size > largest_unpacked) {
        return std::nullopt;
    }
    Bytes bytes(size);
    uLongf length = size;
    const int result = ::uncompress(bytes.data(), &length, packed.data(), packed.size());
    return result == Z_OK && length == size ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace

std::optional<std::uint32_t> from_synchsafe(ByteView bytes) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        if (bytes[i] >= 0x80) {
            return std::nullopt;
        }
        value = value << 7 | bytes[i];
    }
    return value;
}

std::uint32_t to_synchsafe(std::uint32_t value) {
    return (value & 0x7F) | (value << 1 & 0x7F00) | (value << 2 & 0x7F0000) | (value << 3 & 0x7F000000);
}

Bytes without_unsynchronisation(ByteView bytes) {
    Bytes result;
    result.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        result.push_back(bytes[i]);
        if (bytes[i] == 0xFF && i + 1 < bytes.size() && bytes[i + 1] == 0) {
            ++i;
        }
    }
    return result;
}

Bytes with_unsynchronisation(ByteView bytes) {
    Bytes result;
    result.reserve(bytes.size() + bytes.size() / 64);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        result.push_back(bytes[i]);
        const bool last = i + 1 == bytes.size();
        if (bytes[i] == 0xFF && (last || bytes[i + 1] == 0 || bytes[i + 1] >= 0xE0)) {
            result.push_back(0);
        }
    }
    return result;
}

std::optional<Id3v2ExtendedHeader> id3v2_extended_header(ByteView content, std::uint8_t version) {
    if (content.size() < 6) {
        return std::nullopt;
    }
    if (version == 3) {
        const std::uint32_t size = load_be32(content.data());
        if ((size != 6 && size != 10) || content.size() < 4 + size) {
            return std::nullopt;
        }
        // Its own size, its flags without that of the checksum, and the padding.
        const auto flags = static_cast<std::uint8_t>(content[4] & 0x7F);
        return Id3v2ExtendedHeader{{0, 0, 0, 6, flags, content[5], 0, 0, 0, 0}, 4 + size};
    }
    const std::optional<std::uint32_t> size = from_synchsafe(content.first(4));
    constexpr std::uint8_t checksum = 0x20;
    constexpr std::size_t checksum_size = 6; // with the byte that tells its length
    if (!size || *size < 6 || *size > content.size() || content[4] != 1) {
        return std::nullopt;
    }
    Bytes bytes(content.begin(), content.begin() + *size);
    if ((bytes[5] & checksum) != 0) {
        const std::size_t begin =
            (bytes[5] & 0x40) != 0 ? 7 : 6; // behind the empty data of the flag in front
        if (bytes.size() < begin + checksum_size) {
            return std::nullopt;
        }
        bytes.erase(bytes.begin() + static_cast<std::ptrdiff_t>(begin),
                    bytes.begin() + static_cast<std::ptrdiff_t>(begin + checksum_size));
        bytes[5] &= static_cast<std::uint8_t>(~checksum);
        store_be32(bytes.data(), to_synchsafe(static_cast<std::uint32_t>(bytes.size())));
    }
    return Id3v2ExtendedHeader{std::move(bytes), *size};
}

std::optional<Bytes> id3v2_frame_content(ByteView body, std::uint16_t flags, std::uint8_t version,
                                         bool all_unsynchronised) {
    const Packing packing = packing_of(flags, version);
    if (packing.encrypted) {
        return std::nullopt;
    }
    const std::size_t extra = (packing.grouped ? 1 : 0) + (packing.data_length ? 4 : 0);
    if (extra > body.size()) {
        return std::nullopt;
    }
    // 2.3 has the size in front of the group, 2.4 behind it.
    const ByteView length = body.subspan(version == 4 && packing.grouped ? 1 : 0);
    std::optional<std::uint32_t> size = 0;
    if (packing.data_length) {
        size = version == 3 ? load_be32(length.data()) : from_synchsafe(length.first(4));
    }
    Bytes content(body.begin() + static_cast<std::ptrdiff_t>(extra), body.end());
    if (packing.unsynchronised || all_unsynchronised) {
        content = without_unsynchronisation(content);
    }
    if (!packing.compressed) {
        return content;
    }
    return size && packing.data_length ? unpacked(content, *size) : std::nullopt;
}

} // namespace velmora::portable
