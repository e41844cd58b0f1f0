// An apply of many files that is killed, or whose disk is full, in the middle.

#include "../portable/call_faults.h"
#include "tagged_songs.h"

#include "library/apply_run.h"
#include "portable/portable_tags.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
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

} // namespace
} // namespace velmora
