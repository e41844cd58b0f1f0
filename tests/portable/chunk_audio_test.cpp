#include "chunk_bytes.h"
#include "rewriting.h"

#include "support/bytes.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using namespace portable;
using test::aiff_chunk;
using test::chunk;
using test::edited;
using test::info;
using test::list;
using test::remove_text;
using test::riff;
using test::set_text;
using test::to_hex;
using test::values_in;

const std::string format = chunk("fmt ", "0123456789abcdef");
const std::string samples = chunk("data", "samples");

std::string wav(const std::string& in_front, const std::string& behind) {
    return riff("WAVE", format + in_front + samples + behind);
}

std::string aiff(const std::string& in_front, const std::string& behind) {
    return aiff_chunk("FORM", "AIFF" + in_front + aiff_chunk("SSND", "samples") + behind);
}

/** A tag of version 2.4 with TITLE, five letters, and the padding that a new one has. */
std::string new_tag(const std::string& title) {
    return test::hex("49443304 0000 00000810 54495432 00000006 0000 03") + title + std::string(1024, '\0');
}

/** A tag of version 2.3 with TITLE, five letters in Latin-1, a frame that nobody knows, and without
   padding. */
std::string old_tag(const std::string& title) {
    return test::hex("49443303 0000 0000001E 54495432 00000006 0000 00") + title +
           test::hex("58595A57 00000004 0000 01020304");
}

TEST(WavTags, TheId3ChunkCountsBeforeTheInfoList) {
    const std::string items = info("INAM", "In INFO") + info("IART", "Artist") + info("IPRD", "Album") +
                              info("ICMT", "Comment") + info("IGNR", "Folk") + info("ICRD", "1994-05-03");
    const TagValues values = values_in(wav(list("INFO", items), chunk("id3 ", old_tag("Title"))), "wav");
    EXPECT_EQ("Title", values.text(Field::title));
    EXPECT_EQ("Artist", values.text(Field::artist));
    EXPECT_EQ("Album", values.text(Field::album));
    EXPECT_EQ("Comment", values.text(Field::synopsis));
    EXPECT_EQ("Folk", values.text(Field::genre));
    EXPECT_EQ(1994, values.year);
}

TEST(WavTags, ATagIsMadeAtTheEndAndNoInfoList) {
    EXPECT_EQ(to_hex(wav("", chunk("id3 ", new_tag("Title")))),
              to_hex(edited(wav("", ""), "wav", set_text(Field::title, "Title"))));
}

TEST(WavTags, AMissingPadByteIsPutInFrontOfTheTag) {
    std::string old = wav("", "");
    old.pop_back();
    old[4] = static_cast<char>(old[4] - 1);
    EXPECT_EQ(to_hex(wav("", chunk("id3 ", new_tag("Title")))),
              to_hex(edited(old, "wav", set_text(Field::title, "Title"))));
}

TEST(WavTags, BothTagsAreUpdatedAndOtherItemsStay) {
    const auto with = [](const std::string& title, const std::string& tag) {
        return wav(chunk("bext", "broadcast") + list("INFO", info("ISFT", "Maker") + info("INAM", title)) +
                       chunk("ID3 ", tag),
                   chunk("cue ", "cues"));
    };
    EXPECT_EQ(to_hex(with("Other", old_tag("Other"))),
              to_hex(edited(with("Title", old_tag("Title")), "wav", set_text(Field::title, "Other"))));
}

TEST(WavTags, ANewTagSaysWhatTheInfoListDoes) {
    const std::string old = wav("", list("INFO", info("IART", "Artist")));
    const std::string made = edited(old, "wav", set_text(Field::title, "Title"));
    EXPECT_THAT(made, testing::HasSubstr("TPE1" + test::hex("00000007 0000 03") + "Artist"));
    EXPECT_THAT(made, testing::HasSubstr(list("INFO", info("IART", "Artist") + info("INAM", "Title"))));
}

TEST(WavTags, DeletingDeletesInBothAndMakesNone) {
    const std::string old = wav("", list("INFO", info("INAM", "Title") + info("ISFT", "Maker")));
    EXPECT_EQ(to_hex(wav("", list("INFO", info("ISFT", "Maker")))),
              to_hex(edited(old, "wav", remove_text(Field::title))));
}

TEST(WavTags, TwoInfoListsBecomeOne) {
    const std::string tag = chunk("id3 ", old_tag("Other"));
    const std::string old = wav(list("INFO", info("INAM", "One")),
                                list("INFO", info("ISFT", "Maker")) + chunk("id3 ", old_tag("Title")));
    const std::string expected = wav(list("INFO", info("INAM", "Other") + info("ISFT", "Maker")), tag);
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "wav", set_text(Field::title, "Other"))));
}

TEST(WavTags, RemovalTakesBoth) {
    const std::string old =
        wav(list("INFO", info("INAM", "One")), chunk("id3 ", old_tag("Title")) + chunk("cue ", "c"));
    EXPECT_EQ(to_hex(wav("", chunk("cue ", "c"))), to_hex(test::without_tags(old, "wav")));
}

TEST(WavTags, SamplesThatAreCutOffAreShownAndNotSaved) {
    const std::string old = wav(list("INFO", info("INAM", "Title")), "");
    const std::string cut = old.substr(0, old.size() - 3);
    EXPECT_EQ("Title", values_in(cut, "wav").text(Field::title));
    EXPECT_EQ(
        "the file is damaged (the last chunk reaches behind the end of the file)",
        test::refusal_of([&] { static_cast<void>(edited(cut, "wav", set_text(Field::title, "New"))); }));
}

TEST(WavTags, A64BitFileIsRefused) {
    std::string old = wav("", "");
    old.replace(0, 4, "RF64");
    EXPECT_EQ("the file is of a sort that can't be saved safely (a WAV file of 64 bits, RF64)",
              test::refusal_of([&] { static_cast<void>(values_in(old, "wav")); }));
}

TEST(WavTags, FilesOfManyShapesAreReadOrRefused) {
    const std::string whole = wav(list("INFO", info("INAM", "Title")), chunk("id3 ", old_tag("Title")));
    for (std::size_t at = 0; at < whole.size(); ++at) {
        static_cast<void>(
            test::refusal_of([&] { static_cast<void>(values_in(whole.substr(0, at), "wav")); }));
        for (const char wrong : {'\0', '\x7F', '\xFF'}) {
            std::string bytes = whole;
            bytes[at] = wrong;
            static_cast<void>(test::refusal_of([&] { static_cast<void>(values_in(bytes, "wav")); }));
        }
    }
}

TEST(AiffTags, ATagIsMadeAtTheEnd) {
    EXPECT_EQ(to_hex(aiff("", aiff_chunk("ID3 ", new_tag("Title")))),
              to_hex(edited(aiff("", ""), "aiff", set_text(Field::title, "Title"))));
}

TEST(AiffTags, TextsOfItsOwnAreReadAndUpdated) {
    const auto with = [](const std::string& name) {
        return aiff(aiff_chunk("NAME", name) + aiff_chunk("AUTH", "Author") + aiff_chunk("(c) ", "Nobody"),
                    aiff_chunk("ID3 ", old_tag(name)));
    };
    EXPECT_EQ("Author", values_in(with("Title"), "aif").text(Field::artist));
    EXPECT_EQ(to_hex(with("Other")), to_hex(edited(with("Title"), "aif", set_text(Field::title, "Other"))));
}

TEST(AiffTags, RemovalTakesTheTagAndTheTexts) {
    const std::string old =
        aiff(aiff_chunk("NAME", "Name") + aiff_chunk("(c) ", "Nobody"), aiff_chunk("ID3 ", old_tag("Title")));
    EXPECT_EQ(to_hex(aiff(aiff_chunk("(c) ", "Nobody"), "")), to_hex(test::without_tags(old, "aiff")));
}

} // namespace
} // namespace velmora
