#include "library/rename_files.h"

#include "rename_calls.h"

#include "support/scratch_folder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sys/wait.h>
#include <unistd.h>

namespace velmora {
namespace {

using portable::ReasonCode;
using test::renameCalls;
using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Eq;
using testing::Pair;
using testing::UnorderedElementsAre;

using Names = std::vector<std::pair<std::string, std::string>>;
using Contents = std::map<std::string, std::string>;

class RenameFilesTest : public testing::Test {
protected:
    RenameFilesTest() { renameCalls = {}; }
    ~RenameFilesTest() override { renameCalls = {}; }

    void make(const std::string& name) const { std::ofstream(folder_ / name) << "of " + name; }

    [[nodiscard]] std::vector<FileRename> renames(const Names& names) const {
        std::vector<FileRename> renames;
        for (const auto& [from, to] : names) {
            const QByteArray path = QByteArray::fromStdString(folder_ / from);
            renames.push_back({path, QByteArray::fromStdString(folder_ / to), identityOf(path)});
        }
        return renames;
    }
    /** The system's error numbers: 0 for what was done, -1 for other reasons. */
    std::vector<int> run(const Names& names) {
        std::vector<int> errors;
        for (const auto& reason : renameFiles(renames(names))) {
            errors.push_back(!reason ? 0 : reason->code == ReasonCode::system ? reason->error : -1);
        }
        return errors;
    }
    /** What the folder's files say, by name. */
    [[nodiscard]] Contents contents() const {
        Contents contents;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
            std::ifstream file(entry.path());
            contents[entry.path().filename()] = std::string(std::istreambuf_iterator<char>(file), {});
        }
        return contents;
    }

    test::ScratchFolder folder_;
};

TEST_F(RenameFilesTest, AFileGetsItsName) {
    make("a");
    EXPECT_THAT(run({{"a", "b"}}), ElementsAre(0));
    EXPECT_THAT(contents(), ElementsAre(Pair("b", "of a")));
}

TEST_F(RenameFilesTest, NamesOfAnyBytesWork) {
    make("\xff\n");
    EXPECT_THAT(run({{"\xff\n", "\xfe"}}), ElementsAre(0));
    EXPECT_THAT(contents(), ElementsAre(Pair("\xfe", "of \xff\n")));
}

TEST_F(RenameFilesTest, AFileThatIsThereIsNotOverwritten) {
    make("a");
    make("b");
    EXPECT_THAT(run({{"a", "b"}}), ElementsAre(EEXIST));
    EXPECT_THAT(contents(), ElementsAre(Pair("a", "of a"), Pair("b", "of b")));
}

TEST_F(RenameFilesTest, AnotherNameOfTheSameFileIsNotOverwritten) {
    make("a");
    std::filesystem::create_hard_link(folder_ / "a", folder_ / "b");
    EXPECT_THAT(run({{"a", "b"}}), ElementsAre(EEXIST));
    EXPECT_THAT(contents(), ElementsAre(Pair("a", "of a"), Pair("b", "of a")));
}

TEST_F(RenameFilesTest, AMissingFileIsTold) {
    EXPECT_THAT(run({{"a", "b"}}), ElementsAre(ENOENT));
}

TEST_F(RenameFilesTest, ALinkIsRenamedAndNotWhatItLeadsTo) {
    make("a");
    std::filesystem::create_symlink("a", folder_ / "link");
    EXPECT_THAT(run({{"link", "b"}}), ElementsAre(0));
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "b"));
    EXPECT_TRUE(std::filesystem::is_regular_file(folder_ / "a"));
}

TEST_F(RenameFilesTest, AChainMovesUpWhateverItsOrder) {
    for (const Names& names :
         {Names{{"a", "b"}, {"b", "c"}, {"c", "d"}}, Names{{"c", "d"}, {"a", "b"}, {"b", "c"}}}) {
        for (const char* name : {"a", "b", "c"}) {
            make(name);
        }
        EXPECT_THAT(run(names), ElementsAre(0, 0, 0));
        EXPECT_THAT(contents(), ElementsAre(Pair("b", "of a"), Pair("c", "of b"), Pair("d", "of c")));
        std::filesystem::remove(folder_ / "d");
    }
}

TEST_F(RenameFilesTest, AChainStopsWhereItIsStopped) {
    for (const char* name : {"a", "b", "c", "d"}) {
        make(name);
    }
    EXPECT_THAT(run({{"a", "b"}, {"b", "c"}, {"c", "d"}}), ElementsAre(EEXIST, EEXIST, EEXIST));
    EXPECT_THAT(contents(),
                ElementsAre(Pair("a", "of a"), Pair("b", "of b"), Pair("c", "of c"), Pair("d", "of d")));
}

TEST_F(RenameFilesTest, TwoFilesExchangeTheirNames) {
    make("a");
    make("b");
    EXPECT_THAT(run({{"a", "b"}, {"b", "a"}}), ElementsAre(0, 0));
    EXPECT_THAT(contents(), ElementsAre(Pair("a", "of b"), Pair("b", "of a")));
    EXPECT_EQ(1U, renameCalls.callsMade);
}

TEST_F(RenameFilesTest, NamesGoRoundInACircle) {
    for (const char* name : {"a", "b", "c", "d"}) {
        make(name);
    }
    EXPECT_THAT(run({{"a", "b"}, {"b", "c"}, {"c", "d"}, {"d", "a"}}), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(contents(),
                ElementsAre(Pair("a", "of d"), Pair("b", "of a"), Pair("c", "of b"), Pair("d", "of c")));
}

TEST_F(RenameFilesTest, ACircleNeedsNoExchange) {
    renameCalls.exchangeIsUnknown = true;
    for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) {
        make(name);
    }
    EXPECT_THAT(run({{"a.mp3", "b.mp3"}, {"b.mp3", "c.mp3"}, {"c.mp3", "a.mp3"}}), ElementsAre(0, 0, 0));
    EXPECT_THAT(contents(),
                ElementsAre(Pair("a.mp3", "of c.mp3"), Pair("b.mp3", "of a.mp3"), Pair("c.mp3", "of b.mp3")));
}

TEST_F(RenameFilesTest, ACircleThatFailsIsUndone) {
    for (const bool unknown : {false, true}) {
        for (std::size_t failing = 1; failing <= 2; ++failing) {
            for (const char* name : {"a", "b", "c"}) {
                make(name);
            }
            renameCalls = {};
            renameCalls.exchangeIsUnknown = unknown;
            renameCalls.noReplaceIsUnknown = !unknown;
            renameCalls.linksAreRefused = !unknown;
            renameCalls.failingCall = failing;
            const Contents before = contents();
            const std::vector<int> errors = run({{"a", "b"}, {"b", "c"}, {"c", "a"}});
            // Where the exchange fails the files step aside one by one, which may do.
            const Contents after = {{"a", "of c"}, {"b", "of a"}, {"c", "of b"}};
            EXPECT_EQ(errors[0] == 0 ? after : before, contents()) << unknown << failing;
            EXPECT_THAT(errors, Each(Eq(errors[0])));
            EXPECT_EQ(errors[0], unknown ? EIO : 0);
        }
    }
}

TEST_F(RenameFilesTest, ASecondNameDoesWhereReplacingCanNotBeForbidden) {
    renameCalls.noReplaceIsUnknown = true;
    make("a");
    make("c");
    make("d");
    EXPECT_THAT(run({{"a", "b"}, {"c", "d"}}), ElementsAre(0, EEXIST));
    EXPECT_THAT(contents(), ElementsAre(Pair("b", "of a"), Pair("c", "of c"), Pair("d", "of d")));
}

TEST_F(RenameFilesTest, AnEmptyFileHoldsTheNameWhereThereAreNoLinks) {
    renameCalls.noReplaceIsUnknown = true;
    renameCalls.linksAreRefused = true;
    make("a");
    make("c");
    make("d");
    EXPECT_THAT(run({{"a", "b"}, {"c", "d"}}), ElementsAre(0, EEXIST));
    EXPECT_THAT(contents(), ElementsAre(Pair("b", "of a"), Pair("c", "of c"), Pair("d", "of d")));
}

TEST_F(RenameFilesTest, WhatFailsLeavesTheFileItsNameAlone) {
    for (const bool noReplaceIsUnknown : {false, true}) {
        for (const bool linksAreRefused : {false, true}) {
            // A rename by a second name makes two calls.
            for (std::size_t failing = 1; failing <= (noReplaceIsUnknown && !linksAreRefused ? 2U : 1U);
                 ++failing) {
                renameCalls = {};
                renameCalls.noReplaceIsUnknown = noReplaceIsUnknown;
                renameCalls.linksAreRefused = linksAreRefused;
                renameCalls.failingCall = failing;
                make("a");
                EXPECT_THAT(run({{"a", "b"}}), ElementsAre(EIO));
                EXPECT_THAT(contents(), ElementsAre(Pair("a", "of a")));
            }
        }
    }
}

TEST_F(RenameFilesTest, AFileThatIsAnotherByNowIsLeftAlone) {
    make("a");
    const std::vector<FileRename> planned = renames({{"a", "b"}});
    std::filesystem::rename(folder_ / "a", folder_ / "away");
    make("a");
    const auto reasons = renameFiles(planned);
    ASSERT_TRUE(reasons[0]);
    EXPECT_EQ(ReasonCode::changed_meanwhile, reasons[0]->code);
    EXPECT_THAT(contents(), Contains(Pair("a", "of a")));
}

TEST_F(RenameFilesTest, ACircleWithAnotherFileInItIsLeftAlone) {
    make("a");
    make("b");
    const std::vector<FileRename> planned = renames({{"a", "b"}, {"b", "a"}});
    std::filesystem::rename(folder_ / "b", folder_ / "away");
    make("b");
    for (const auto& reason : renameFiles(planned)) {
        ASSERT_TRUE(reason);
        EXPECT_EQ(ReasonCode::changed_meanwhile, reason->code);
    }
    EXPECT_THAT(contents(), AllOf(Contains(Pair("a", "of a")), Contains(Pair("b", "of b"))));
}

TEST_F(RenameFilesTest, TheWayBackLeadsBack) {
    for (const char* name : {"a", "b", "c", "d"}) {
        make(name);
    }
    const Contents before = contents();
    const std::vector<FileRename> there = renames({{"a", "b"}, {"b", "a"}, {"c", "e"}, {"d", "c"}});
    EXPECT_THAT(renameFiles(there), Each(Eq(std::nullopt)));
    EXPECT_NE(contents(), before);
    std::vector<FileRename> back;
    for (const FileRename& rename : there) {
        back.push_back({rename.to, rename.from, rename.identity});
    }
    EXPECT_THAT(renameFiles(back), Each(Eq(std::nullopt)));
    EXPECT_EQ(before, contents());
}

TEST_F(RenameFilesTest, ACancelledRunLeavesTheRestAlone) {
    for (const char* name : {"a", "b", "c"}) {
        make(name);
    }
    std::vector<std::size_t> told;
    const auto reasons =
        renameFiles(renames({{"a", "x"}, {"b", "y"}, {"c", "z"}}), [&](std::size_t done, std::size_t) {
            told.push_back(done);
            return done < 1;
        });
    EXPECT_THAT(told, ElementsAre(0U, 1U));
    EXPECT_FALSE(reasons[0]);
    ASSERT_TRUE(reasons[1] && reasons[2]);
    EXPECT_EQ(ReasonCode::cancelled, reasons[1]->code);
    EXPECT_THAT(contents(), UnorderedElementsAre(Pair("x", "of a"), Pair("b", "of b"), Pair("c", "of c")));
}

TEST_F(RenameFilesTest, AKilledProgramLeavesEachFileOldOrNew) {
    const Names names = {{"a", "b"}, {"b", "a"}, {"c", "d"}, {"d", "e"}, {"f", "g"}};
    for (const bool noReplaceIsUnknown : {false, true}) {
        for (std::size_t call = 1; call <= 8; ++call) {
            for (const auto& [from, to] : names) {
                make(from);
            }
            const pid_t child = ::fork();
            if (child == 0) {
                renameCalls.noReplaceIsUnknown = noReplaceIsUnknown;
                renameCalls.killInCall = call;
                static_cast<void>(run(names));
                ::_exit(0);
            }
            ASSERT_EQ(child, ::waitpid(child, nullptr, 0));
            const Contents now = contents();
            for (const auto& [from, to] : names) {
                const std::string content = "of " + from;
                EXPECT_TRUE((now.count(from) == 1 && now.at(from) == content) ||
                            (now.count(to) == 1 && now.at(to) == content))
                    << from << " in call " << call;
            }
            for (const auto& [name, content] : now) {
                std::filesystem::remove(folder_ / name);
            }
        }
    }
}

} // namespace
} // namespace velmora
