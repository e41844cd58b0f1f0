#include "tagged_songs.h"

#include "library/tag_reader.h"
#include "support/waiting.h"

#include <gtest/gtest.h>

#include <map>

namespace velmora {
namespace {

using portable::Field;
using test::silentFrames;
using test::song;
using test::text4;
using test::waitUntil;
using test::written;

TEST(ReadRowTest, SaysWhatTheTagsAndTheFileSystemSay) {
    const test::ScratchFolder folder;
    const std::string bytes =
        song(text4("TIT2", "Sea") + text4("TDRC", "1994-05-03") + test::cover4("\xFF\xD8\xFF\xE0picture"));
    const RowReading reading = readRow(7, 9, written(folder, "a.mp3", bytes));
    EXPECT_EQ(7, reading.row);
    EXPECT_EQ(9U, reading.ticket);
    EXPECT_EQ(ReadState::read, reading.state);
    EXPECT_EQ("Sea", reading.texts.text(Field::title));
    EXPECT_EQ(1994, reading.year);
    EXPECT_EQ("ID3v2.4", reading.tags);
    EXPECT_NE(0U, reading.coverHash);
    EXPECT_EQ(bytes.size(), reading.size);
    EXPECT_GT(reading.created, 1'000'000'000);
}

TEST(ReadRowTest, SaysWhyAFileCantBeRead) {
    const test::ScratchFolder folder;
    const RowReading reading = readRow(0, 1, QString::fromStdString(folder / "gone.mp3"));
    EXPECT_EQ(ReadState::failed, reading.state);
    EXPECT_EQ("It is not there any more", reading.tags);
}

TEST(TagReaderTest, EveryRequestIsAnsweredOnceInBatchesThatAreSmall) {
    const test::ScratchFolder folder;
    const QString path = written(folder, "a.mp3", song("Sea", "Ann"));
    TagReader reader;
    std::map<int, int> answers;
    std::size_t largest = 0;
    bool idle = false;
    QObject::connect(&reader, &TagReader::rowsRead, [&](const std::vector<RowReading>& readings) {
        largest = std::max(largest, readings.size());
        for (const RowReading& reading : readings) {
            ++answers[reading.row];
            EXPECT_EQ("Sea", reading.texts.text(Field::title));
        }
    });
    QObject::connect(&reader, &TagReader::idle, [&] { idle = true; });
    constexpr int count = 1000;
    for (int row = 0; row < count; ++row) {
        reader.request({row, static_cast<std::uint32_t>(row + 1), path});
    }
    EXPECT_TRUE(waitUntil([&] { return idle; }));
    EXPECT_EQ(static_cast<std::size_t>(count), answers.size());
    for (const auto& [row, times] : answers) {
        EXPECT_EQ(1, times) << row;
    }
    EXPECT_LE(largest, 200U);
    EXPECT_EQ(0U, reader.waiting());
}

TEST(TagReaderTest, ALaterRequestOfARowTakesThePlaceOfAnEarlierOne) {
    const test::ScratchFolder folder;
    const QString old = written(folder, "a.mp3", song("Old", "Ann"));
    const QString changed = written(folder, "b.mp3", song("New", "Ann"));
    TagReader reader;
    std::string last;
    std::uint32_t ticket = 0;
    QObject::connect(&reader, &TagReader::rowsRead, [&](const std::vector<RowReading>& readings) {
        for (const RowReading& reading : readings) {
            if (reading.ticket > ticket) {
                ticket = reading.ticket;
                last = reading.texts.text(Field::title);
            }
        }
    });
    reader.request({0, 1, old});
    reader.request({0, 2, changed});
    EXPECT_TRUE(waitUntil([&] { return reader.waiting() == 0; }));
    EXPECT_EQ("New", last);
}

TEST(TagReaderTest, EndsWhileFilesAreToBeRead) {
    const test::ScratchFolder folder;
    const QString path = written(folder, "a.mp3", song("Sea", "Ann"));
    TagReader reader;
    for (int row = 0; row < 500; ++row) {
        reader.request({row, 1, path});
    }
}

} // namespace
} // namespace velmora
