#include "library/library_rows.h"

#include <gtest/gtest.h>

#include <malloc.h>

namespace velmora {
namespace {

using portable::Field;

portable::TagValues songValues() {
    portable::TagValues values;
    values.text(Field::title) = "Harbour";
    values.text(Field::genre) = "Folk";
    return values;
}

FilterText filterText(const QString& title) {
    RowTexts texts;
    texts[static_cast<std::size_t>(LibraryColumn::title)] = title;
    return {texts, 1996, missingBit(Field::cover)};
}

TEST(LibraryRowTest, APathIsItsFolderAndItsName) {
    const LibraryRow row("/music/A. Keeper/01.mp3", 9);
    EXPECT_EQ("/music/A. Keeper/01.mp3", row.path());
    EXPECT_EQ("/music/A. Keeper", row.folder());
    EXPECT_EQ("01.mp3", row.name());
    EXPECT_EQ(9U, row.size);
    EXPECT_EQ(portable::Media::audio, row.media);
}

TEST(LibraryRowTest, APathStaysAsItIs) {
    for (const char* path : {"/a.mp3", "a.mp3", "//a//b.mp3", "music/a.mp3", "/music/.mp3"}) {
        const LibraryRow row(path, 0);
        EXPECT_EQ(path, row.path());
        EXPECT_TRUE(row.isAt(path));
    }
    // A byte that is no UTF-8.
    const QString latin = QStringLiteral("/m") + QChar(0xDCFC) + QStringLiteral("/") + QChar(0xDCFC) + ".mp3";
    EXPECT_EQ(latin, LibraryRow(latin, 0).path());
    EXPECT_TRUE(LibraryRow(latin, 0).isAt("/m\xFC/\xFC.mp3"));
}

TEST(LibraryRowTest, APathIsNotTakenForAnother) {
    const LibraryRow row("/a/b.mp3", 0);
    for (const char* path : {"", "/a/", "b.mp3", "/a/b.mp", "/a/b.mp33", "/b/b.mp3", "/a/c.mp3"}) {
        EXPECT_FALSE(row.isAt(path)) << path;
    }
}

TEST(LibraryRowTest, TheTextsStayWhenThePathChanges) {
    LibraryRow row("/a.mp3", 0);
    row.setTexts(PackedTexts(songValues()), "ID3v2.4, ID3v1", filterText("Harbour"));
    row.setPath("/music/b.mp3");
    EXPECT_EQ("/music/b.mp3", row.path());
    EXPECT_EQ("Harbour", row.text(Field::title));
    EXPECT_EQ("", row.text(Field::artist));
    EXPECT_EQ("Folk", row.text(Field::genre));
    EXPECT_EQ("ID3v2.4, ID3v1", row.tags());
    EXPECT_EQ("", row.filter().folded);
}

TEST(LibraryRowTest, TheFiltersTextIsKeptBesideTheOthers) {
    LibraryRow row("/a.mp3", 0);
    row.setTexts(PackedTexts(songValues()), "MP4", {});
    EXPECT_EQ("", row.filter().folded);
    row.setFilter(filterText("HARBOUR"));
    EXPECT_EQ("\n\n\nharbour\n\n\n\n\n\n\n\n\n\n\n", row.filter().folded);
    EXPECT_EQ(missingBit(Field::cover), row.filter().missing);
    EXPECT_EQ("Harbour", row.text(Field::title));
    EXPECT_EQ("MP4", row.tags());
    EXPECT_EQ("a.mp3", row.name());
}

TEST(LibraryRowTest, ARowWithoutAFileHasNoTexts) {
    const LibraryRow row;
    EXPECT_EQ("", row.path());
    EXPECT_EQ("", row.tags());
    EXPECT_EQ("", row.text(Field::rating));
    EXPECT_EQ("", row.filter().folded);
}

TEST(LibraryRowsSnapshotTest, ASnapshotStaysAsItWas) {
    LibraryRows rows;
    for (int row = 0; row < 1000; ++row) {
        ASSERT_EQ(row, rows.add(QString("/a/%1.mp3").arg(row), 1));
    }
    const LibraryRows before = rows.snapshot();
    rows.move(0, "/b/0.mp3");
    rows.remove(999);
    ASSERT_EQ(1000, rows.add("/a/1000.mp3", 1));
    EXPECT_EQ(1000, before.end());
    EXPECT_EQ("/a/0.mp3", before.at(0).path());
    EXPECT_FALSE(before.at(999).removed);
    EXPECT_EQ("/b/0.mp3", rows.at(0).path());
    EXPECT_EQ("/a/1.mp3", rows.at(1).path());
    EXPECT_TRUE(rows.at(999).removed);
}

TEST(LibraryRowsSnapshotTest, FilesThatSwapTheirPathsAreFoundWhereTheyAre) {
    LibraryRows rows;
    ASSERT_EQ(0, rows.add("/a.mp3", 1));
    ASSERT_EQ(1, rows.add("/b.mp3", 1));
    rows.move(0, "/b.mp3");
    rows.move(1, "/a.mp3");
    EXPECT_EQ(1, rows.find("/a.mp3"));
    EXPECT_EQ(0, rows.find("/b.mp3"));
}

TEST(LibraryRowsMemoryTest, ARowTakesAtMostThriceItsTexts) {
    constexpr int count = 20'000;
    const std::size_t before = ::mallinfo2().uordblks;
    if (before == 0) {
        return; // not this allocator
    }
    LibraryRows rows;
    std::size_t texts = 0;
    const PackedTexts values(songValues());
    for (int row = 0; row < count; ++row) {
        const QString path = QString("/home/user/Music/A. Keeper/Harbour (%1)/Lanterns on the Water %2.mp3")
                                 .arg(row / 20)
                                 .arg(row);
        ASSERT_EQ(row, rows.add(path, 1));
        RowReading reading;
        reading.row = row;
        reading.ticket = rows.at(row).ticket;
        reading.state = ReadState::read;
        reading.texts = values;
        reading.tags = "ID3v2.4";
        reading.year = 1996;
        reading.created = 1'600'000'000;
        LibraryRow file(path, 1);
        file.year = 1996;
        file.created = reading.created;
        file.setTexts(reading.texts, reading.tags, {});
        reading.filter = filterTextOf(file, nullptr);
        ASSERT_TRUE(rows.take(reading));
        texts += static_cast<std::size_t>(path.toUtf8().size());
        for (const LibraryColumn column : libraryColumns()) {
            const bool isPath = column == LibraryColumn::name || column == LibraryColumn::folder;
            texts += isPath ? 0 : static_cast<std::size_t>(rows.text(row, column).toUtf8().size());
        }
    }
    EXPECT_LE(::mallinfo2().uordblks - before, 3 * texts);
}

} // namespace
} // namespace velmora
