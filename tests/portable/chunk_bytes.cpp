#include "chunk_bytes.h"

namespace velmora::test {

std::string le32(unsigned long value) {
    std::string text;
    for (int shift = 0; shift < 32; shift += 8) {
        text += static_cast<char>(value >> shift);
    }
    return text;
}

std::string chunk(std::string_view fourcc, std::string_view data) {
    return std::string(fourcc) + le32(data.size()) + std::string(data) + std::string(data.size() & 1, '\0');
}

std::string aiff_chunk(std::string_view fourcc, std::string_view data) {
    const std::string size = le32(data.size());
    return std::string(fourcc) + std::string(size.rbegin(), size.rend()) + std::string(data) +
           std::string(data.size() & 1, '\0');
}

std::string list(std::string_view type, std::string_view chunks) {
    return chunk("LIST", std::string(type) + std::string(chunks));
}

std::string riff(std::string_view form, std::string_view chunks) {
    return chunk("RIFF", std::string(form) + std::string(chunks));
}

std::string info(std::string_view fourcc, std::string_view text) {
    return chunk(fourcc, std::string(text) + std::string(1, '\0'));
}

} // namespace velmora::test
