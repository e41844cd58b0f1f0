// Files of every kind, edited whole and taken back to the last byte.

#include "tagged_songs.h"

#include "library/apply_run.h"
#include "portable/media_kind.h"
#include "support/command.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

using portable::Cover;
using portable::Edit;
using portable::Field;
using portable::Media;
using test::read_file;
using test::song;
using test::text4;

CoverPointer coverOf(std::size_t size) {
    const std::string bytes = test::hex("FFD8FFE0") + test::pattern(size);
    return std::make_shared<const Cover>(Cover{{bytes.begin(), bytes.end()}, "image/jpeg"});
}

/** Every field that a file at PATH has. */
RowEdits everyField(const std::string& path, const std::string& text, std::size_t coverSize) {
    const bool film = portable::media_kind(path)->media == Media::video;
    RowEdits edits;
    for (const Field field : {Field::title, Field::artist, Field::genre, Field::synopsis}) {
        edits.text(field) = Edit<std::string>::set(text);
    }
    edits.text(film ? Field::director : Field::album) = Edit<std::string>::set(text);
    if (film) {
        edits.text(Field::rating) = Edit<std::string>::set("PG-13");
    }
    edits.year = Edit<int>::set(1995);
    edits.cover = Edit<CoverPointer>::set(coverOf(coverSize));
    return edits;
}

class UndoTest : public testing::Test {
protected:
    void apply(const std::vector<ApplyItem>& items) {
        steps_.emplace_back();
        for (const ApplyResult& result : applyItems(items, {}, steps_.back(), kept_)) {
            EXPECT_TRUE(result.end == ApplyEnd::done || result.end == ApplyEnd::unchanged)
                << result.reason.toStdString();
        }
    }
    /** Takes the last apply back, and what went well out of the list of them. */
    std::vector<ApplyResult> undo(const ApplyProgress& progress = {}) {
        auto results = undoStep(steps_.back(), progress, kept_);
        if (steps_.back().empty()) {
            steps_.pop_back();
        }
        followUndo(steps_, results);
        forgetUnneeded(steps_, kept_);
        return results;
    }
    void undoAll(const ApplyProgress& progress = {}) {
        for (const ApplyResult& result : undo(progress)) {
            EXPECT_EQ(ApplyEnd::done, result.end) << result.reason.toStdString();
        }
    }

    test::ScratchFolder folder_;
    std::vector<UndoStep> steps_;
    portable::KeptBytes kept_;
};

struct KindCase {
    const char* name; ///< of the file
    const char* encoding;
};

void PrintTo(const KindCase& kind, std::ostream* out) {
    *out << kind.name;
}

class UndoOfAKindTest : public UndoTest, public testing::WithParamInterface<KindCase> {};

TEST_P(UndoOfAKindTest, GivesBackEveryByteAfterSeveralApplies) {
    const std::string path = folder_ / GetParam().name;
    const bool film = portable::media_kind(path)->media == Media::video;
    test::make_file(std::string("ffmpeg -v error -nostdin -y -f lavfi -i sine=d=2 ") +
                        (film ? "-f lavfi -i testsrc=d=2:s=160x120 " : "") + GetParam().encoding +
                        " -metadata title=Old -metadata artist='Ann; Ben' -metadata date=1994-05-06 ",
                    path);
    const std::string before = read_file(path);
    apply({{0, QString::fromStdString(path), everyField(path, "A text", 30000)}});
    const std::string afterFirst = read_file(path);
    apply({{0, QString::fromStdString(path), everyField(path, "Another", 50)}});
    EXPECT_TRUE(afterFirst != read_file(path));
    undoAll();
    EXPECT_TRUE(afterFirst == read_file(path));
    undoAll();
    EXPECT_TRUE(before == read_file(path));
    EXPECT_EQ(0U, kept_.size());
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, UndoOfAKindTest,
    testing::Values(KindCase{"3.mp3", "-id3v2_version 3"},
                    KindCase{"4.mp3", "-id3v2_version 4 -write_id3v1 1"},
                    KindCase{"none.mp3", "-id3v2_version 0 -write_xing 0"}, KindCase{"a.flac", "-c:a flac"},
                    KindCase{"a.ogg", "-c:a libvorbis"}, KindCase{"a.opus", "-c:a libopus"},
                    KindCase{"a.m4a", "-c:a aac"}, KindCase{"slow.mp4", "-c:v mpeg4 -c:a aac"},
                    KindCase{"fast.mp4", "-c:v mpeg4 -c:a aac -movflags +faststart"},
                    KindCase{"parts.mp4", "-c:v mpeg4 -c:a aac -movflags +frag_keyframe+empty_moov"},
                    KindCase{"a.mov", "-c:v mpeg4 -c:a aac -movflags use_metadata_tags"},
                    KindCase{"a.wav", "-c:a pcm_s16le"}, KindCase{"a.aiff", "-write_id3v2 1"},
                    KindCase{"a.wma", "-c:a wmav2"}, KindCase{"a.wmv", "-c:v wmv2 -c:a wmav2"},
                    KindCase{"a.avi", "-c:v mpeg4 -c:a mp2"},
                    KindCase{"a.mpg", "-c:v mpeg1video -c:a mp2 -f vob"}),
    [](const auto& kind) {
        std::string name = kind.param.name;
        std::replace(name.begin(), name.end(), '.', '_');
        return name;
    });

/** Songs with a title, an artist and a full date, which are numbered. */
class UndoOfSongsTest : public UndoTest {
protected:
    static constexpr int count = 6;

    UndoOfSongsTest() {
        for (int i = 0; i < count; ++i) {
            test::write_file(path(i), old(i));
        }
    }

    std::string path(int number) { return folder_ / (std::to_string(number) + ".mp3"); }
    static std::string old(int number) {
        return song(text4("TIT2", "Old " + std::to_string(number)) + text4("TDRC", "1994-05-06"));
    }
    std::vector<ApplyItem> items() {
        std::vector<ApplyItem> items;
        for (int i = 0; i < count; ++i) {
            items.push_back({i, QString::fromStdString(path(i)), everyField(path(i), "A text", 100)});
        }
        return items;
    }
    /** How many songs are what they were. */
    int oldSongs() {
        int songs = 0;
        for (int i = 0; i < count; ++i) {
            songs += read_file(path(i)) == old(i) ? 1 : 0;
        }
        return songs;
    }
};

TEST_F(UndoOfSongsTest, ThatIsCancelledGoesOnWhereItEnded) {
    apply(items());
    const auto results = undo([](std::size_t done, std::size_t) { return done < 4; });
    EXPECT_EQ(4, std::count_if(results.begin(), results.end(),
                               [](const auto& result) { return result.end == ApplyEnd::done; }));
    EXPECT_EQ(ApplyEnd::notReached, results.back().end);
    EXPECT_EQ(4, oldSongs());
    undoAll();
    EXPECT_EQ(count, oldSongs());
    EXPECT_TRUE(steps_.empty());
}

TEST_F(UndoOfSongsTest, WhoseNameIsTakenGivesBackTheBytesAndLaterTheName) {
    std::vector<ApplyItem> all = items();
    all.resize(1);
    all[0].edits.name = "new.mp3";
    apply(all);
    test::write_file(path(0), "another file of that name");
    EXPECT_EQ(ApplyEnd::failed, undo()[0].end);
    EXPECT_TRUE(old(0) == read_file(folder_ / "new.mp3"));
    ASSERT_EQ(0, std::remove(path(0).c_str()));
    undoAll();
    EXPECT_TRUE(old(0) == read_file(path(0)));
}

TEST_F(UndoOfSongsTest, FollowsValuesAndNamesOfSeveralApplies) {
    apply(items());
    std::vector<ApplyItem> named = items();
    for (ApplyItem& item : named) {
        item.edits = {};
        item.edits.name = QStringLiteral("song %1.mp3").arg(item.file);
    }
    apply(named);
    for (ApplyItem& item : named) {
        item.path = QString::fromStdString(folder_ / item.edits.name->toStdString());
        item.edits = everyField(path(0), "Another", 7);
    }
    apply(named);
    undoAll();
    undoAll();
    undoAll();
    EXPECT_EQ(count, oldSongs());
    EXPECT_EQ(0U, kept_.size());
}

TEST_F(UndoOfSongsTest, LeavesAFileAloneThatWasChangedSinceAndItsEarlierStateToo) {
    apply(items());
    std::vector<ApplyItem> again = items();
    again[2].edits = everyField(path(2), "Another", 7);
    apply(again);
    test::write_file(path(2), "changed");
    EXPECT_EQ(ApplyEnd::changedSince, undo()[0].end); // the others did not change
    steps_.pop_back();
    EXPECT_EQ(ApplyEnd::changedSince, undo()[2].end);
    EXPECT_EQ("changed", read_file(path(2)));
    EXPECT_EQ(count - 1, oldSongs());
}

} // namespace
} // namespace velmora
