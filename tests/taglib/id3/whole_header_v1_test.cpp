#include "id3_bytes.h"

#include "support/stream_capture.h"
#include "taglib/id3/header_v1.h"
#include "taglib/id3/load_file_info.h"
#include "taglib/id3/remove_file_info.h"
#include "taglib/id3/store_file_info.h"

#include <gtest/gtest.h>

#include <sys/types.h>
#include <unistd.h>

// In this program the seek to four bytes in front of a file's end goes to 128, so that ID3v1 blocks are
// found: it shows what would happen to them. NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
off_t __real_lseek(int descriptor, off_t offset, int whence);
off_t __wrap_lseek(int descriptor, off_t offset, int whence) {
    return __real_lseek(descriptor, offset == -4 && whence == SEEK_END ? -128 : offset, whence);
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace velmora::test {
namespace {

std::string block(const std::string& year, int genre) {
    return "TAG" + std::string(30, 'T') + "Artist" + std::string(24, '\0') + "Album " + std::string(24, ' ') +
           year + std::string(30, 'c') + static_cast<char>(genre);
}

const std::string media(1000, 'm');

/** A loaded record, released with the object. */
struct Loaded : _file_info_t {
    explicit Loaded(const std::string& contents) : _file_info_t{} {
        const ScratchFolder folder;
        write_file(folder / "song.mp3", contents);
        const StreamCapture log;
        result = id3_load_file_info((folder / "song.mp3").c_str(), this);
    }
    ~Loaded() { id3_free_file_info(this); }
    Loaded(const Loaded&) = delete;
    Loaded& operator=(const Loaded&) = delete;
    int result = -1;
};

TEST(Id3WholeHeaderV1, FillsTheSlots) {
    const Loaded info(media + block("1987", 17));
    EXPECT_EQ(1, info.result);
    EXPECT_EQ(0x8000u, info.flags);
    EXPECT_EQ(std::string(30, 'T'), info.desc);
    EXPECT_STREQ("Artist", info.artist);
    EXPECT_EQ("Album " + std::string(24, ' '), info.title);
    EXPECT_EQ(1987, info.year);
    EXPECT_STREQ("Rock", info.genre);
    EXPECT_EQ(nullptr, info.director);
    EXPECT_EQ(nullptr, info.rating);
}

TEST(Id3WholeHeaderV1, EmptyFieldsStayEmpty) {
    const Loaded info(media + "TAG" + std::string(124, '\0') + '\xFF');
    EXPECT_EQ(1, info.result);
    EXPECT_EQ(nullptr, info.desc);
    EXPECT_EQ(nullptr, info.artist);
    EXPECT_EQ(nullptr, info.title);
    EXPECT_EQ(nullptr, info.genre);
    EXPECT_EQ(0, info.year);
}

TEST(Id3WholeHeaderV1, GenresUpTo125HaveANameAndTheYearMayEndEarly) {
    EXPECT_STREQ("Dance Hall", Loaded(media + block("19  ", 125)).genre);
    const Loaded info(media + block("19  ", 126));
    EXPECT_EQ(nullptr, info.genre);
    EXPECT_EQ(19, info.year);
}

TEST(Id3WholeHeaderV1, OtherSignatureIsNoTag) {
    const Loaded info(media + "tag" + std::string(125, 'x'));
    EXPECT_EQ(0, info.result);
    EXPECT_EQ(0u, info.flags);
}

TEST(Id3WholeHeaderV1, PositionIsWhereTheBlockBegins) {
    OpenFile file(media + block("1987", 17));
    _id3_header_v1_t header;
    EXPECT_EQ(1000, id3_load_header_v1(file.handle(), &header));
    EXPECT_EQ(1000, id3_is_present_v1(file.handle()));
    EXPECT_EQ("TAG", std::string(header.signature, 3));
    EXPECT_EQ(17, header.genre);
}

TEST(Id3WholeHeaderV1, NewTagIsWrittenOverTheBlock) {
    OpenFile file(media + block("1987", 17));
    char title[] = "a";
    _file_info_t info{};
    info.flags = file_info_flag::title;
    info.title = title;
    const StreamCapture log;
    EXPECT_EQ(1, id3_store_file_info(file.path().c_str(), &info));
    const std::string tag = appended_tag(text4("TALB", "a"));
    EXPECT_EQ(media + tag + block("1987", 17).substr(tag.size()), file.contents());
}

TEST(Id3WholeHeaderV1, RemovalFindsItAndChangesNothing) {
    OpenFile file(media + block("1987", 17));
    StreamCapture log;
    EXPECT_EQ(1, id3_remove_file_info(file.path().c_str()));
    EXPECT_EQ(media + block("1987", 17), file.contents());
    EXPECT_EQ("", log.text());
}

TEST(Id3WholeHeaderV1, FileOfNothingElseIsDeletedByTheRemoval) {
    OpenFile file(block("1987", 17));
    EXPECT_EQ(1, id3_remove_file_info(file.path().c_str()));
    EXPECT_FALSE(file_exists(file.path()));
}

} // namespace
} // namespace velmora::test
