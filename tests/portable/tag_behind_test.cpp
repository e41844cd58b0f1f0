// Files behind which a save in place put a tag of its own.

#include "box_bytes.h"
#include "chunk_bytes.h"
#include "rewriting.h"

#include "portable/detail/in_place_tag.h"
#include "portable/reason.h"
#include "support/bytes.h"
#include "support/id3_tags.h"
#include "support/stream_capture.h"
#include "taglib/byte_file.h"

#include <fcntl.h>
#include <gmock/gmock.h>

namespace velmora {
namespace {

using namespace portable;
using test::aiff_chunk;
using test::appended_tag;
using test::be32;
using test::box;
using test::chunk;
using test::edited;
using test::hex;
using test::item;
using test::item_list;
using test::pattern;
using test::remove_text;
using test::riff;
using test::set_text;
using test::text4;
using test::to_hex;
using test::track;
using test::values_in;
using test::without_tags;

const std::string unknown = "XYZW" + hex("00000003 0000 010203");

std::string song(const std::string& title) {
    return riff("WAVE", chunk("fmt ", "0123456789abcdef") + chunk("data", pattern(300)) +
                            (title.empty() ? "" : test::list("INFO", test::info("INAM", title))));
}

std::string film(const std::string& title) {
    const std::string type = box("ftyp", "isom");
    const std::string media = box("mdat", pattern(300));
    const std::string items = title.empty() ? "" : item("\xA9nam", title);
    return type + media +
           box("moov", track(be32(type.size() + 8)) + item_list(items, box("free", std::string(300, '\0'))));
}

std::string end_of(const std::string& file, std::size_t size) {
    return to_hex(file.substr(file.size() - std::min(file.size(), size)));
}

TEST(TagBehind, IsNotRead) {
    EXPECT_EQ(
        "Harbour",
        values_in(film("Harbour") + appended_tag(text4("TALB", "Later") + text4("TCON", "Drama")), "mp4")
            .text(Field::title));
    EXPECT_EQ(std::nullopt,
              values_in(film("Harbour") + appended_tag(text4("TCON", "Drama")), "mp4").text(Field::genre));
}

TEST(TagBehind, FollowsAFieldThatItHas) {
    const std::string made = edited(film("Harbour") + appended_tag(unknown + text4("TALB", "Later")), "mp4",
                                    set_text(Field::title, "Evening"));
    EXPECT_EQ("Evening", values_in(made, "mp4").text(Field::title));
    const std::string expected = appended_tag(unknown + text4("TALB", "Evening"));
    EXPECT_EQ(to_hex(expected), end_of(made, expected.size()));
}

TEST(TagBehind, GetsNoFieldThatItDoesNotHave) {
    const std::string behind = appended_tag(unknown + text4("TALB", "Later"));
    const std::string made = edited(film("Harbour") + behind, "mp4", set_text(Field::genre, "Drama"));
    EXPECT_EQ(to_hex(behind), end_of(made, behind.size()));
}

TEST(TagBehind, LosesAFieldThatIsDeletedAndGoesWithItsLast) {
    const std::string with_two = appended_tag(unknown + text4("TIT2", "Later"));
    const std::string made = edited(song("Harbour") + with_two, "wav", remove_text(Field::title));
    EXPECT_EQ(to_hex(appended_tag(unknown)), end_of(made, appended_tag(unknown).size()));

    EXPECT_EQ(to_hex(edited(song("Harbour"), "wav", remove_text(Field::title))),
              to_hex(edited(song("Harbour") + appended_tag(text4("TIT2", "Later")), "wav",
                            remove_text(Field::title))));
}

TEST(TagBehind, LosesWhatItCanNotHold) {
    const std::string jpeg = hex("FFD8FFE0 01");
    const std::string cover = "APIC" + hex("00000013 0000 00") + "image/jpeg" + hex("00 03 00") + jpeg;
    TagEdits png;
    png.cover = Edit<Cover>::set({{0x89, 'P', 'N', 'G', 1}, "image/png"});
    const std::string made = edited(song("") + appended_tag(cover + text4("TIT2", "Later")), "wav", png);
    const std::string expected = appended_tag(text4("TIT2", "Later"));
    EXPECT_EQ(to_hex(expected), end_of(made, expected.size()));
    EXPECT_EQ(png.cover.value(), values_in(made, "wav").cover);
}

TEST(TagBehind, GoesWithAllTags) {
    const std::string behind = appended_tag(unknown + text4("TIT2", "Later"));
    const std::string sound = aiff_chunk("COMM", "123456789012345678") + aiff_chunk("SSND", pattern(300));
    const std::string flac = "fLaC" + hex("80000022") + pattern(34) + hex("FFF8C918") + pattern(300);
    EXPECT_EQ(to_hex(without_tags(song(""), "wav")), to_hex(without_tags(song("") + behind, "wav")));
    EXPECT_EQ(to_hex(without_tags(film("x"), "m4a")), to_hex(without_tags(film("x") + behind, "m4a")));
    EXPECT_EQ(to_hex(flac), to_hex(without_tags(flac + behind, "flac")));
    const std::string aiff = aiff_chunk("FORM", "AIFF" + sound);
    EXPECT_EQ(to_hex(aiff), to_hex(without_tags(aiff + behind, "aiff")));
}

TEST(TagBehind, LeavesNoLineInTheLogWhenTheDiskIsFull) {
    test::StreamCapture log;
    ByteFile full;
    ASSERT_TRUE(full.open("/dev/full", O_WRONLY | O_CLOEXEC));
    InPlaceTag tag;
    tag.apply(set_text(Field::title, "Evening"), Media::audio);
    try {
        tag.store(full.handle(), 0);
        ADD_FAILURE() << "it was stored";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(ReasonCode::no_space, refusal.reason().code);
    }
    EXPECT_EQ("", log.text());
}

} // namespace
} // namespace velmora
