#include "fault_table_files.h"

#include "support/bytes.h"

#include <initializer_list>
#include <string_view>

namespace velmora::test {

namespace {

std::string little_endian(std::uint64_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text.push_back(static_cast<char>(value >> (8 * i)));
    }
    return text;
}

/** A version 4 tag that holds the album "Old" in 14 bytes. */
std::string id3_tag_bytes(bool footer) {
    const std::string size_and_flags = hex(footer ? "04 00 10 00 00 00 0E" : "04 00 00 00 00 00 0E");
    const std::string album = hex("54 41 4C 42 00 00 00 04 00 00 00 4F 6C 64");
    return "ID3" + size_and_flags + album + (footer ? "3DI" + size_and_flags : std::string());
}

constexpr std::string_view header_guid = "30 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C";
constexpr std::string_view cd_guid = "33 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C";
constexpr std::string_view ecd_guid = "40 A4 D0 D2 07 E3 D2 11 97 F0 00 A0 C9 5E A8 50";
constexpr std::string_view padding_guid = "74 D4 06 18 DF CA 09 45 A4 BA 9A AB CB 96 AA E8";
constexpr std::string_view other_guid = "A1 DC AB 8C 47 A9 CF 11 8E E4 00 C0 0C 20 53 65";

std::string object(std::string_view guid, const std::string& body) {
    return hex(guid) + little_endian(24 + body.size(), 8) + body;
}

std::string wide(const std::string& ascii) {
    std::string text;
    for (const char c : ascii + '\0') {
        text += {c, '\0'};
    }
    return text;
}

std::string counted(const std::string& bytes) {
    return little_endian(bytes.size(), 2) + bytes;
}

std::string chunk(std::string_view fourcc, const std::string& data) {
    const std::string pad(data.size() % 2, '\0');
    return std::string(fourcc) + little_endian(data.size(), 4) + data + pad;
}

} // namespace

MediaSample id3_appended_sample(std::size_t size) {
    const std::string tag = id3_tag_bytes(true);
    return {pattern(size) + tag, 0, size, size, tag.size()};
}

MediaSample id3_leading_sample(std::size_t size) {
    const std::string tag = id3_tag_bytes(false);
    return {tag + pattern(size), tag.size(), size, 0, tag.size()};
}

MediaSample id3_side_file_sample() {
    return {id3_tag_bytes(true)};
}

MediaSample asf_sample(std::size_t size, std::size_t padding, const std::string& album) {
    const std::string author = wide("Old");
    const std::string cd = object(cd_guid, hex("00 00 08 00 00 00 00 00 00 00") + author);
    const std::string value = wide(album);
    const std::string ecd =
        object(ecd_guid, hex("01 00") + counted(wide("WM/AlbumTitle")) + hex("00 00") + counted(value));
    const std::string last =
        padding > 0 ? object(padding_guid, std::string(padding - 24, '\xAA')) : object(other_guid, "kept");
    const std::string header =
        object(header_guid, hex("04 00 00 00 01 02") + object(other_guid, "first") + cd + ecd + last);
    return {header + pattern(size), header.size(), size, 0, header.size()};
}

MediaSample avi_sample(std::size_t size, AviInfo info) {
    const std::string hdrl = chunk("LIST", "hdrl" + chunk("avih", std::string(16, '\x11')));
    const std::string list = chunk("LIST", "INFO" + chunk("INAM", std::string("Old\0", 4)));
    const std::string movi = chunk("LIST", "movi" + chunk("00dc", pattern(size)));
    const std::string idx1 = chunk("idx1", std::string(16, '\x22'));
    const std::string front = "AVI " + hdrl + (info == AviInfo::in_front ? list : std::string());
    const std::string contents = front + movi + idx1 + (info == AviInfo::last ? list : std::string());
    MediaSample sample{chunk("RIFF", contents), 8 + front.size(), movi.size() + idx1.size()};
    if (info == AviInfo::in_front) {
        sample.tag = 8 + 4 + hdrl.size();
        sample.tag_size = 8; // its chunk header, which becomes that of a "JUNK" chunk
    } else if (info == AviInfo::last) {
        sample.tag = 8 + front.size() + movi.size() + idx1.size();
        sample.tag_size = list.size();
    }
    return sample;
}

} // namespace velmora::test
