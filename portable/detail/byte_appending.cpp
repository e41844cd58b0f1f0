#include "byte_appending.h"

namespace velmora::portable {

void append(Bytes& bytes, std::span<const std::uint8_t> more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

void append(Bytes& bytes, std::string_view more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

} // namespace velmora::portable
