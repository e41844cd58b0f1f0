// Edits of many files written into them and taken back; mutagen reads them as other programs do.

#include "tagged_songs.h"

#include "library/apply_run.h"
#include "library/library_columns.h"
#include "portable/portable_tags.h"
#include "support/command.h"

#include <QFile>

#include <gtest/gtest.h>

#include <filesystem>

namespace velmora {
namespace {

using portable::Cover;
using portable::Edit;
using portable::Field;
using test::song;
using test::text4;
using test::written;

class ApplyRunTest : public testing::Test {
protected:
    /** Sets the title of the song NAME. */
    ApplyItem titled(const std::string& name, const std::string& title) {
        ApplyItem item;
        item.file = files_++;
        item.path = QString::fromStdString(folder_ / name);
        item.edits.text(Field::title) = Edit<std::string>::set(title);
        return item;
    }
    std::vector<ApplyResult> apply(const std::vector<ApplyItem>& items, const ApplyProgress& progress = {}) {
        return applyItems(items, progress, undo_, kept_);
    }
    portable::TagValues valuesOf(const std::string& name) {
        const auto read = portable::read_tags(folder_ / name);
        EXPECT_FALSE(read.failure) << name;
        return read.values;
    }
    std::string titleOf(const std::string& name) { return valuesOf(name).text(Field::title).value_or(""); }

    test::ScratchFolder folder_;
    UndoStep undo_;
    portable::KeptBytes kept_;
    int files_ = 0;
};

TEST_F(ApplyRunTest, WritesEachFileAndTakesItBack) {
    const Cover old{{0xFF, 0xD8, 0xFF, 0xE0, 1}, "image/jpeg"};
    const auto fresh = std::make_shared<const Cover>(Cover{{0xFF, 0xD8, 0xFF, 0xE0, 2, 3}, "image/jpeg"});
    written(folder_, "a.mp3", song(text4("TIT2", "Sea") + test::cover4("\xFF\xD8\xFF\xE0\x01")));
    written(folder_, "b.mp3", song(text4("TPE1", "Ann")));
    const portable::TagValues a = valuesOf("a.mp3");
    const portable::TagValues b = valuesOf("b.mp3");
    ASSERT_EQ(old, a.cover);
    std::vector<ApplyItem> items{titled("a.mp3", "Boat"), titled("b.mp3", "Boat")};
    for (ApplyItem& item : items) {
        item.edits.year = Edit<int>::set(1994);
        item.edits.cover = Edit<CoverPointer>::set(fresh);
    }
    items[1].edits.text(Field::artist) = Edit<std::string>::remove();
    for (const ApplyResult& result : apply(items)) {
        EXPECT_EQ(ApplyEnd::done, result.end) << result.reason.toStdString();
    }
    EXPECT_EQ("Boat", titleOf("a.mp3"));
    EXPECT_EQ(*fresh, valuesOf("b.mp3").cover);
    EXPECT_EQ(std::nullopt, valuesOf("b.mp3").text(Field::artist));
    for (const ApplyResult& result : undoStep(undo_, {}, kept_)) {
        EXPECT_EQ(ApplyEnd::done, result.end);
    }
    EXPECT_EQ(a, valuesOf("a.mp3"));
    EXPECT_EQ(b, valuesOf("b.mp3"));
    EXPECT_TRUE(undo_.empty());
}

TEST_F(ApplyRunTest, NamesAreExchangedAndGivenBack) {
    written(folder_, "a.mp3", song("Sea", "Ann"));
    written(folder_, "b.mp3", song("Boat", "Ben"));
    std::vector<ApplyItem> items{titled("a.mp3", "Sea"), titled("b.mp3", "Boat")};
    items[0].edits.name = "b.mp3";
    items[1].edits.name = "a.mp3";
    const auto results = apply(items);
    EXPECT_TRUE(results[0].renamed);
    EXPECT_EQ("Boat", titleOf("a.mp3"));
    EXPECT_EQ("Sea", titleOf("b.mp3"));
    for (const ApplyResult& result : undoStep(undo_, {}, kept_)) {
        EXPECT_EQ(ApplyEnd::done, result.end);
    }
    EXPECT_EQ("Sea", titleOf("a.mp3"));
    EXPECT_EQ("Boat", titleOf("b.mp3"));
}

TEST_F(ApplyRunTest, ANameThatIsTakenIsNotAndTheTagsAreWritten) {
    written(folder_, "a.mp3", song("Sea", "Ann"));
    written(folder_, "b.mp3", song("Boat", "Ben"));
    ApplyItem item = titled("a.mp3", "Rope");
    item.edits.name = "b.mp3";
    const auto results = apply({item});
    EXPECT_EQ(ApplyEnd::failed, results[0].end);
    EXPECT_TRUE(results[0].tagsDone);
    EXPECT_NE("", results[0].reason);
    EXPECT_EQ("Rope", titleOf("a.mp3"));
    EXPECT_EQ("Boat", titleOf("b.mp3"));
}

TEST_F(ApplyRunTest, ToldWhatFailedWhatDidNotChangeAndWhatWasNotReached) {
    written(folder_, "same.mp3", song("Sea", "Ann"));
    written(folder_, "text.txt", "no song");
    written(folder_, "late.mp3", song("Sea", "Ann"));
    const std::vector<ApplyItem> items{titled("same.mp3", "Sea"), titled("gone.mp3", "Boat"),
                                       titled("text.txt", "Boat"), titled("late.mp3", "Boat")};
    const auto results = apply(items, [](std::size_t done, std::size_t) { return done < 3; });
    EXPECT_EQ(ApplyEnd::unchanged, results[0].end);
    EXPECT_EQ(ApplyEnd::failed, results[1].end);
    EXPECT_EQ("It is not there any more", results[1].reason);
    EXPECT_EQ("Files of this kind carry no tag", results[2].reason);
    EXPECT_EQ(ApplyEnd::notReached, results[3].end);
    EXPECT_EQ("Sea", titleOf("late.mp3"));
    EXPECT_TRUE(undo_.empty());
}

TEST_F(ApplyRunTest, AFileThatWasChangedSinceIsLeftAlone) {
    written(folder_, "a.mp3", song("Sea", "Ann"));
    written(folder_, "b.mp3", song("Sea", "Ann"));
    static_cast<void>(apply({titled("a.mp3", "Boat"), titled("b.mp3", "Boat")}));
    written(folder_, "a.mp3", song("Another", "Somebody"));
    const auto results = undoStep(undo_, {}, kept_);
    EXPECT_EQ(ApplyEnd::changedSince, results[0].end);
    EXPECT_EQ(ApplyEnd::done, results[1].end);
    EXPECT_EQ("Another", titleOf("a.mp3"));
    EXPECT_EQ("Sea", titleOf("b.mp3"));
    EXPECT_EQ(1U, undo_.size());
}

} // namespace
} // namespace velmora
