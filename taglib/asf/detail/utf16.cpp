#include "utf16.h"

#include <algorithm>
#include <cstring>
#include <iconv.h>

namespace velmora {

namespace {

const iconv_t not_open = reinterpret_cast<iconv_t>(-1);

/** A converter between two code sets, opened on first use and kept for the life of the process. */
class Converter {
public:
    Converter(const char* to, const char* from) : to_(to), from_(from) {}

    void convert(const void* source, std::size_t length, void* target, std::size_t capacity) {
        if (handle_ == not_open) {
            handle_ = ::iconv_open(to_, from_);
            if (handle_ == not_open) {
                return;
            }
        }
        // A call that stopped half-way leaves its state behind.
        ::iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        auto* in = static_cast<char*>(const_cast<void*>(source));
        auto* out = static_cast<char*>(target);
        ::iconv(handle_, &in, &length, &out, &capacity);
    }

private:
    const char* to_;
    const char* from_;
    iconv_t handle_ = not_open;
};

// With its byte order in its name, the code set neither takes nor makes a byte order mark.
Converter to_utf8{"UTF-8", "UTF-16LE"};
Converter to_utf16{"UTF-16LE", "UTF-8"};

} // namespace

std::size_t utf16le_length(const void* text, std::size_t length) {
    const auto* bytes = static_cast<const std::uint8_t*>(text);
    std::size_t position = 0;
    while (length - position >= 2 && (bytes[position] != 0 || bytes[position + 1] != 0)) {
        position += 2;
    }
    return position;
}

void utf16le_to_utf8(const void* source, std::size_t length, char* target, std::size_t capacity) {
    to_utf8.convert(source, utf16le_length(source, length), target, capacity);
}

void utf8_to_utf16le(const char* source, void* target, std::size_t capacity) {
    to_utf16.convert(source, std::strlen(source), target, capacity);
}

Utf16TraceText::Utf16TraceText(const void* text, std::size_t length) : present_(text != nullptr) {
    if (text) {
        const std::size_t shown = utf16le_length(text, std::min(length, 2 * longest_message));
        std::memcpy(units_, text, shown);
        units_[shown] = units_[shown + 1] = 0;
    }
}

} // namespace velmora
