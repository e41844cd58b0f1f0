#include "avi_bytes.h"

#include "fake_image/fake_image.h"
#include "support/bytes.h"
#include "support/command.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/avi/load_file_info.h"
#include "taglib/avi/remove_file_info.h"
#include "taglib/avi/store_file_info.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <map>
#include <ostream>

using namespace std::string_literals;

/** Films made by ffmpeg. What is stored is read back by ffprobe, and the film decodes to the
   same checksum. */
namespace velmora::test {
namespace {

void make_film(const std::string& path, const std::string& options) {
    make_file("ffmpeg -v error -nostdin -y -f lavfi -i testsrc2=size=64x48:rate=10:duration=1"
              " -f lavfi -i sine=frequency=440:duration=1 -c:v mpeg4 -fflags +bitexact " +
                  options,
              path);
}

std::string decoded_checksum(const std::string& path) {
    return run_on_file("ffmpeg -v error -nostdin -i", path, "-f md5 -");
}

/** Puts BEHIND at the end of the file and gives the RIFF chunk the size that then is right. */
void append_chunk(const std::string& path, const std::string& behind) {
    std::string bytes = read_file(path) + behind;
    bytes.replace(4, 4, le32(static_cast<std::uint32_t>(bytes.size() - 8)));
    write_file(path, bytes);
}

void make_without_info(const std::string& path) {
    make_film(path, "-c:a pcm_s16le");
}

void make_with_info_in_front(const std::string& path) {
    make_film(path, "-c:a pcm_s16le -metadata title=Before -metadata comment=Kept");
}

void make_with_info_behind(const std::string& path) {
    make_without_info(path);
    append_chunk(path, list(32, "INFO", chunk("INAM", 7, z("Before") + '\0') + chunk("ICMT", 4, "Kept")));
}

void make_with_odd_sizes(const std::string& path) {
    make_film(path, "-c:a libmp3lame -metadata title=Odd... -metadata comment=Kept");
    append_chunk(path, list(5, "xtra", "1")); // without its pad byte
}

void make_sound_only(const std::string& path) {
    make_film(path, "-vn -c:a pcm_s16le -metadata comment=Kept");
}

struct Film {
    const char* name;
    void (*make)(const std::string& path);
    const char* comment; ///< what the film comes with
};

void PrintTo(const Film& film, std::ostream* out) {
    *out << film.name;
}

class AviFilm : public testing::TestWithParam<Film> {
protected:
    void SetUp() override {
        GetParam().make(path_);
        checksum_ = decoded_checksum(path_);
        ASSERT_TRUE(checksum_.starts_with("MD5=")) << checksum_;
    }

    /** Stores all fields but the comment. */
    void store(const std::string& title) {
        std::string texts[] = {title, "Ann Actor, Bo Actor", "Dora Director", "PG-13", "Science Fiction"};
        _file_info_t info{};
        info.title = texts[0].data();
        info.artist = texts[1].data();
        info.director = texts[2].data();
        info.rating = texts[3].data();
        info.genre = texts[4].data();
        info.year = 1987;
        info.flags = file_info_flag::title | file_info_flag::artist | file_info_flag::director |
                     file_info_flag::rating | file_info_flag::genre | file_info_flag::year;
        StreamCapture log;
        ASSERT_EQ(1, avi_store_file_info(path_.c_str(), &info)) << log.text();
    }

    void expect_probed(const std::string& title) {
        std::map<std::string, std::string> tags = probed_tags(path_);
        EXPECT_EQ(title, tags["title"]);
        EXPECT_EQ("Dora Director", tags["artist"]);
        EXPECT_EQ("Ann Actor, Bo Actor", tags["ISTR"]);
        EXPECT_EQ("PG-13", tags["IRTD"]);
        EXPECT_EQ("Science Fiction", tags["genre"]);
        EXPECT_EQ("1987", tags["date"]);
        EXPECT_EQ(GetParam().comment, tags["comment"]);
    }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "film.avi";
    std::string checksum_;
};

TEST_P(AviFilm, WhatOthersTaggedIsLoaded) {
    StreamCapture quiet;
    _file_info_t info;
    ASSERT_EQ(1, avi_load_file_info(path_.c_str(), &info));
    EXPECT_EQ(probed_tags(path_)["title"], info.title ? info.title : "");
    EXPECT_STREQ(GetParam().comment, info.desc ? info.desc : "");
    id3_free_file_info(&info);
}

TEST_P(AviFilm, WhatIsStoredIsReadBackByFfprobe) {
    store("Stored \xC3\xA9t\xC3\xA9");
    expect_probed("Stored \xC3\xA9t\xC3\xA9");
}

TEST_P(AviFilm, AfterAStoreTheFilmDecodesToTheSameChecksum) {
    store("Stored");
    EXPECT_EQ(checksum_, decoded_checksum(path_));
}

TEST_P(AviFilm, ALongerAndThenAShorterTitleAreReadBackToo) {
    store("Short");
    store(std::string(1001, 'L'));
    expect_probed(std::string(1001, 'L'));
    store("S");
    expect_probed("S");
    EXPECT_EQ(checksum_, decoded_checksum(path_));
}

TEST_P(AviFilm, AfterARemovalTheFilmDecodesToTheSameChecksum) {
    StreamCapture quiet;
    EXPECT_EQ(1, avi_remove_file_info(path_.c_str()));
    EXPECT_EQ(checksum_, decoded_checksum(path_));
}

TEST_P(AviFilm, AStoredPictureIsARealJpegForOthers) {
    const std::string cover = folder_ / "cover.jpg";
    make_file("ffmpeg -v error -nostdin -y -f lavfi -i testsrc2=size=32x24 -frames:v 1", cover);
    const std::string jpeg = read_file(cover);
    Image* const picture = image_from_bytes(jpeg.data(), jpeg.size());
    _file_info_t info{};
    info.picture = picture;
    info.flags = file_info_flag::picture;
    StreamCapture quiet;
    ASSERT_EQ(1, avi_store_file_info(path_.c_str(), &info));
    image_release(picture);

    const std::string film = read_file(path_);
    const std::size_t ipic = film.rfind("IPIC");
    ASSERT_NE(std::string::npos, ipic);
    EXPECT_EQ(le32(static_cast<std::uint32_t>(jpeg.size())), film.substr(ipic + 4, 4));
    write_file(cover, film.substr(ipic + 8, jpeg.size()));
    EXPECT_EQ("32,24\n",
              run_command("ffprobe -v error -show_entries stream=width,height -of csv=p=0 '" + cover + "'"));
    EXPECT_EQ(checksum_, decoded_checksum(path_));
}

INSTANTIATE_TEST_SUITE_P(Films, AviFilm,
                         testing::Values(Film{"WithoutInfo", make_without_info, ""},
                                         Film{"InfoBeforeMovi", make_with_info_in_front, "Kept"},
                                         Film{"InfoAfterMovi", make_with_info_behind, "Kept"},
                                         Film{"OddSizes", make_with_odd_sizes, "Kept"},
                                         Film{"SoundOnly", make_sound_only, "Kept"}),
                         [](const auto& film) { return std::string(film.param.name); });

TEST(AviOneFilm, ARemovedListInFrontOfTheMediaIsGoneForOthersToo) {
    const ScratchFolder folder;
    const std::string path = folder / "film.avi";
    make_with_info_in_front(path);
    ASSERT_EQ("Before", probed_tags(path)["title"]);
    StreamCapture quiet;
    EXPECT_EQ(1, avi_remove_file_info(path.c_str()));
    EXPECT_EQ("", probed_tags(path)["title"]);
}

TEST(AviOneFilm, AnOpenDmlFilmWithASecondRiffIsLeftAloneWithError78) {
    const ScratchFolder folder;
    const std::string path = folder / "film.avi";
    make_with_info_in_front(path);
    write_file(path, read_file(path) + "RIFF" + le32(36) + "AVIX" + movi());
    const std::string bytes = read_file(path);
    StreamCapture quiet;
    _file_info_t info{};
    EXPECT_EQ(0, avi_load_file_info(path.c_str(), &info));
    EXPECT_EQ(78, errno);
    info.flags = file_info_flag::title;
    EXPECT_EQ(0, avi_store_file_info(path.c_str(), &info));
    EXPECT_EQ(78, errno);
    EXPECT_EQ(0, avi_remove_file_info(path.c_str()));
    EXPECT_EQ(78, errno);
    EXPECT_TRUE(bytes == read_file(path));
}

TEST(AviOneFilm, AWaveFileIsLeftAloneWithError5) {
    const ScratchFolder folder;
    const std::string path = folder / "sound.avi";
    run_command("ffmpeg -v error -nostdin -y -f lavfi -i sine=duration=1 -f wav '" + path + "'");
    const std::string bytes = read_file(path);
    StreamCapture quiet;
    _file_info_t info{};
    EXPECT_EQ(0, avi_store_file_info(path.c_str(), &info));
    EXPECT_EQ(5, errno);
    EXPECT_TRUE(bytes == read_file(path));
}

} // namespace
} // namespace velmora::test
