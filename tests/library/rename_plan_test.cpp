#include "library/detail/rename_plan.h"

#include "platform/file_path.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>

#include <fstream>

namespace velmora {
namespace {

using portable::Field;
using testing::ElementsAre;

class RenamePlanTest : public testing::Test {
protected:
    /** A row of a file NAME with TITLE, which is made. */
    RenameRow row(const std::string& name, const std::string& title) {
        make(name);
        RenameRow row;
        row.path = pathFromBytes(QByteArray::fromStdString(folder_ / name));
        if (!title.empty()) {
            row.values.text(Field::title) = title;
        }
        return row;
    }
    void make(const std::string& name) const { std::ofstream(folder_ / name) << name; }

    std::vector<PlannedRename> plan(const std::vector<RenameRow>& rows, const char* pattern = "%title%") {
        return planRenames(rows,
                           std::get<NamePattern>(NamePattern::parsed(pattern, NamePattern::Use::write)));
    }
    std::vector<RenameMark> marks(const std::vector<RenameRow>& rows, const char* pattern = "%title%") {
        std::vector<RenameMark> marks;
        for (const PlannedRename& planned : plan(rows, pattern)) {
            marks.push_back(planned.mark);
        }
        return marks;
    }
    [[nodiscard]] QByteArray path(const std::string& name) const {
        return QByteArray::fromStdString(folder_ / name);
    }

    test::ScratchFolder folder_;
};

TEST_F(RenamePlanTest, AFileGetsANameInItsFolderAndKeepsItsExtension) {
    const auto planned = plan({row("a.MP3", "AC/DC")});
    EXPECT_EQ(RenameMark::renamed, planned[0].mark);
    EXPECT_EQ(path("a.MP3"), planned[0].from);
    EXPECT_EQ(path("AC_DC.MP3"), planned[0].to);
}

TEST_F(RenamePlanTest, AFileThatHasTheNameIsUnchanged) {
    EXPECT_THAT(marks({row("a.mp3", "a")}), ElementsAre(RenameMark::unchanged));
}

TEST_F(RenamePlanTest, AMissingValueIsTold) {
    const auto planned = plan({row("a.mp3", "a")}, "%title% %year%");
    EXPECT_EQ(RenameMark::missingValue, planned[0].mark);
    EXPECT_EQ(Field::year, planned[0].missing);
    EXPECT_EQ(planned[0].to, planned[0].from);
}

TEST_F(RenamePlanTest, ANameThatIsCutIsMarked) {
    const auto planned = plan({row("a.mp3", std::string(300, 'b'))});
    EXPECT_EQ(RenameMark::shortened, planned[0].mark);
    EXPECT_EQ(path(std::string(251, 'b') + ".mp3"), planned[0].to);
    EXPECT_TRUE(planned[0].isRenamed());
}

TEST_F(RenamePlanTest, ATextThatLeavesNoNameIsMarked) {
    EXPECT_THAT(marks({row("a." + std::string(253, 'x'), "éé")}), ElementsAre(RenameMark::noName));
}

TEST_F(RenamePlanTest, AFileWhoseTagLiesBesideItKeepsItsName) {
    EXPECT_THAT(marks({row("VIDEO_TS.IFO", "a"), row("b.iso", "a")}),
                ElementsAre(RenameMark::fixedName, RenameMark::fixedName));
}

TEST_F(RenamePlanTest, RowsThatWantOneNameAllClash) {
    EXPECT_THAT(marks({row("a.mp3", "x"), row("b.mp3", "x"), row("c.mp3", "y"), row("d.flac", "x")}),
                ElementsAre(RenameMark::clashesWithRow, RenameMark::clashesWithRow, RenameMark::renamed,
                            RenameMark::renamed));
}

TEST_F(RenamePlanTest, NamesThatDifferInCaseAloneClash) {
    EXPECT_THAT(marks({row("a.mp3", "Intro"), row("b.mp3", "INTRO")}),
                ElementsAre(RenameMark::clashesWithRow, RenameMark::clashesWithRow));
    EXPECT_THAT(marks({row("intro.mp3", "intro"), row("b.mp3", "Intro")}),
                ElementsAre(RenameMark::unchanged, RenameMark::clashesWithRow));
}

TEST_F(RenamePlanTest, ItsOwnNameInOtherCaseIsFree) {
    EXPECT_THAT(marks({row("intro.mp3", "Intro")}), ElementsAre(RenameMark::renamed));
}

TEST_F(RenamePlanTest, AFileThatIsNoRowKeepsItsName) {
    make("x.mp3");
    EXPECT_THAT(marks({row("a.mp3", "x")}), ElementsAre(RenameMark::clashesWithFile));
}

TEST_F(RenamePlanTest, ALinkToNowhereIsAFileToo) {
    ASSERT_EQ(0, ::symlink("nowhere", (folder_ / "x.mp3").c_str()));
    EXPECT_THAT(marks({row("a.mp3", "x")}), ElementsAre(RenameMark::clashesWithFile));
}

TEST_F(RenamePlanTest, ANameThatAnotherRowLeavesIsFree) {
    EXPECT_THAT(marks({row("a.mp3", "b"), row("b.mp3", "c"), row("c.mp3", "d")}),
                ElementsAre(RenameMark::renamed, RenameMark::renamed, RenameMark::renamed));
    EXPECT_THAT(marks({row("a.mp3", "b"), row("b.mp3", "a")}),
                ElementsAre(RenameMark::renamed, RenameMark::renamed));
}

TEST_F(RenamePlanTest, WhereOneRowMustStayAllStayThatWantItsName) {
    make("d.mp3");
    EXPECT_THAT(
        marks({row("a.mp3", "b"), row("b.mp3", "c"), row("c.mp3", "d")}),
        ElementsAre(RenameMark::clashesWithRow, RenameMark::clashesWithRow, RenameMark::clashesWithFile));
    EXPECT_THAT(marks({row("a.mp3", "b"), row("b.mp3", "")}),
                ElementsAre(RenameMark::clashesWithRow, RenameMark::missingValue));
}

TEST_F(RenamePlanTest, NamesThatFurtherFilesAreToGetAreTakenAndThoseThatTheyLeaveAreFree) {
    for (const char* name : {"x.mp3", "y.mp3", "z.mp3"}) {
        make(name);
    }
    make("there.mp3");
    const std::vector<FileRename> others = {{path("x.mp3"), path("taken.mp3"), {}},
                                            {path("y.mp3"), path("y2.mp3"), {}},
                                            {path("z.mp3"), path("there.mp3"), {}}};
    const auto pattern = std::get<NamePattern>(NamePattern::parsed("%title%", NamePattern::Use::write));
    const auto planned =
        planRenames({row("a.mp3", "Taken"), row("b.mp3", "y"), row("c.mp3", "z")}, pattern, others);
    ASSERT_EQ(3U, planned.size());
    EXPECT_EQ(RenameMark::clashesWithRow, planned[0].mark);
    EXPECT_EQ(RenameMark::renamed, planned[1].mark);
    EXPECT_EQ(RenameMark::clashesWithRow, planned[2].mark) << "z can't leave its name";
}

TEST_F(RenamePlanTest, TheFoldersNameHasAPlace) {
    const auto planned = plan({row("a.mp3", "b")}, "%folder% %title%");
    const std::string folder = folder_.path().substr(folder_.path().rfind('/') + 1);
    EXPECT_EQ(path(folder + " b.mp3"), planned[0].to);
}

TEST_F(RenamePlanTest, NamesOfAnyBytesAreRenamed) {
    const auto planned = plan({row("caf\xe9.mp3", "x")});
    EXPECT_EQ(path("caf\xe9.mp3"), planned[0].from);
    EXPECT_EQ(RenameMark::renamed, planned[0].mark);
}

} // namespace
} // namespace velmora
