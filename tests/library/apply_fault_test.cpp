// An apply of many files that is killed, or whose disk is full, in the middle.

#include "../portable/call_faults.h"
#include "tagged_songs.h"

#include "library/apply_run.h"
#include "portable/portable_tags.h"
#include "support/memory_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

namespace velmora {
namespace {

using portable::Edit;
using portable::Field;
using test::CallFault;
using test::CallFaults;

class ApplyFaultTest : public testing::Test {
protected:
    static void SetUpTestSuite() { test::scratch_in_memory(); }
    void write(int count) {
        items_.clear();
        for (int i = 0; i < count; ++i) {
            const std::string name = std::to_string(i) + ".mp3";
            ApplyItem item;
            item.file = i;
            item.path = test::written(folder_, name, test::song("Old", "Ann"));
            item.edits.text(Field::title) = Edit<std::string>::set("A new title");
            items_.push_back(item);
        }
    }
    std::vector<ApplyResult> apply() {
        UndoStep undo;
        portable::KeptBytes kept;
        return applyItems(items_, {}, undo, kept);
    }
    std::string titleOf(int file) {
        const auto read = portable::read_tags(folder_ / (std::to_string(file) + ".mp3"));
        EXPECT_FALSE(read.failure) << file;
        EXPECT_EQ("Ann", read.values.text(Field::artist)) << file;
        return read.values.text(Field::title).value_or("");
    }
    /** How many calls of the system an apply of all files makes. */
    std::size_t callsOfApply() {
        CallFaults faults;
        static_cast<void>(apply());
        return faults.records().size();
    }

    test::ScratchFolder folder_;
    std::vector<ApplyItem> items_;
};

TEST_F(ApplyFaultTest, KilledInTheMiddleOfAThousandFilesEachIsOldOrNew) {
    constexpr int count = 1000;
    write(count);
    const std::size_t calls = callsOfApply();
    ASSERT_GT(calls, static_cast<std::size_t>(count));
    for (const std::size_t nth : {calls / 2, calls / 2 + 3, calls / 2 + 7, calls - 5}) {
        write(count);
        const pid_t child = ::fork();
        if (child == 0) {
            CallFaults faults;
            faults.set(nth, {CallFault::Kind::kill_before});
            static_cast<void>(apply());
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(child, ::waitpid(child, &status, 0));
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
            << "the apply ended before its call " << nth;
        int changed = 0;
        for (int file = 0; file < count; ++file) {
            const std::string title = titleOf(file);
            EXPECT_TRUE(title == "Old" || title == "A new title") << file << ": " << title;
            changed += title == "A new title" ? 1 : 0;
        }
        EXPECT_GT(changed, 0);
        EXPECT_LT(changed, count);
    }
}

TEST_F(ApplyFaultTest, WhatIsSaidOfAFullDiskIsTrue) {
    constexpr int count = 12;
    write(count);
    const std::size_t calls = callsOfApply();
    int filesWithoutRoom = 0;
    for (std::size_t nth = calls / 2; nth < calls / 2 + calls / count; ++nth) {
        write(count);
        std::vector<ApplyResult> results;
        {
            CallFaults faults;
            faults.set(nth, {CallFault::Kind::error, ENOSPC});
            results = apply();
        }
        for (const ApplyResult& result : results) {
            const bool isNew = titleOf(result.file) == "A new title";
            EXPECT_EQ(isNew, result.end == ApplyEnd::done) << "call " << nth << ", file " << result.file;
            EXPECT_EQ(!isNew, result.end == ApplyEnd::failed) << "call " << nth << ", file " << result.file;
            EXPECT_EQ(isNew, result.reason.isEmpty());
            filesWithoutRoom += result.reason == "No space is left for the new file" ? 1 : 0;
        }
    }
    EXPECT_GT(filesWithoutRoom, 0);
}

/** Songs whose apply is taken back. */
class UndoFaultTest : public ApplyFaultTest {
protected:
    static constexpr int count = 12;

    /** New songs, edits of which are applied. */
    void writeAndApply() {
        write(count);
        old_ = contents();
        undo_.clear();
        kept_.shrink_to(0);
        for (const ApplyResult& result : applyItems(items_, {}, undo_, kept_)) {
            EXPECT_EQ(ApplyEnd::done, result.end);
        }
        new_ = contents();
    }
    std::vector<ApplyResult> undo() { return undoStep(undo_, {}, kept_); }
    /** How many system calls an undo of all songs makes. */
    std::size_t callsOfAnUndo() {
        writeAndApply();
        CallFaults faults;
        static_cast<void>(undo());
        return faults.records().size();
    }
    /** What is in each song. */
    std::vector<std::string> contents() {
        std::vector<std::string> all;
        for (const ApplyItem& item : items_) {
            all.push_back(test::read_file(item.path.toStdString()));
        }
        return all;
    }
    /** How many songs are what they were; each of the others has to be what the apply made of it. */
    std::size_t oldSongs() {
        const std::vector<std::string> now = contents();
        std::size_t songs = 0;
        for (std::size_t i = 0; i < now.size(); ++i) {
            EXPECT_TRUE(now[i] == old_[i] || now[i] == new_[i]) << i;
            songs += now[i] == old_[i] ? 1 : 0;
        }
        return songs;
    }
    /** The names in the folder that begin with a dot. */
    [[nodiscard]] int hiddenFiles() const {
        return static_cast<int>(
            std::count_if(std::filesystem::directory_iterator(folder_.path()), {},
                          [](const auto& entry) { return entry.path().filename().string().front() == '.'; }));
    }
    /** Gives back what an apply or an undo that met with a full disk changed, and finds each
       file as it was. */
    void takeBackWithRoom() {
        for (const ApplyResult& result : undo()) {
            EXPECT_EQ(ApplyEnd::done, result.end) << result.reason.toStdString();
        }
        EXPECT_TRUE(undo_.empty());
        EXPECT_EQ(items_.size(), oldSongs());
    }

    std::vector<std::string> old_;
    std::vector<std::string> new_;
    UndoStep undo_;
    portable::KeptBytes kept_;
};

/** Whether each of RESULTS says of its file what IS_CHANGED, in their order, says. */
void expectTrue(const std::vector<ApplyResult>& results, const std::vector<bool>& isChanged,
                std::size_t nth) {
    for (std::size_t i = 0; i < results.size(); ++i) {
        EXPECT_EQ(isChanged[i] ? ApplyEnd::done : ApplyEnd::failed, results[i].end)
            << "call " << nth << ", file " << i;
        EXPECT_EQ(isChanged[i], results[i].written) << "call " << nth << ", file " << i;
        EXPECT_EQ(isChanged[i], results[i].reason.isEmpty()) << "call " << nth << ", file " << i;
    }
}

std::vector<bool> differences(const std::vector<std::string>& one, const std::vector<std::string>& other) {
    std::vector<bool> differ;
    for (std::size_t i = 0; i < one.size(); ++i) {
        differ.push_back(one[i] != other[i]);
    }
    return differ;
}

TEST_F(UndoFaultTest, KilledInTheMiddleEachFileIsOldOrNew) {
    const std::size_t calls = callsOfAnUndo();
    for (std::size_t nth = calls / 2; nth < calls / 2 + calls / count; ++nth) {
        writeAndApply();
        const pid_t child = ::fork();
        if (child == 0) {
            CallFaults faults;
            faults.set(nth, {CallFault::Kind::kill_before});
            static_cast<void>(undo());
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(child, ::waitpid(child, &status, 0));
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << nth;
        const std::size_t songs = oldSongs();
        EXPECT_GT(songs, 0U);
        EXPECT_LT(songs, items_.size());
    }
}

TEST_F(UndoFaultTest, OnADiskThatIsFullFromOneMomentOnAnApplyTellsTheTruthAndIsTakenBackLater) {
    writeAndApply();
    write(count);
    const std::size_t calls = callsOfApply();
    int withoutRoomForTheFile = 0;
    int withoutRoomToKeep = 0;
    for (const bool keptElsewhere : {true, false}) {
        for (std::size_t nth = calls / 2; nth < calls / 2 + calls / count; ++nth) {
            write(count);
            undo_.clear();
            ASSERT_TRUE(kept_.append({})); // open, so that it can be told from the songs
            std::vector<ApplyResult> results;
            {
                CallFaults faults;
                faults.fill_disk(nth, keptElsewhere ? kept_.descriptor() : -1);
                results = applyItems(items_, {}, undo_, kept_);
            }
            expectTrue(results, differences(old_, contents()), nth);
            EXPECT_EQ(ApplyEnd::failed, results.back().end) << "the disk is still full";
            EXPECT_EQ(0, hiddenFiles()) << nth;
            for (const ApplyResult& result : results) {
                withoutRoomForTheFile +=
                    result.reason.startsWith("No space is left for the new file") ? 1 : 0;
                withoutRoomToKeep +=
                    result.reason ==
                            "The file's old contents can't be kept for an undo: No space left on device"
                        ? 1
                        : 0;
            }
            EXPECT_GT(undo_.size(), 0U);
            takeBackWithRoom();
        }
    }
    EXPECT_GT(withoutRoomForTheFile, 0);
    EXPECT_GT(withoutRoomToKeep, 0);
}

TEST_F(UndoFaultTest, OnADiskThatIsFullFromOneMomentOnAnUndoTellsTheTruthAndGoesOnLater) {
    const std::size_t calls = callsOfAnUndo();
    for (std::size_t nth = calls / 2; nth < calls / 2 + calls / count; ++nth) {
        writeAndApply();
        std::vector<ApplyResult> results;
        {
            CallFaults faults;
            faults.fill_disk(nth);
            results = undo();
        }
        expectTrue(results, differences(new_, contents()), nth);
        EXPECT_EQ(ApplyEnd::failed, results.back().end) << "the disk is still full";
        EXPECT_TRUE(results.back().reason.startsWith("No space is left for the new file"));
        EXPECT_EQ(0, hiddenFiles()) << nth;
        takeBackWithRoom();
    }
}

} // namespace
} // namespace velmora
