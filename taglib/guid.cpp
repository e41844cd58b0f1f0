#include "guid.h"

#include "byte_order.h"

#include <cstdio>

namespace velmora {

const char* GUIDNAME(const GUID& guid) {
    static char text[64];
    const std::uint8_t* const b = guid.bytes;
    std::snprintf(text, sizeof text, "{%08lx-%04x-%-4x-%04x-%02x%02x%02x%02x%02x%02x}",
                  static_cast<unsigned long>(load_le32(b)), unsigned{load_le16(b + 4)},
                  unsigned{load_le16(b + 6)}, unsigned{load_be16(b + 8)}, unsigned{b[10]}, unsigned{b[11]},
                  unsigned{b[12]}, unsigned{b[13]}, unsigned{b[14]}, unsigned{b[15]});
    return text;
}

} // namespace velmora
