#include "model/MediaFile.h"

#include "portable/portable_tags.h"
#include "support/bytes.h"
#include "support/pictures.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

using test::hex;
using test::pattern;
using End = PortableSaveResult::End;

const QString none;

/** Two silent frames of MPEG audio, layer 3. */
std::string mpegFrames() {
    const std::string frame = hex("FF FB 90 C4") + std::string(413, '\0');
    return frame + frame;
}

/** The title "Hé" in UTF-16 in an ID3v2.3 tag in front of the music. */
std::string songWithUtf16Title() {
    return "ID3" + hex("03 00 00 00 00 00 11") + "TIT2" + hex("00 00 00 07 00 00 01 FF FE 48 00 E9 00") +
           mpegFrames();
}

/** A song of another program's making, whose tag in place says nothing. */
class PortableMediaFileTest : public testing::Test {
protected:
    PortableMediaFileTest() { test::write_file(folder_ / "song.mp3", songWithUtf16Title()); }

    QString path() { return QString::fromStdString(folder_ / "song.mp3"); }
    std::unique_ptr<MediaFile> open() {
        QString obstacle;
        auto file = MediaFile::initWithPortableTags(path(), &obstacle);
        EXPECT_EQ(none, obstacle);
        return file;
    }
    portable::TagValues values() { return portable::read_tags(folder_ / "song.mp3").values; }
    static PortableSaveResult save(const MediaFile& file, bool breakLinks = false) {
        return file.portableSave(breakLinks)({});
    }

    test::ScratchFolder folder_;
    test::StreamCapture log_;
};

TEST_F(PortableMediaFileTest, ShowsWhatOtherProgramsRead) {
    const auto file = open();

    EXPECT_EQ(QStringLiteral("Hé"), file->title());
    EXPECT_EQ(1, file->mediaType());
    EXPECT_EQ(none, file->artist());
    EXPECT_EQ(0, file->year());
    EXPECT_FALSE(file->coverArt());
}

TEST_F(PortableMediaFileTest, SavesWhatWasChanged) {
    const auto file = open();
    file->setArtist(QStringLiteral("Ada"));
    file->setYear(1994);
    file->setSynopsis(QStringLiteral("Recorded at sea"));

    EXPECT_EQ(End::Saved, save(*file).end);

    EXPECT_EQ("H\xc3\xa9", values().text(portable::Field::title));
    EXPECT_EQ("Ada", values().text(portable::Field::artist));
    EXPECT_EQ("Recorded at sea", values().text(portable::Field::synopsis));
    EXPECT_EQ(1994, values().year);
}

TEST_F(PortableMediaFileTest, DeletesWhatWasEmptied) {
    const auto file = open();
    file->setTitle(none);

    EXPECT_EQ(End::Saved, save(*file).end);
    EXPECT_EQ(std::nullopt, values().text(portable::Field::title));
}

TEST_F(PortableMediaFileTest, LeavesTheFileAloneWithoutChangesAndAfterTheyWereSettled) {
    const auto file = open();
    EXPECT_EQ(End::Unchanged, save(*file).end);
    file->setTitle(QStringLiteral("Evening"));
    file->settleChanges();

    EXPECT_EQ(End::Unchanged, save(*file).end);
    EXPECT_EQ(songWithUtf16Title(), test::read_file(folder_ / "song.mp3"));
}

TEST_F(PortableMediaFileTest, KeepsACoversOwnBytes) {
    const QByteArray png = test::encoded(test::plain({3, 2}, Qt::red), "png");
    const auto file = open();
    file->setCoverArt(ImageRef::fromBytes(png));

    EXPECT_EQ(End::Saved, save(*file).end);

    const auto cover = values().cover;
    ASSERT_TRUE(cover);
    EXPECT_EQ("image/png", cover->mime);
    EXPECT_EQ(png, QByteArray(reinterpret_cast<const char*>(cover->bytes.data()), cover->bytes.size()));
}

TEST_F(PortableMediaFileTest, StoresPixelsAsAFineJpeg) {
    QImage pixels(160, 120, QImage::Format_RGB32);
    for (int x = 0; x < pixels.width(); ++x) {
        for (int y = 0; y < pixels.height(); ++y) {
            pixels.setPixelColor(x, y, QColor(x, y, (x * y) % 256));
        }
    }
    const auto file = open();
    file->setCoverArt(pixels);

    EXPECT_EQ(End::Saved, save(*file).end);

    const auto cover = values().cover;
    ASSERT_TRUE(cover);
    EXPECT_EQ("image/jpeg", cover->mime);
    // The first number of the first quantisation table is 3 for quality 90; it would be 40 for quality 20.
    const auto& bytes = cover->bytes;
    const std::vector<std::uint8_t> table = {0xFF, 0xDB, 0x00, 0x43, 0x00};
    const auto place = std::search(bytes.begin(), bytes.end(), table.begin(), table.end());
    ASSERT_GT(bytes.end() - place, 5);
    EXPECT_EQ(3, *(place + 5));
}

TEST_F(PortableMediaFileTest, TellsOfFurtherLinksAndBreaksThemWhenAsked) {
    ASSERT_EQ(0, ::link((folder_ / "song.mp3").c_str(), (folder_ / "other.mp3").c_str()));
    const auto file = open();
    file->setTitle(QStringLiteral("Evening"));

    const PortableSaveResult result = save(*file);
    EXPECT_EQ(End::MoreLinks, result.end);
    EXPECT_EQ(QStringLiteral("The file has further hard links, which would keep the old contents"),
              result.reason);
    EXPECT_EQ(End::Saved, save(*file, true).end);
    EXPECT_EQ(songWithUtf16Title(), test::read_file(folder_ / "other.mp3"));
}

TEST_F(PortableMediaFileTest, IsCancelledByItsProgress) {
    const auto file = open();
    file->setTitle(QStringLiteral("Evening"));

    EXPECT_EQ(End::Cancelled, file->portableSave(false)([](quint64, quint64) { return false; }).end);
    EXPECT_EQ(songWithUtf16Title(), test::read_file(folder_ / "song.mp3"));
}

TEST_F(PortableMediaFileTest, SaysWhyTagsCannotBeRead) {
    test::write_file(folder_ / "broken.wma", "no ASF header");
    QString obstacle;

    const auto file =
        MediaFile::initWithPortableTags(QString::fromStdString(folder_ / "broken.wma"), &obstacle);

    ASSERT_TRUE(file);
    EXPECT_TRUE(obstacle.startsWith(QStringLiteral("The file is damaged"))) << obstacle.toStdString();
    EXPECT_EQ(none, file->title());
}

TEST_F(PortableMediaFileTest, WritesNothingIntoTheLog) {
    const auto file = open();
    file->setTitle(QStringLiteral("Evening"));
    EXPECT_EQ(End::Saved, save(*file).end);

    EXPECT_EQ("", log_.text());
}

TEST_F(PortableMediaFileTest, FindsOutWhetherOtherProgramsSeeMore) {
    const auto file = MediaFile::initWithFile(path());

    EXPECT_TRUE(file->otherProgramsSeeMore()());
    file->setTitle(QStringLiteral("H"));
    EXPECT_TRUE(file->otherProgramsSeeMore()()) << "it is cut off";
    file->setTitle(QStringLiteral("Another"));
    EXPECT_FALSE(file->otherProgramsSeeMore()());
}

TEST_F(PortableMediaFileTest, KnowsKindsThatOthersReadNoTagIn) {
    test::write_file(folder_ / "film.mpg", pattern(64));
    test::write_file(folder_ / "notes.txt", "text");
    const auto film = MediaFile::initWithFile(QString::fromStdString(folder_ / "film.mpg"));
    const auto notes = MediaFile::initWithFile(QString::fromStdString(folder_ / "notes.txt"));

    EXPECT_FALSE(film->otherProgramsSeeMore());
    EXPECT_TRUE(film->canHavePortableTags());
    EXPECT_FALSE(notes->canHavePortableTags());
}

TEST_F(PortableMediaFileTest, FindsOutWhetherASaveInPlaceIsReadBack) {
    const auto tagged = [](const std::string& text) {
        const std::string size = {0, 0, 0, static_cast<char>(text.size() + 1)};
        const std::string frame = "TIT2" + size + std::string(3, '\0') + text;
        const std::string rest = hex("04 00 10 00 00 00") + std::string(1, static_cast<char>(frame.size()));
        return pattern(64) + "ID3" + rest + frame + "3DI" + rest;
    };
    test::write_file(folder_ / "song.mp3", tagged("Harbour"));
    const auto file = MediaFile::initWithFile(path());
    EXPECT_TRUE(file->isReadBackAsSaved());
    file->setTitle(QStringLiteral("Harb"));
    ASSERT_TRUE(file->saveMetadata(nullptr));
    const std::string log = log_.text();

    EXPECT_FALSE(file->isReadBackAsSaved()) << "a tag that is three bytes shorter is not found again";
    EXPECT_EQ(log, log_.text());
}

} // namespace
} // namespace velmora
