#include "read_cursor.h"

#include "byte_order.h"

#include <algorithm>
#include <cstring>

namespace velmora {

namespace {

/** Reads WIDTH bytes and makes a number of them by LOAD; what did not come counts as zero. */
template <std::size_t width, typename Value>
ReadStatus read_number(ReadCursor& cursor, Value* value, Value (*load)(const void*)) {
    std::array<std::uint8_t, width> bytes;
    const ReadStatus status = cursor.read(bytes.data(), width);
    *value = load(bytes.data());
    return status;
}

} // namespace

bool ReadCursor::seek(std::uint64_t position) {
    if (position < begin_ || position > end_) {
        return false;
    }
    position_ = position;
    return true;
}

bool ReadCursor::skip(std::uint64_t length) {
    if (length > left()) {
        return false;
    }
    position_ += length;
    return true;
}

ReadCursor ReadCursor::slice(std::uint64_t length) const {
    ReadCursor part = *this;
    part.begin_ = position_;
    part.end_ = position_ + std::min(length, left());
    return part;
}

ReadStatus ReadCursor::read(void* bytes, std::size_t length) {
    const auto within = static_cast<std::size_t>(std::min<std::uint64_t>(length, left()));
    std::size_t count = 0;
    const ReadStatus status = window_->read(position_, bytes, within, ahead_end_, &count);
    position_ += count;
    if (within == length) {
        return status;
    }
    std::memset(static_cast<std::uint8_t*>(bytes) + within, 0, length - within);
    return status == ReadStatus::whole ? ReadStatus::ended : status;
}

ReadStatus ReadCursor::read_byte(std::uint8_t* value) {
    return read(value, 1);
}

ReadStatus ReadCursor::read_le16(std::uint16_t* value) {
    return read_number<2>(*this, value, load_le16);
}

ReadStatus ReadCursor::read_be16(std::uint16_t* value) {
    return read_number<2>(*this, value, load_be16);
}

ReadStatus ReadCursor::read_be24(std::uint32_t* value) {
    return read_number<3>(*this, value, load_be24);
}

ReadStatus ReadCursor::read_le32(std::uint32_t* value) {
    return read_number<4>(*this, value, load_le32);
}

ReadStatus ReadCursor::read_be32(std::uint32_t* value) {
    return read_number<4>(*this, value, load_be32);
}

ReadStatus ReadCursor::read_le64(std::uint64_t* value) {
    return read_number<8>(*this, value, load_le64);
}

} // namespace velmora
