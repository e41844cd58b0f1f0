#include "picture_mime.h"

#include <array>
#include <string_view>

namespace velmora::portable {

namespace {

struct Signature {
    std::string_view begin;
    std::string_view mime;
};

using namespace std::string_view_literals;
constexpr std::array signatures = {
    Signature{"\xFF\xD8\xFF"sv, "image/jpeg"}, Signature{"\x89PNG\r\n\x1A\n"sv, "image/png"},
    Signature{"GIF8"sv, "image/gif"},          Signature{"BM"sv, "image/bmp"},
    Signature{"II*\0"sv, "image/tiff"},        Signature{"MM\0*"sv, "image/tiff"},
};

} // namespace

std::string picture_mime(std::span<const std::uint8_t> bytes) {
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    for (const Signature& signature : signatures) {
        if (text.starts_with(signature.begin)) {
            return std::string(signature.mime);
        }
    }
    const bool webp = text.starts_with("RIFF") && text.size() >= 12 && text.substr(8, 4) == "WEBP";
    return webp ? "image/webp" : std::string();
}

} // namespace velmora::portable
