#include "taglib_reader.h"

#include "fake_image/fake_image.h"
#include "support/bytes.h"
#include "support/command.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/asf/load_file_info.h"
#include "taglib/asf/store_file_info.h"
#include "taglib/byte_order.h"

#include <gmock/gmock.h>

#include <list>
#include <map>
#include <ostream>

/** Songs and films made by ffmpeg. What is stored is read back by ffprobe, TagLib and mutagen, what mutagen
   stored is loaded, and the media decodes as before. */
namespace velmora {
namespace {

using namespace test;

/** Runs a Python script that finds the file in `path` and its tags in `tags`. */
std::string mutagen(const std::string& path, const std::string& script) {
    const std::string program =
        "import sys\n"
        "from mutagen.asf import ASF, ASFByteArrayAttribute, ASFQWordAttribute, ASFUnicodeAttribute\n"
        "path = sys.argv[1]\n"
        "file = ASF(path)\n"
        "tags = file.tags\n" +
        script;
    const ScratchFolder folder;
    write_file(folder / "script.py", program);
    return run_command(std::string(SYSTEM_PYTHON) + " '" + (folder / "script.py") + "' '" + path + "'");
}

/** Decodes the whole file: the checksum of the audio and that of the pictures where HAS_VIDEO. ffmpeg must
   have nothing else to say. */
std::string decoded(const std::string& path, bool has_video) {
    std::string sums =
        run_on_file("ffmpeg -v error -nostdin -i", path,
                    std::string("-map 0:a -f md5 -") + (has_video ? " -map 0:v -f md5 -" : ""));
    const char* const sum = "MD5=[0-9a-f]{32}\n";
    EXPECT_THAT(sums, testing::MatchesRegex(has_video ? std::string(sum) + sum : sum));
    return sums;
}

const std::string e_acute = "\xC3\xA9";
const std::string chinese = "\xE4\xB8\xAD\xE6\x96\x87";
const std::string emoji = "\xF0\x9F\x98\x80";
const std::string jpeg = hex("FF D8 FF E0") + pattern(5000);

/** The kinds of file that ffmpeg makes; each has more than 64 KiB of media. */
struct Kind {
    const char* name;
    const char* options;
    bool has_video;
};

void PrintTo(const Kind& kind, std::ostream* stream) {
    *stream << kind.name;
}

const Kind kinds[] = {
    {"wma", "-f lavfi -i sine=frequency=440:duration=10 -c:a wmav2 -b:a 128k", false},
    {"wmv",
     "-f lavfi -i testsrc2=size=160x120:rate=10:duration=3 -f lavfi -i sine=frequency=440:duration=3"
     " -c:v wmv2 -b:v 800k -c:a wmav2",
     true},
};

class AsfRealFiles : public testing::TestWithParam<Kind> {
protected:
    void SetUp() override {
        path_ = folder_ / (std::string("file.") + GetParam().name);
        make("");
        ASSERT_GT(read_file(path_).size(), 80000u);
    }
    ~AsfRealFiles() override {
        id3_free_file_info(&loaded_);
        EXPECT_EQ(0, fake_images_alive());
    }

    void make(const std::string& metadata) {
        make_file(std::string("ffmpeg -v error -nostdin -y ") + GetParam().options + " " + metadata, path_);
    }

    std::string media() { return decoded(path_, GetParam().has_video); }

    int load() {
        id3_free_file_info(&loaded_);
        const StreamCapture quiet;
        return asf_load_file_info(path_.c_str(), &loaded_);
    }

    int store(const _file_info_t& info) {
        const StreamCapture quiet;
        return asf_store_file_info(path_.c_str(), &info);
    }

    char* text(const std::string& utf8) {
        texts_.push_back(utf8);
        return texts_.back().data();
    }

    /** Every field but the picture. */
    _file_info_t full_info() {
        _file_info_t info{};
        info.flags = 0x1DF;
        info.title = text("Album " + e_acute);
        info.artist = text("Artist " + chinese);
        info.desc = text("Song " + emoji);
        info.genre = text("Rock");
        info.director = text("Director");
        info.rating = text("PG-13");
        info.year = 1999;
        info.time = 0x01D9A1B2C3D4E5F6;
        return info;
    }

    ScratchFolder folder_;
    std::string path_;
    _file_info_t loaded_{};
    std::list<std::string> texts_;
};

TEST_P(AsfRealFiles, WhatFfmpegTaggedIsLoaded) {
    make("-metadata title='Title " + chinese + "' -metadata author='Author " + e_acute +
         "' -metadata genre=Jazz -metadata WM/Year=2001 -metadata album='Album " + emoji + "'");
    ASSERT_EQ(1, load());
    ASSERT_TRUE(loaded_.desc && loaded_.artist && loaded_.title);
    EXPECT_EQ("Title " + chinese, std::string(loaded_.desc));
    EXPECT_EQ("Author " + e_acute, std::string(loaded_.artist));
    EXPECT_STREQ("Jazz", loaded_.genre);
    EXPECT_EQ("Album " + emoji, std::string(loaded_.title));
    EXPECT_EQ(2001, loaded_.year);
    EXPECT_EQ(0x8000u, loaded_.flags);
}

TEST_P(AsfRealFiles, WhatMutagenTaggedIsLoaded) {
    mutagen(path_, R"(
tags["Title"] = ["Title \u4e2d\u6587"]
tags["Author"] = ["Author \u00e9"]
tags["WM/AlbumTitle"] = ["Album \U0001f600"]
tags["WM/Genre"] = ["Jazz"]
tags["WM/Year"] = [ASFUnicodeAttribute("2003")]
tags["WM/Director"] = ["Director"]
tags["WM/ParentalRating"] = ["R"]
tags["WM/EncodingTime"] = [ASFQWordAttribute(0x0102030405060708)]
tags["WM/Picture"] = [ASFByteArrayAttribute(
    b"\x03\x08\x00\x00\x00" + "image/jpeg\0Front\0".encode("utf-16-le") + b"\xff\xd8\xff\xe0jpeg")]
file.save()
)");
    ASSERT_EQ(1, load());
    ASSERT_TRUE(loaded_.desc && loaded_.artist && loaded_.title);
    EXPECT_EQ("Title " + chinese, std::string(loaded_.desc));
    EXPECT_EQ("Author " + e_acute, std::string(loaded_.artist));
    EXPECT_EQ("Album " + emoji, std::string(loaded_.title));
    EXPECT_STREQ("Jazz", loaded_.genre);
    EXPECT_EQ(2003, loaded_.year);
    EXPECT_STREQ("Director", loaded_.director);
    EXPECT_STREQ("R", loaded_.rating);
    EXPECT_EQ(0x0102030405060708u, loaded_.time);
    ASSERT_TRUE(loaded_.picture);
    EXPECT_EQ(hex("FF D8 FF E0") + "jpeg", fake_image_bytes(loaded_.picture));
}

TEST_P(AsfRealFiles, WhatIsStoredIsFoundByFfprobe) {
    ASSERT_EQ(1, store(full_info()));
    const std::map<std::string, std::string> tags = probed_tags(path_);
    const auto tag = [&](const char* name) { return tags.contains(name) ? tags.at(name) : "(none)"; };
    EXPECT_EQ("Album " + e_acute, tag("album"));
    EXPECT_EQ("Artist " + chinese, tag("album_artist"));
    EXPECT_EQ("Artist " + chinese, tag("artist"));
    EXPECT_EQ("Song " + emoji, tag("title"));
    EXPECT_EQ("Rock", tag("genre"));
    EXPECT_EQ("1999", tag("WM/Year"));
    EXPECT_EQ("Director", tag("WM/Director"));
    EXPECT_EQ("PG-13", tag("WM/ParentalRating"));
}

TEST_P(AsfRealFiles, WhatIsStoredIsFoundByTagLib) {
    _file_info_t info = full_info();
    info.flags |= file_info_flag::picture;
    info.picture = image_from_bytes(jpeg.data(), jpeg.size());
    ASSERT_EQ(1, store(info));
    image_release(info.picture);
    const TagLibView view = read_with_taglib(path_);
    ASSERT_TRUE(view.valid);
    EXPECT_EQ("Song " + emoji, view.title);
    EXPECT_EQ("Artist " + chinese, view.author);
    const auto attribute = [&](const char* name) {
        return view.attributes.contains(name) ? view.attributes.at(name) : std::vector<std::string>();
    };
    using Values = std::vector<std::string>;
    EXPECT_EQ(Values{"Album " + e_acute}, attribute("WM/AlbumTitle"));
    EXPECT_EQ(Values{"Artist " + chinese}, attribute("WM/AlbumArtist"));
    EXPECT_EQ(Values{"Song " + emoji}, attribute("WM/Track"));
    EXPECT_EQ(Values{"Rock"}, attribute("WM/Genre"));
    EXPECT_EQ(Values{"1999"}, attribute("WM/Year"));
    EXPECT_EQ(Values{"Director"}, attribute("WM/Director"));
    EXPECT_EQ(Values{"PG-13"}, attribute("WM/ParentalRating"));
    EXPECT_EQ(Values{"133315453145900534"}, attribute("WM/EncodingTime"));
    EXPECT_EQ("image/jpeg", view.picture_mime_type);
    EXPECT_TRUE(jpeg == view.picture);
}

TEST_P(AsfRealFiles, WhatIsStoredIsFoundByMutagen) {
    ASSERT_EQ(1, store(full_info()));
    EXPECT_EQ("Song " + emoji + "\nArtist " + chinese + "\nAlbum " + e_acute + "\n1999\n133315453145900534\n",
              mutagen(path_, R"(
for name in "Title", "Author", "WM/AlbumTitle", "WM/Year", "WM/EncodingTime":
    sys.stdout.buffer.write((str(tags[name][0]) + "\n").encode("utf-8"))
)"));
}

TEST_P(AsfRealFiles, TheMediaDecodesAsBeforeWhenItMoved) {
    const std::string before = media();
    const std::size_t size = read_file(path_).size();
    ASSERT_EQ(1, store(full_info()));
    EXPECT_GT(read_file(path_).size(), size + 1024);
    EXPECT_EQ(before, media());
}

TEST_P(AsfRealFiles, TheMediaDecodesAsBeforeWhenThePaddingTookTheTags) {
    _file_info_t small{};
    small.flags = file_info_flag::desc;
    small.desc = text("x");
    ASSERT_EQ(1, store(small));
    const std::string before = media();
    const std::string bytes = read_file(path_);
    _file_info_t info = full_info();
    info.desc = text("short");
    ASSERT_EQ(1, store(info));
    const std::string after = read_file(path_);
    EXPECT_EQ(bytes.size(), after.size());
    EXPECT_TRUE(bytes.substr(4096) == after.substr(4096));
    EXPECT_EQ(before, media());
}

TEST_P(AsfRealFiles, TheMediaDecodesAsBeforeInAFileThatMutagenPadded) {
    mutagen(path_, "tags['Title'] = ['Title']\nfile.save(padding=lambda info: 3000)\n");
    const std::string before = media();
    const std::size_t size = read_file(path_).size();
    ASSERT_EQ(1, store(full_info()));
    EXPECT_EQ(size, read_file(path_).size());
    EXPECT_EQ(before, media());
    ASSERT_EQ(1, load());
    EXPECT_EQ("Song " + emoji, std::string(loaded_.desc));
}

TEST_P(AsfRealFiles, TheMediaDecodesAsBeforeWhenItMovedBack) {
    // Without a padding object the header shrinks and the data follows it; the old tail stays behind it.
    make("-metadata genre='" + std::string(200, 'g') + "'");
    const std::string before = media();
    const std::string bytes = read_file(path_);
    _file_info_t info{};
    info.flags = file_info_flag::genre;
    info.genre = text("g");
    ASSERT_EQ(1, store(info));
    const std::string after = read_file(path_);
    EXPECT_EQ(bytes.size(), after.size());
    // The genre gives back 398 bytes; a content description of 34 bytes came in.
    EXPECT_EQ(load_le64(bytes.data() + 16) - 364, load_le64(after.data() + 16));
    EXPECT_EQ(before, media());
}

TEST_P(AsfRealFiles, WithoutAttributesOnlyTitleAndAuthorAreKeptAndTheMediaDecodesAsBefore) {
    make("-fflags +bitexact");
    const std::string before = media();
    ASSERT_EQ(1, store(full_info()));
    EXPECT_EQ(before, media());
    ASSERT_EQ(1, load());
    EXPECT_EQ("Song " + emoji, std::string(loaded_.desc));
    EXPECT_EQ("Artist " + chinese, std::string(loaded_.artist));
    EXPECT_EQ(nullptr, loaded_.title);
    EXPECT_EQ(0, loaded_.year);
}

TEST_P(AsfRealFiles, RemovedTagsAreGoneForEveryReader) {
    ASSERT_EQ(1, store(full_info()));
    const std::string before = media();
    {
        const StreamCapture quiet;
        ASSERT_EQ(1, asf_remove_file_info(path_.c_str()));
    }
    ASSERT_EQ(1, load());
    EXPECT_EQ(0u, loaded_.flags);
    const TagLibView view = read_with_taglib(path_);
    ASSERT_TRUE(view.valid);
    EXPECT_EQ("", view.title);
    EXPECT_EQ("", view.author);
    for (const char* const name : {"WM/AlbumTitle", "WM/AlbumArtist", "WM/Track", "WM/Genre", "WM/Year",
                                   "WM/Director", "WM/ParentalRating", "WM/EncodingTime", "WM/Picture"}) {
        EXPECT_FALSE(view.attributes.contains(name)) << name;
    }
    EXPECT_EQ(before, media());
}

TEST_P(AsfRealFiles, WhatIsNotOursStaysForTheOthers) {
    mutagen(path_, "tags['Copyright'] = ['(c) \\u00e9']\ntags['WM/Composer'] = ['Composer']\n"
                   "tags['WM/TrackNumber'] = [7]\nfile.save()\n");
    ASSERT_EQ(1, store(full_info()));
    const TagLibView view = read_with_taglib(path_);
    ASSERT_TRUE(view.valid);
    EXPECT_EQ("(c) " + e_acute, view.copyright);
    ASSERT_TRUE(view.attributes.contains("WM/Composer") && view.attributes.contains("WM/TrackNumber"));
    EXPECT_EQ("Composer", view.attributes.at("WM/Composer").at(0));
    EXPECT_EQ("7", view.attributes.at("WM/TrackNumber").at(0));
}

TEST_P(AsfRealFiles, StoringAgainAndAgainKeepsTheMedia) {
    const std::string before = media();
    for (const std::size_t length : {10u, 3000u, 1u, 20000u, 7u}) {
        _file_info_t info = full_info();
        info.desc = text(std::string(length, 'd'));
        ASSERT_EQ(1, store(info)) << length;
        ASSERT_EQ(1, load());
        EXPECT_EQ(std::string(std::min<std::size_t>(length, 8191), 'd'), loaded_.desc) << length;
    }
    EXPECT_EQ(before, media());
}

INSTANTIATE_TEST_SUITE_P(All, AsfRealFiles, testing::ValuesIn(kinds),
                         [](const auto& instance) { return instance.param.name; });

} // namespace
} // namespace velmora
