#include "picture_header.h"

#include <string_view>

namespace velmora::portable {

namespace {

using ByteView = std::span<const std::uint8_t>;

bool has(ByteView bytes, std::size_t position, std::string_view text) {
    return bytes.size() >= position + text.size() &&
           std::string_view(reinterpret_cast<const char*>(bytes.data()) + position, text.size()) == text;
}

std::uint32_t big_endian(ByteView bytes, std::size_t position, std::size_t width) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < width; ++i) {
        value = value << 8 | bytes[position + i];
    }
    return value;
}

std::uint32_t little_endian(ByteView bytes, std::size_t position, std::size_t width) {
    std::uint32_t value = 0;
    for (std::size_t i = width; i-- > 0;) {
        value = value << 8 | bytes[position + i];
    }
    return value;
}

/** Whether a JPEG marker begins a frame header, which has the size. */
bool is_frame_header(std::uint8_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::optional<PictureHeader> jpeg_header(ByteView bytes) {
    std::size_t position = 2;
    while (position + 9 <= bytes.size() && bytes[position] == 0xFF) {
        const std::uint8_t marker = bytes[position + 1];
        if (marker == 0xFF) {
            ++position;
        } else if (is_frame_header(marker)) {
            constexpr std::uint32_t components = 9; // where their number is
            const std::uint32_t count =
                position + components < bytes.size() ? bytes[position + components] : 0;
            return PictureHeader{"image/jpeg", big_endian(bytes, position + 7, 2),
                                 big_endian(bytes, position + 5, 2), bytes[position + 4] * count};
        } else {
            position += 2 + big_endian(bytes, position + 2, 2);
        }
    }
    return std::nullopt;
}

PictureHeader png_header(ByteView bytes) {
    // By the type of its colours: grey, -, red green blue, from a palette, grey and opacity, -, all four.
    constexpr std::uint32_t samples[] = {1, 0, 3, 1, 2, 0, 4};
    const std::uint32_t colours = bytes[25];
    const std::uint32_t depth = colours < std::size(samples) ? bytes[24] * samples[colours] : 0;
    return {"image/png", big_endian(bytes, 16, 4), big_endian(bytes, 20, 4), depth};
}

std::optional<PictureHeader> webp_header(ByteView bytes) {
    constexpr std::uint32_t fourteen_bits = 0x3FFF;
    if (has(bytes, 12, "VP8X") && bytes.size() >= 30) {
        return PictureHeader{"image/webp", little_endian(bytes, 24, 3) + 1, little_endian(bytes, 27, 3) + 1};
    }
    if (has(bytes, 12, "VP8L") && bytes.size() >= 25) {
        const std::uint32_t bits = little_endian(bytes, 21, 4);
        return PictureHeader{"image/webp", (bits & fourteen_bits) + 1, (bits >> 14 & fourteen_bits) + 1};
    }
    if (has(bytes, 12, "VP8 ") && bytes.size() >= 30) {
        return PictureHeader{"image/webp", little_endian(bytes, 26, 2) & fourteen_bits,
                             little_endian(bytes, 28, 2) & fourteen_bits};
    }
    return std::nullopt;
}

} // namespace

std::optional<PictureHeader> picture_header(std::span<const std::uint8_t> bytes) {
    if (has(bytes, 0, "\xFF\xD8\xFF")) {
        return jpeg_header(bytes);
    }
    if (has(bytes, 0, "\x89PNG\r\n\x1A\n") && bytes.size() >= 26) {
        return png_header(bytes);
    }
    if ((has(bytes, 0, "GIF87a") || has(bytes, 0, "GIF89a")) && bytes.size() >= 10) {
        return PictureHeader{"image/gif", little_endian(bytes, 6, 2), little_endian(bytes, 8, 2)};
    }
    if (has(bytes, 0, "BM") && bytes.size() >= 26) {
        return PictureHeader{"image/bmp", little_endian(bytes, 18, 4), little_endian(bytes, 22, 4)};
    }
    if (has(bytes, 0, "RIFF") && has(bytes, 8, "WEBP")) {
        return webp_header(bytes);
    }
    return std::nullopt;
}

} // namespace velmora::portable
