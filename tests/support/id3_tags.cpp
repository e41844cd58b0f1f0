#include "id3_tags.h"

namespace velmora::test {

std::string syncsafe(std::uint32_t value) {
    std::string bytes(4, '\0');
    for (int i = 3; i >= 0; --i) {
        bytes[static_cast<std::size_t>(i)] = static_cast<char>(value % 128);
        value /= 128;
    }
    return bytes;
}

std::string big_endian(std::uint32_t value) {
    std::string bytes(4, '\0');
    for (int i = 3; i >= 0; --i) {
        bytes[static_cast<std::size_t>(i)] = static_cast<char>(value % 256);
        value /= 256;
    }
    return bytes;
}

std::string header(int version, int flags, std::uint32_t size, std::string_view signature) {
    return std::string(signature) + static_cast<char>(version) + '\0' + static_cast<char>(flags) +
           syncsafe(size);
}

std::string frame4(std::string_view id, std::string_view body) {
    return std::string(id) + syncsafe(static_cast<std::uint32_t>(body.size())) + std::string(2, '\0') +
           std::string(body);
}

std::string frame3(std::string_view id, std::string_view body) {
    return std::string(id) + big_endian(static_cast<std::uint32_t>(body.size())) + std::string(2, '\0') +
           std::string(body);
}

std::string text4(std::string_view id, std::string_view text) {
    return frame4(id, std::string(1, '\0') + std::string(text));
}

std::string rating4(std::string_view rating) {
    return frame4("PRIV", std::string("WM/ParentalRating\0", 18) + std::string(rating));
}

std::string cover4(std::string_view data) {
    return frame4("APIC", std::string("\0image/jpeg\0\3\0", 14) + std::string(data));
}

std::string leading_tag(int version, std::string_view contents) {
    return header(version, 0, static_cast<std::uint32_t>(contents.size())) + std::string(contents);
}

std::string appended_tag(std::string_view contents) {
    const auto size = static_cast<std::uint32_t>(contents.size());
    return header(4, 0x10, size) + std::string(contents) + header(4, 0x10, size, "3DI");
}

} // namespace velmora::test
