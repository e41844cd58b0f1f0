#include "id3_bytes.h"
#include "libid3tag_reader.h"
#include "stored_info.h"

#include "fake_image/fake_image.h"
#include "support/command.h"
#include "support/system_call_faults.h"
#include "taglib/id3/load_file_info.h"

#include <gtest/gtest.h>

/** Songs made by ffmpeg and tagged by ffmpeg and mutagen are read by us; what we store is read by libid3tag
   and mutagen, and the songs still decode to the same samples. */
namespace velmora::test {
namespace {

using Values = std::vector<std::string>;

/** The folder's files and what is done with them. */
class RealFiles : public testing::Test {
protected:
    /** A second of sound as an MP3 file with what OPTIONS ask for, made of INPUTS beside the sound. */
    std::string make_song(const std::string& options, const std::string& inputs = "") {
        const std::string path = folder_ / "song.mp3";
        make_file("ffmpeg -v error -nostdin -y -f lavfi -i sine=frequency=440:duration=1 " + inputs +
                      " -c:a libmp3lame -b:a 64k " + options,
                  path);
        return path;
    }
    std::string make_untagged_song() { return make_song("-id3v2_version 0 -write_id3v1 0 -write_xing 0"); }
    std::string make_picture() {
        const std::string path = folder_ / "cover.jpg";
        make_file("ffmpeg -v error -nostdin -y -f lavfi -i testsrc2=size=64x64 -frames:v 1", path);
        return path;
    }
    /** Runs a Python program that has mutagen's ID3 names and the song's path. */
    std::string with_mutagen(const std::string& path, const std::string& program) {
        const std::string script = folder_ / "tag.py";
        write_file(script, "import mutagen.id3\nglobals().update(vars(mutagen.id3))\nsong = '" + path +
                               "'\n" + program);
        return run_command("/usr/bin/python3 " + script);
    }
    /** ffmpeg takes an appended tag for a last, bad frame and says so; that is left out. */
    [[nodiscard]] static std::string decoded_checksum(const std::string& path) {
        return run_on_file("ffmpeg -v fatal -nostdin -i", path, "-map 0:a -f md5 -");
    }
    /** Loads the song into info(). */
    void load(const std::string& path) {
        const StreamCapture log;
        id3_free_file_info(&info_);
        ASSERT_EQ(1, id3_load_file_info(path.c_str(), &info_));
    }
    [[nodiscard]] const _file_info_t& info() const { return info_; }
    [[nodiscard]] const ScratchFolder& folder() const { return folder_; }
    void TearDown() override { id3_free_file_info(&info_); }

private:
    ScratchFolder folder_;
    _file_info_t info_{};
};

using Id3RealFiles = RealFiles;

const std::string ffmpeg_tags = " -metadata album=Album -metadata artist=Artist -metadata title='The Title'"
                                " -metadata genre=Rock -metadata date=1999 -metadata performer=Director ";

TEST_F(Id3RealFiles, Version23WrittenByFfmpegIsRead) {
    load(make_song("-id3v2_version 3" + ffmpeg_tags));
    EXPECT_STREQ("Album", info().title);
    EXPECT_STREQ("Artist", info().artist);
    EXPECT_STREQ("The Title", info().desc);
    EXPECT_STREQ("Rock", info().genre);
    EXPECT_STREQ("Director", info().director);
    EXPECT_EQ(1999, info().year);
}

TEST_F(Id3RealFiles, Version24WrittenByFfmpegIsRead) {
    load(make_song("-id3v2_version 4" + ffmpeg_tags + " -metadata album='Caf\xC3\xA9'"));
    EXPECT_STREQ("Caf\xC3\xA9", info().title);
    EXPECT_STREQ("Artist", info().artist);
    EXPECT_STREQ("The Title", info().desc);
    EXPECT_STREQ("Rock", info().genre);
    EXPECT_EQ(0, info().year); // version 4 has TDRC in place of TYER
    EXPECT_EQ(0u, info().time);
}

TEST_F(Id3RealFiles, PictureInVersion23WrittenByFfmpegIsRead) {
    const std::string cover = make_picture();
    load(make_song("-map 0 -map 1 -c:v copy -id3v2_version 3", "-i " + cover));
    ASSERT_NE(nullptr, info().picture);
    EXPECT_EQ(to_hex(read_file(cover)), to_hex(fake_image_bytes(info().picture)));
}

TEST_F(Id3RealFiles, PictureInVersion24WrittenByFfmpegIsNotReadBecauseItsDescriptionIsUtf8) {
    const std::string path = make_song("-map 0 -map 1 -c:v copy -id3v2_version 4", "-i " + make_picture());
    StreamCapture log;
    _file_info_t loaded;
    ASSERT_EQ(1, id3_load_file_info(path.c_str(), &loaded));
    EXPECT_EQ(nullptr, loaded.picture);
    EXPECT_NE(std::string::npos, log.text().find("id3_load_picture: Unexpected encoding 3\n"));
    id3_free_file_info(&loaded);
}

TEST_F(Id3RealFiles, EveryFieldWrittenByMutagenIsRead) {
    const std::string cover = make_picture();
    for (const char* const version : {"3", "4"}) {
        const std::string path = make_untagged_song();
        with_mutagen(path, "tag = ID3()\n"
                           "for frame in (TALB(0, ['Album']), TPE1(0, ['Artist']), TIT2(0, ['Title']),\n"
                           "              TPE3(0, ['Director']), TCON(0, ['(17)']), TYER(0, ['1999']),\n"
                           "              PRIV('WM/ParentalRating', b'PG-13'),\n"
                           "              APIC(0, 'image/jpeg', 3, 'Front', open('" +
                               cover +
                               "', 'rb').read())):\n"
                               "    tag.add(frame)\n"
                               "tag.save(song, v2_version=" +
                               version + ")\n");
        load(path);
        EXPECT_STREQ("Album", info().title);
        EXPECT_STREQ("Artist", info().artist);
        EXPECT_STREQ("Title", info().desc);
        EXPECT_STREQ("Director", info().director);
        EXPECT_STREQ("PG-13", info().rating);
        EXPECT_STREQ("Rock", info().genre);
        EXPECT_EQ(1999, info().year);
        ASSERT_NE(nullptr, info().picture);
        EXPECT_EQ(to_hex(read_file(cover)), to_hex(fake_image_bytes(info().picture)));
    }
}

TEST_F(Id3RealFiles, TextWrittenByMutagenAsUtf16IsEmptyAndAsUtf8IsRead) {
    const std::string path = make_untagged_song();
    with_mutagen(path, "tag = ID3()\n"
                       "tag.add(TALB(1, ['Album']))\n"
                       "tag.add(TPE1(3, ['\\u4e07']))\n"
                       "tag.save(song)\n");
    load(path);
    EXPECT_EQ(nullptr, info().title);
    EXPECT_STREQ("\xE4\xB8\x87", info().artist);
}

TEST_F(Id3RealFiles, SongWithOnlyAnId3v1TagWrittenByFfmpegHasNone) {
    const std::string path = make_song("-id3v2_version 0 -write_id3v1 1" + ffmpeg_tags);
    const StreamCapture log;
    _file_info_t none;
    EXPECT_EQ(0, id3_load_file_info(path.c_str(), &none));
}

/** A record with every field that libid3tag gives back. */
void fill(StoredInfo& info, char (&texts)[4][16], Image* cover) {
    using namespace file_info_flag;
    info.with_title("Album").with_artist("Artist").with_rating("PG-13").with_year(1999).with_picture(cover);
    info.desc = texts[0];
    info.genre = texts[1];
    info.director = texts[2];
    info.flags |= desc | genre | director;
}

TEST_F(Id3RealFiles, AppendedTagIsReadByLibid3tagAndTheSongStillPlays) {
    const std::string path = make_untagged_song();
    const std::string song = read_file(path);
    const std::string sound = decoded_checksum(path);
    const std::string cover = read_file(make_picture());
    Image* const image = image_from_bytes(cover.data(), cover.size());
    char texts[4][16] = {"Title", "Trip-Hop", "Director"};
    StoredInfo info;
    fill(info, texts, image);
    ASSERT_EQ(1, Store(path, info).result);
    image_release(image);

    const ForeignTag tag = read_with_libid3tag(path);
    EXPECT_EQ(Values{"Album"}, tag.at("TALB"));
    EXPECT_EQ(Values{"Artist"}, tag.at("TPE1"));
    EXPECT_EQ(Values{"Title"}, tag.at("TIT2"));
    EXPECT_EQ(Values{"Director"}, tag.at("TPE3"));
    EXPECT_EQ(Values{"Trip-Hop"}, tag.at("TCON"));
    EXPECT_EQ(Values{"1999"}, tag.at("TYER"));
    EXPECT_EQ(Values{bytes("WM/ParentalRating\0PG-13")}, tag.at("PRIV"));
    ASSERT_EQ(1u, tag.at("APIC").size());
    EXPECT_TRUE(tag.at("APIC")[0].ends_with(cover));

    EXPECT_EQ(song, read_file(path).substr(0, song.size()));
    EXPECT_EQ(sound, decoded_checksum(path));
}

TEST_F(Id3RealFiles, TextsThatWereStoredAreThoseBytesForLibid3tag) {
    const std::string path = make_untagged_song();
    StoredInfo info;
    ASSERT_EQ(1, Store(path, info.with_title("Caf\xC3\xA9")).result);
    EXPECT_EQ(Values{"Caf\xC3\xA9"}, read_with_libid3tag(path).at("TALB"));
}

TEST_F(Id3RealFiles, AppendedTagThatGrewOrShrankIsReadByLibid3tag) {
    const std::string path = make_untagged_song();
    const std::string song = read_file(path);
    const std::string sound = decoded_checksum(path);
    for (const char* const title :
         {"A title of some length", "A title that is much longer than that", "Short"}) {
        StoredInfo info;
        ASSERT_EQ(1, Store(path, info.with_title(title).with_year(2001)).result);
        EXPECT_EQ(Values{title}, read_with_libid3tag(path).at("TALB"));
        EXPECT_EQ(Values{"2001"}, read_with_libid3tag(path).at("TYER"));
        EXPECT_EQ(song, read_file(path).substr(0, song.size()));
        EXPECT_EQ(sound, decoded_checksum(path));
    }
}

TEST_F(Id3RealFiles, SongWithALeadingTagIsLeftAsItIsWhenTheCopyCanNotBeMade) {
    const std::string path = make_song("-id3v2_version 3" + ffmpeg_tags);
    const std::string before = read_file(path);
    StoredInfo info;
    EXPECT_EQ(0, Store(path, info.with_title("New")).result);
    EXPECT_EQ(before, read_file(path));
}

TEST_F(Id3RealFiles, LeadingTagRewrittenThroughACopyIsReadByMutagenAndTheSongStillPlays) {
    for (const char* const version : {"3", "4"}) {
        const std::string path = make_song(std::string("-id3v2_version ") + version + ffmpeg_tags);
        const std::string sound = decoded_checksum(path);
        {
            SystemCallFaults generator;
            generator.create_generated_names();
            StoredInfo info;
            ASSERT_EQ(1, Store(path, info.with_title("New Album").with_rating("R")).result);
        }
        EXPECT_EQ("(2, " + std::string(version) + ", 0) ['New Album'] ['Artist'] ['The Title'] [b'R']\n",
                  with_mutagen(path,
                               "tag = ID3(song, translate=False)\n"
                               "print(tag.version, tag['TALB'].text, tag['TPE1'].text, tag['TIT2'].text,\n"
                               "      [frame.data for frame in tag.getall('PRIV')])\n"));
        EXPECT_EQ(sound, decoded_checksum(path));
    }
}

} // namespace
} // namespace velmora::test
