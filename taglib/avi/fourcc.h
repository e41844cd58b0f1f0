#pragma once

#include <cstdint>

/** FOURCCs: the four identifier bytes of a RIFF chunk (docs/avi.md, "Layout"), as a 32-bit value whose
   lowest byte comes first. */
namespace velmora {

/** The FOURCC written as text, e.g. make_fourcc("LIST"). */
[[nodiscard]] constexpr std::uint32_t make_fourcc(const char (&text)[5]) {
    std::uint32_t value = 0;
    for (int i = 3; i >= 0; --i) {
        value = value << 8 | static_cast<unsigned char>(text[i]);
    }
    return value;
}

namespace fourcc {
inline constexpr std::uint32_t riff = make_fourcc("RIFF");
inline constexpr std::uint32_t list = make_fourcc("LIST");
inline constexpr std::uint32_t info = make_fourcc("INFO");
inline constexpr std::uint32_t junk = make_fourcc("JUNK");
inline constexpr std::uint32_t avi = make_fourcc("AVI ");
inline constexpr std::uint32_t avix = make_fourcc("AVIX");
} // namespace fourcc

/** The four bytes of FOURCC as text, for log lines. The text lies in a static ring of 1,024 bytes and stays
   valid for about two hundred further calls. Not for use on two threads. */
[[nodiscard]] const char* riff_tag(std::uint32_t fourcc);

/** Whether all four bytes are printable: 0x20 to 0x7E, and from 0x80 up what the current locale calls so. */
[[nodiscard]] bool is_riff_tag(std::uint32_t fourcc);

} // namespace velmora
