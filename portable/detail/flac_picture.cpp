#include "flac_picture.h"

#include "portable/picture_header.h"

#include <array>

namespace velmora::portable {

namespace {

using ByteView = std::span<const std::uint8_t>;

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/** Takes numbers and blocks off the front of bytes; what is not there makes all that follow fail. */
class Taker {
public:
    explicit Taker(ByteView bytes) : rest_(bytes) {}

    [[nodiscard]] bool whole() const { return whole_; }
    [[nodiscard]] ByteView take(std::uint64_t length) {
        whole_ = whole_ && length <= rest_.size();
        const ByteView taken = whole_ ? rest_.first(static_cast<std::size_t>(length)) : ByteView();
        rest_ = rest_.subspan(taken.size());
        return taken;
    }
    [[nodiscard]] std::uint32_t number() {
        const ByteView bytes = take(4);
        return whole_ ? load_be32(bytes.data()) : 0;
    }

private:
    ByteView rest_;
    bool whole_ = true;
};

} // namespace

std::optional<FlacPicture> flac_picture(ByteView block) {
    constexpr std::uint64_t numbers = 16; // width, height, depth, colours
    Taker taker(block);
    FlacPicture picture;
    picture.type = taker.number();
    const ByteView mime = taker.take(taker.number());
    picture.mime.assign(mime.begin(), mime.end());
    const ByteView description = taker.take(taker.number());
    picture.description.assign(description.begin(), description.end());
    static_cast<void>(taker.take(numbers));
    const ByteView bytes = taker.take(taker.number());
    picture.bytes.assign(bytes.begin(), bytes.end());
    const bool usable = taker.whole() && !picture.bytes.empty() && picture.mime != "-->";
    return usable ? std::optional(std::move(picture)) : std::nullopt;
}

Bytes flac_picture_block(const FlacPicture& picture) {
    const PictureHeader header = picture_header(picture.bytes).value_or(PictureHeader());
    Bytes block;
    append_be32(block, picture.type);
    append_be32(block, static_cast<std::uint32_t>(picture.mime.size()));
    append(block, std::string_view(picture.mime));
    append_be32(block, static_cast<std::uint32_t>(picture.description.size()));
    append(block, picture.description);
    append_be32(block, header.width);
    append_be32(block, header.height);
    append_be32(block, header.depth);
    append_be32(block, 0); // not of a palette, or not known to be
    append_be32(block, static_cast<std::uint32_t>(picture.bytes.size()));
    append(block, picture.bytes);
    return block;
}

std::string base64(ByteView bytes) {
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        std::uint32_t group = 0;
        for (std::size_t j = 0; j < 3; ++j) {
            group = group << 8 | (j < count ? bytes[i + j] : 0u);
        }
        for (std::size_t j = 0; j < 4; ++j) {
            text += j <= count ? alphabet[group >> (18 - 6 * j) & 0x3F] : '=';
        }
    }
    return text;
}

std::optional<Bytes> from_base64(std::string_view text) {
    std::array<std::uint8_t, 256> values{};
    values.fill(0xFF);
    for (std::size_t i = 0; i < alphabet.size(); ++i) {
        values[static_cast<unsigned char>(alphabet[i])] = static_cast<std::uint8_t>(i);
    }
    while (text.ends_with('=')) {
        text.remove_suffix(1);
    }
    Bytes bytes;
    bytes.reserve(text.size() / 4 * 3 + 2);
    std::uint32_t group = 0;
    unsigned bits = 0;
    for (const char letter : text) {
        const std::uint8_t value = values[static_cast<unsigned char>(letter)];
        if (value == 0xFF) {
            return std::nullopt;
        }
        group = group << 6 | value;
        bits += 6;
        if (bits >= 8) {
            bits -= 8;
            bytes.push_back(static_cast<std::uint8_t>(group >> bits));
        }
    }
    return bytes;
}

} // namespace velmora::portable
