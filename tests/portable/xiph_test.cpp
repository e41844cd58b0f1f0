#include "chunk_bytes.h"
#include "rewriting.h"

#include "portable/reason.h"
#include "support/bytes.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using namespace portable;
using test::edited;
using test::hex;
using test::le32;
using test::pattern;
using test::refusal_of;
using test::set_text;
using test::to_hex;
using test::values_in;

const std::string frames = hex("FFF8C918") + pattern(300);

/** A block of FLAC of less than 256 bytes; KIND has the top bit set for the last one. */
std::string block(unsigned kind, const std::string& content) {
    return std::string(1, static_cast<char>(kind)) + hex("0000") + static_cast<char>(content.size()) +
           content;
}

std::string counted(const std::string& text) {
    return le32(text.size()) + text;
}

const std::string stream_info = block(0, pattern(34));

TEST(FlacTags, ANewListOfCommentsStandsBehindTheStreamsOwnBlock) {
    const std::string comments = counted("Velmora") + le32(1) + counted("TITLE=Größe");
    EXPECT_EQ(to_hex("fLaC" + stream_info + block(4, comments) + block(0x83, "seek") + frames),
              to_hex(edited("fLaC" + stream_info + block(0x83, "seek") + frames, "flac",
                            set_text(Field::title, "Größe"))));
}

TEST(FlacTags, PaddingTakesUpWhatChanges) {
    const auto file = [](const std::string& title, std::size_t padding) {
        const std::string comments =
            counted("v") + le32(3) + counted("title=" + title) + counted("odd") + counted("X=\xFF");
        return "fLaC" + stream_info + block(4, comments) + block(0x81, std::string(padding, '\0')) + frames;
    };
    std::string made = file("Harb", 23);
    made.replace(made.find("title"), 5, "TITLE");
    EXPECT_EQ(to_hex(made), to_hex(edited(file("Harbour", 20), "flac", set_text(Field::title, "Harb"))));
}

TEST(FlacTags, MoreEmptyBlocksThanMemoryIsGrantedForAreRefused) {
    std::string blocks;
    for (int i = 0; i < 2'000'000; ++i) {
        blocks += block(2, "");
    }
    EXPECT_THROW(
        static_cast<void>(values_in("fLaC" + stream_info + blocks + block(0x83, "seek") + frames, "flac")),
        Refusal);
}

TEST(FlacTags, MoreCommentsThanAnyFileHasAreRefused) {
    std::string comments = counted("v") + le32(300'000) + std::string(std::size_t{4} * 300'000, '\0');
    const std::string size = hex("84") + hex("124F89"); // of 1,200,009 bytes
    EXPECT_EQ("too large for this kind of file (Vorbis comments)", refusal_of([&] {
                  static_cast<void>(values_in("fLaC" + stream_info + size + comments + frames, "flac"));
              }));
}

TEST(FlacTags, SeveralValuesAreJoinedAndBecomeOne) {
    const auto file = [](const std::string& artists) {
        return "fLaC" + stream_info + block(0x84, counted("v") + artists) + frames;
    };
    const std::string old = file(le32(3) + counted("ARTIST=A") + counted("X=1") + counted("artist=B"));
    EXPECT_EQ("A; B", values_in(old, "flac").text(Field::artist));
    EXPECT_EQ(to_hex(file(le32(2) + counted("ARTIST=C") + counted("X=1"))),
              to_hex(edited(old, "flac", set_text(Field::artist, "C"))));
}

TEST(FlacTags, WhatIsCutOffIsDamaged) {
    const std::string whole = "fLaC" + stream_info + block(0x84, counted("v") + le32(1) + counted("TITLE=x"));
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_THAT(test::refusal_of([&] { static_cast<void>(values_in(whole.substr(0, size), "flac")); }),
                    testing::HasSubstr("damaged"))
            << size;
    }
}

/** The checksum of Ogg, a bit at a time. */
std::uint32_t checksum(const std::string& page) {
    std::uint32_t sum = 0;
    for (const char byte : page) {
        sum ^= static_cast<std::uint32_t>(static_cast<unsigned char>(byte)) << 24;
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum & 0x80000000U) != 0 ? sum << 1 ^ 0x04C11DB7U : sum << 1;
        }
    }
    return sum;
}

/** A page whose segments have the sizes SEGMENTS. */
std::string page(char flags, unsigned sequence, const std::string& segments, const std::string& body,
                 const std::string& position = std::string(8, '\0')) {
    const auto with = [&](std::uint32_t sum) {
        return "OggS" + std::string(1, '\0') + flags + position + le32(7) + le32(sequence) + le32(sum) +
               static_cast<char>(segments.size()) + segments + body;
    };
    return with(checksum(with(0)));
}

const std::string head = page(2, 0, "\x08", "OpusHead");

std::string comments(const std::string& title) {
    return "OpusTags" + counted("v") + le32(1) + counted("TITLE=" + title);
}

std::string audio(unsigned sequence) {
    return page(0, sequence, "\x64", pattern(100)) + page(4, sequence + 1, "\x32", pattern(50, 2));
}

TEST(OggTags, CommentsThatFitOnTheirPageMoveNoOther) {
    const std::string old = head + page(0, 1, "\x1E", comments("Old")) + audio(2);
    EXPECT_EQ("Old", values_in(old, "opus").text(Field::title));
    EXPECT_EQ(to_hex(head + page(0, 1, "\x22", comments("Harbour")) + audio(2)),
              to_hex(edited(old, "opus", set_text(Field::title, "Harbour"))));
}

TEST(OggTags, PagesBehindAreCountedAnew) {
    const std::string title(255 * 255, 'x');
    const std::string packet = comments(title);
    const std::string first(255, '\xFF');
    const std::string made =
        head + page(0, 1, first, packet.substr(0, 255 * 255), std::string(8, '\xFF')) +
        page(1, 2, std::string(1, static_cast<char>(packet.size() - 255 * 255)), packet.substr(255 * 255)) +
        audio(3);
    EXPECT_EQ(to_hex(made), to_hex(edited(head + page(0, 1, "\x1E", comments("Old")) + audio(2), "opus",
                                          set_text(Field::title, title))));
}

TEST(OggTags, FewerBytesStayOnAsManyPages) {
    const std::string packet = comments("Old");
    const std::string old = head +
                            page(0, 1, "\xFF", packet + std::string(225, 'p'), std::string(8, '\xFF')) +
                            page(1, 2, "\x05", "ppppp") + audio(3);
    // What follows the comments stays, so that there is enough for two pages.
    const std::string rest = comments("X") + std::string(230, 'p');
    const std::string made =
        head + page(0, 1, "\xFF", rest.substr(0, 255), std::string(8, '\xFF')) +
        page(1, 2, std::string(1, static_cast<char>(rest.size() - 255)), rest.substr(255)) + audio(3);
    EXPECT_EQ(to_hex(made), to_hex(edited(old, "opus", set_text(Field::title, "X"))));
}

TEST(OggTags, StreamsSideBySideAreRefused) {
    std::string other = page(2, 0, "\x08", "OpusHead");
    other[14] = 8;
    EXPECT_THAT(test::refusal_of([&] { static_cast<void>(values_in(head + other, "ogg")); }),
                testing::HasSubstr("several streams"));
}

} // namespace
} // namespace velmora
