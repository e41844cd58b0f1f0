#include "taglib/byte_order.h"

#include <gtest/gtest.h>

#include <array>

namespace velmora {
namespace {

// One byte in front, so that every access is unaligned.
constexpr std::array<std::uint8_t, 9> nine_bytes = {0x00, 0x81, 0x92, 0xA3, 0xB4, 0xC5, 0xD6, 0xE7, 0xF8};
const std::uint8_t* const unaligned = nine_bytes.data() + 1;

TEST(ByteOrder, LoadsLittleEndianFromAnyAddress) {
    EXPECT_EQ(0x9281, load_le16(unaligned));
    EXPECT_EQ(0xB4A39281u, load_le32(unaligned));
    EXPECT_EQ(0xF8E7D6C5B4A39281u, load_le64(unaligned));
}

TEST(ByteOrder, LoadsBigEndianFromAnyAddress) {
    EXPECT_EQ(0x8192, load_be16(unaligned));
    EXPECT_EQ(0x8192A3u, load_be24(unaligned));
    EXPECT_EQ(0x8192A3B4u, load_be32(unaligned));
}

template <typename Store, typename Value>
std::array<std::uint8_t, 10> stored(Store store, Value value) {
    std::array<std::uint8_t, 10> target;
    target.fill(0xEE);
    store(target.data() + 1, value);
    return target;
}

using Stored = std::array<std::uint8_t, 10>;

TEST(ByteOrder, StoresLittleEndianAndNothingBeside) {
    EXPECT_EQ((Stored{0xEE, 0x92, 0x81, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}),
              stored(store_le16, 0x8192));
    EXPECT_EQ((Stored{0xEE, 0xB4, 0xA3, 0x92, 0x81, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}),
              stored(store_le32, 0x8192A3B4u));
    EXPECT_EQ((Stored{0xEE, 0xF8, 0xE7, 0xD6, 0xC5, 0xB4, 0xA3, 0x92, 0x81, 0xEE}),
              stored(store_le64, 0x8192A3B4C5D6E7F8u));
}

TEST(ByteOrder, StoresBigEndianAndNothingBeside) {
    EXPECT_EQ((Stored{0xEE, 0x81, 0x92, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}),
              stored(store_be16, 0x8192));
    EXPECT_EQ((Stored{0xEE, 0x81, 0x92, 0xA3, 0xB4, 0xEE, 0xEE, 0xEE, 0xEE, 0xEE}),
              stored(store_be32, 0x8192A3B4u));
}

} // namespace
} // namespace velmora
