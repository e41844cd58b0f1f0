#include "fault_table_files.h"

#include "support/bytes.h"
#include "support/id3_tags.h"

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

/** A version 4 tag that holds FIELDS. */
std::string id3_tag_bytes(const TagFields& fields, bool footer) {
    std::string frames;
    for (const auto& [id, body] : fields) {
        frames += frame4(id, body);
    }
    return footer ? appended_tag(frames) : leading_tag(4, frames);
}

std::string latin1(const std::string& text) {
    return '\0' + text;
}

TagFields id3_fields() {
    return {{"TALB", latin1("Old")},
            {"TPE1", latin1("Artist")},
            {"TIT2", latin1("Song")},
            {"TPE3", latin1("Director")},
            {"PRIV", std::string("WM/ParentalRating\0PG", 20)},
            {"TCON", latin1("Rock")},
            {"TYER", latin1("1999")},
            {"APIC", apic_body(old_picture())},
            {"TDRC", latin1("2008-05-04T:10:20:30")},
            {"TENC", latin1("kept")}};
}

constexpr std::string_view header_guid = "30 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C";
constexpr std::string_view cd_guid = "33 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C";
constexpr std::string_view ecd_guid = "40 A4 D0 D2 07 E3 D2 11 97 F0 00 A0 C9 5E A8 50";
constexpr std::string_view padding_guid = "74 D4 06 18 DF CA 09 45 A4 BA 9A AB CB 96 AA E8";
constexpr std::string_view data_guid = "36 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C";
constexpr std::string_view other_guid = "A1 DC AB 8C 47 A9 CF 11 8E E4 00 C0 0C 20 53 65";

std::string object(std::string_view guid, const std::string& body) {
    return hex(guid) + little_endian(24 + body.size(), 8) + body;
}

std::string counted(const std::string& bytes) {
    return little_endian(bytes.size(), 2) + bytes;
}

std::string chunk(std::string_view fourcc, const std::string& data) {
    const std::string pad(data.size() % 2, '\0');
    return std::string(fourcc) + little_endian(data.size(), 4) + data + pad;
}

TagFields asf_fields(const std::string& album) {
    return {{"title", wide("Song")},
            {"author", wide("Artist")},
            {"copyright", wide("Somebody")},
            {"description", wide("About")},
            {"rating", wide("R")},
            {"WM/AlbumTitle", wide_attribute(album)},
            {"WM/AlbumArtist", wide_attribute("Artist")},
            {"WM/Track", wide_attribute("Song")},
            {"WM/Genre", wide_attribute("Rock")},
            {"WM/Year", hex("03 00 04 00 CF 07 00 00")},
            {"WM/Director", wide_attribute("Director")},
            {"WM/ParentalRating", wide_attribute("PG")},
            {"WM/EncodingTime", hex("04 00 08 00 80 2F 1B 5A 9B AD C8 01")},
            {"WM/Picture", wm_picture(old_picture())},
            {"WM/Other", wide_attribute("kept")}};
}

/** The Content Description with the first five FIELDS, and the Extended one with the others. */
std::string asf_descriptions(const TagFields& fields) {
    constexpr std::size_t strings = 5;
    std::string lengths;
    std::string texts;
    std::string attributes;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const auto& [name, value] = fields[i];
        if (i < strings) {
            lengths += little_endian(value.size(), 2);
            texts += value;
        } else {
            attributes += counted(wide(name)) + value;
        }
    }
    return object(cd_guid, lengths + texts) +
           object(ecd_guid, little_endian(fields.size() - strings, 2) + attributes);
}

TagFields avi_fields() {
    const auto text = [](const std::string& ascii) { return ascii + '\0'; };
    return {{"INAM", text("Old")},      {"ISTR", text("Cast")},  {"ICMT", text("Story")},
            {"IART", text("Director")}, {"IRTD", text("PG")},    {"IGNR", text("Drama")},
            {"ICRD", text("1999")},     {"IPIC", old_picture()}, {"ISFT", text("kept")}};
}

} // namespace

std::string old_picture() {
    return "\xFF\xD8\xFF"
           "old";
}

std::string apic_body(const std::string& bytes) {
    return std::string("\0image/jpeg\0\x10\0", 14) + bytes;
}

std::string wm_picture(const std::string& bytes) {
    const std::string value =
        '\3' + little_endian(bytes.size(), 4) + wide("image/jpeg") + hex("00 00") + bytes;
    return hex("01 00") + counted(value);
}

std::string wide(const std::string& ascii) {
    std::string text;
    for (const char c : ascii + '\0') {
        text += {c, '\0'};
    }
    return text;
}

std::string wide_attribute(const std::string& ascii) {
    return hex("00 00") + counted(wide(ascii));
}

MediaSample id3_appended_sample(std::size_t size) {
    const std::string tag = id3_tag_bytes(id3_fields(), true);
    return {pattern(size) + tag, 0, size, size, tag.size(), id3_fields()};
}

MediaSample id3_leading_sample(std::size_t size) {
    const std::string tag = id3_tag_bytes(id3_fields(), false);
    return {tag + pattern(size), tag.size(), size, 0, tag.size(), id3_fields()};
}

MediaSample id3_side_file_sample() {
    MediaSample sample{id3_tag_bytes(id3_fields(), true)};
    sample.fields = id3_fields();
    return sample;
}

MediaSample asf_sample(std::size_t size, std::size_t padding, const std::string& album) {
    const std::string last =
        padding > 0 ? object(padding_guid, std::string(padding - 24, '\xAA')) : object(other_guid, "kept");
    const TagFields fields = asf_fields(album);
    const std::string header = object(header_guid, hex("04 00 00 00 01 02") + object(other_guid, "first") +
                                                       asf_descriptions(fields) + last);
    const std::string data = object(data_guid, pattern(size - 24));
    return {header + data, header.size(), size, 0, header.size(), fields};
}

MediaSample avi_sample(std::size_t size, AviInfo info) {
    const std::string hdrl = chunk("LIST", "hdrl" + chunk("avih", std::string(16, '\x11')));
    std::string info_chunks;
    for (const auto& [fourcc, value] : avi_fields()) {
        info_chunks += chunk(fourcc, value);
    }
    const std::string list = chunk("LIST", "INFO" + info_chunks);
    const std::string movi = chunk("LIST", "movi" + chunk("00dc", pattern(size)));
    const std::string idx1 = chunk("idx1", std::string(16, '\x22'));
    const std::string front = "AVI " + hdrl + (info == AviInfo::in_front ? list : std::string());
    const std::string contents = front + movi + idx1 + (info == AviInfo::last ? list : std::string());
    MediaSample sample{chunk("RIFF", contents), 8 + front.size(), movi.size() + idx1.size()};
    if (info != AviInfo::none) {
        sample.fields = avi_fields();
    }
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
