#include "avi_bytes.h"

#include "support/stream_capture.h"
#include "taglib/avi/load_file_info.h"

#include <gtest/gtest.h>

namespace velmora::test {

std::string le32(std::uint32_t value) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(value >> shift & 0xFF);
    }
    return bytes;
}

std::string z(std::string_view text) {
    return std::string(text) + '\0';
}

std::string chunk(std::string_view fourcc, std::uint32_t size, std::string_view data) {
    return std::string(fourcc) + le32(size) + std::string(data);
}

std::string list(std::uint32_t size, std::string_view type, std::string_view sub_chunks) {
    return "LIST" + le32(size) + std::string(type) + std::string(sub_chunks);
}

std::string riff(std::uint32_t size, std::string_view chunks) {
    return "RIFF" + le32(size) + "AVI " + std::string(chunks);
}

std::string hdrl() {
    return list(20, "hdrl", chunk("avih", 8, "12345678"));
}

std::string movi() {
    return list(24, "movi", chunk("00dc", 12, "frame bytes!"));
}

std::string idx1() {
    return chunk("idx1", 16, "index of 1 frame");
}

std::string old_info() {
    return list(28, "INFO", chunk("INAM", 4, z("Old")) + chunk("ISTR", 4, z("Ann")));
}

std::string avi_without_info() {
    return riff(88, hdrl() + movi() + idx1());
}

std::string avi_with_info_before_movi() {
    return riff(124, hdrl() + old_info() + movi() + idx1());
}

std::string avi_with_info_last() {
    return riff(124, hdrl() + movi() + idx1() + old_info());
}

std::string avi_film_with_info_last() {
    return riff(113586, list(4460, "hdrl", std::string(4456, 'h')) + chunk("JUNK", 26, std::string(26, 'j')) +
                            chunk("JUNK", 1016, std::string(1016, 'j')) +
                            list(100004, "movi", std::string(100000, 'f')) +
                            chunk("idx1", 8000, std::string(8000, 'i')) + old_info());
}

std::string log_of_avi_without_info() {
    return "now have 1 RIFF headers\n"
           "[0000000c] <list> type hdrl size 0x14\n"
           "[00000028] <list> type movi size 0x18\n"
           "[00000048] <idx1> size 0x10\n";
}

std::string log_of_avi_with_info_before_movi() {
    return "now have 1 RIFF headers\n"
           "[0000000c] <list> type hdrl size 0x14\n"
           "[00000028] <list> type INFO size 0x1c\n"
           "[00000034]        <INAM> size 0x4\n"
           "[00000040]        <ISTR> size 0x4\n"
           "[0000004c] <list> type movi size 0x18\n"
           "[0000006c] <idx1> size 0x10\n";
}

std::string log_of_avi_with_info_last() {
    return "now have 1 RIFF headers\n"
           "[0000000c] <list> type hdrl size 0x14\n"
           "[00000028] <list> type movi size 0x18\n"
           "[00000048] <idx1> size 0x10\n"
           "[00000060] <list> type INFO size 0x1c\n"
           "[0000006c]        <INAM> size 0x4\n"
           "[00000078]        <ISTR> size 0x4\n";
}

std::string loaded_title(const std::string& path) {
    StreamCapture quiet;
    _file_info_t info;
    EXPECT_EQ(1, avi_load_file_info(path.c_str(), &info));
    const std::string title = info.title ? info.title : "";
    id3_free_file_info(&info);
    return title;
}

} // namespace velmora::test
