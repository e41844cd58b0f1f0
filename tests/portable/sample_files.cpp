#include "sample_files.h"

#include "asf_fixture.h"
#include "box_bytes.h"
#include "chunk_bytes.h"

#include "portable/detail/ogg_page.h"
#include "support/bytes.h"

namespace velmora::test {

using namespace portable;

std::string mp3_sample(bool tagged) {
    const std::string tag = hex("49443303 0000 0000001E 54495432 00000006 0000 00") + "Title" +
                            hex("58595A57 00000004 0000 01020304");
    return (tagged ? tag : std::string()) + hex("FFFB9064") + pattern(4000);
}

std::string appended_tag_sample() {
    const std::string header = hex("0400 10 00000010");
    return "ID3" + header + hex("54495432 00000006 0000 00") + "Later" + "3DI" + header;
}

std::string flac_sample() {
    return "fLaC" + hex("00000022") + pattern(34) + hex("81000040") + std::string(64, '\0') + pattern(3000);
}

std::string opus_sample() {
    const auto packet = [](const std::string& bytes) { return Bytes(bytes.begin(), bytes.end()); };
    OggPageHeader first;
    first.flags = ogg_flag::first;
    first.segments = {8};
    const auto comments = packet("OpusTags" + le32(1) + "v" + le32(1) + le32(9) + "TITLE=Old");
    std::vector<Bytes> pages{ogg_page(first, packet("OpusHead"))};
    for (const Bytes& page : ogg_pages({comments}, 0, 1, 1)) {
        pages.push_back(page);
    }
    for (const Bytes& page : ogg_pages({packet(pattern(9000)), packet(pattern(9000, 2))}, 0, 2, 4)) {
        pages.push_back(page);
    }
    std::string file;
    for (const Bytes& page : pages) {
        file.append(page.begin(), page.end());
    }
    return file;
}

std::string mp4_sample(bool media_behind) {
    const std::string type = box("ftyp", "isom");
    const std::string media = box("mdat", pattern(3000));
    const auto movie = [](std::size_t offset) {
        return box("moov", track(be32(offset)) + item_list(item("\xA9nam", "Old") + item("xxxx", "kept")));
    };
    const std::size_t behind = type.size() + movie(0).size() + 8;
    return media_behind ? type + movie(behind) + media : type + media + movie(type.size() + 8);
}

std::string wav_sample() {
    return riff("WAVE", chunk("fmt ", "0123456789abcdef") +
                            list("INFO", info("INAM", "Old") + info("ISFT", "kept")) +
                            chunk("data", pattern(3000)));
}

std::string aiff_sample() {
    return aiff_chunk("FORM",
                      "AIFF" + aiff_chunk("COMM", "123456789012345678") + aiff_chunk("SSND", pattern(3000)));
}

std::string avi_sample() {
    return riff("AVI ", list("hdrl", chunk("avih", "header")) + list("movi", chunk("00dc", pattern(3000))) +
                            chunk("idx1", "0123456789abcdef") + list("INFO", info("INAM", "Old")));
}

std::string asf_sample() {
    return asf_file({content_description("Harbour", "Ada"), padding(40)});
}

} // namespace velmora::test
