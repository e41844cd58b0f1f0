#include "wide_text.h"

#include <cstring>
#include <iconv.h>

namespace velmora {

namespace {

const iconv_t not_open =
    reinterpret_cast<iconv_t>(-1); // NOLINT(performance-no-int-to-ptr): as iconv_open has it

// Opened on first use and kept for the life of the process.
iconv_t conv_to_bcs = not_open;
iconv_t conv_to_uni = not_open;

std::size_t convert(iconv_t& handle, const char* to, const char* from, const void* source, void* target,
                    std::size_t capacity) {
    if (handle == not_open) {
        handle = ::iconv_open(to, from);
        if (handle == not_open) {
            return 0;
        }
    }
    // iconv's signature is not const-correct; it leaves the input alone.
    char* in = const_cast<char*>(static_cast<const char*>(source));
    std::size_t in_left = std::strlen(in);
    char* out = static_cast<char*>(target);
    return ::iconv(handle, &in, &in_left, &out, &capacity);
}

} // namespace

std::size_t unitobcs(const wchar_t* source, char* target, std::size_t capacity) {
    return convert(conv_to_bcs, "UTF-8", "WCHAR_T", source, target, capacity);
}

std::size_t bcstouni(const char* source, wchar_t* target, std::size_t capacity) {
    return convert(conv_to_uni, "WCHAR_T", "UTF-8", source, target, capacity);
}

} // namespace velmora
