#pragma once

#include "trace_text.h"

#include "taglib/trace.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace velmora {

/** Where a message is best put together: in this thread's batch, where there is one, or else in OWN. */
[[nodiscard]] char* place_for_message(char* own);
/** Writes the message of LENGTH bytes and room for its terminator that was put there. errno stays. */
void write_message(char* message, std::size_t length);

/** A message that is put together piece by piece, in the time that its bytes take, and written when the
   object goes: for what is traced of every small thing of a file, of which there can be millions. What does
   not fit into message_capacity is cut off. Nothing else may be traced while an object lives. */
class TraceLine {
public:
    TraceLine() : begin_(place_for_message(own_)), end_(begin_) {}
    ~TraceLine() { write_message(begin_, static_cast<std::size_t>(end_ - begin_)); }
    TraceLine(const TraceLine&) = delete;
    TraceLine& operator=(const TraceLine&) = delete;

    TraceLine& text(std::string_view text) {
        const std::size_t length = std::min(text.size(), room());
        std::memcpy(end_, text.data(), length);
        end_ += length;
        return *this;
    }
    /** Lower case, without leading zeros. */
    TraceLine& hex(std::uint64_t number) {
        end_ += put_hex(end_, room() + 1, number);
        return *this;
    }
    TraceLine& decimal(std::int64_t number) {
        end_ += put_decimal(end_, room() + 1, number);
        return *this;
    }
    /** UTF-16LE text as UTF-8, up to a zero unit; null is no text. */
    TraceLine& utf16le(const void* text) {
        end_ += put_utf16le(end_, room() + 1, text);
        return *this;
    }

private:
    /** Beside a terminator. */
    [[nodiscard]] std::size_t room() const {
        return message_capacity - 1 - static_cast<std::size_t>(end_ - begin_);
    }

    char own_[message_capacity];
    char* begin_;
    char* end_;
};

} // namespace velmora
