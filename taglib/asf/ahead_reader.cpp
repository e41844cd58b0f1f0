#include "ahead_reader.h"

#include <algorithm>

namespace velmora {

bool AsfAheadReader::read(std::uint8_t* bytes, std::size_t length) {
    if (static_cast<std::int64_t>(length) > left()) {
        return false;
    }
    while (length > 0) {
        if (next_ == filled_) {
            if (length >= ahead_) {
                const std::int64_t start = position_;
                position_ += static_cast<std::int64_t>(length);
                return asf_read_zero_padded(file_, start, bytes, length);
            }
            if (!fill()) {
                return false;
            }
        }
        const std::size_t count = std::min(length, filled_ - next_);
        bytes = std::copy_n(buffer_.data() + next_, count, bytes);
        next_ += count;
        position_ += static_cast<std::int64_t>(count);
        length -= count;
    }
    return true;
}

bool AsfAheadReader::fill() {
    next_ = 0;
    filled_ = static_cast<std::size_t>(std::min<std::int64_t>(static_cast<std::int64_t>(ahead_), left()));
    buffer_.fill(0);
    return asf_read_zero_padded(file_, position_, buffer_.data(), filled_);
}

} // namespace velmora
