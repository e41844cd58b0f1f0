#include "app/command_line.h"

#include "platform/file_path.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using Task = CommandLine::Task;

TEST(CommandLine, RunsWithNothingWhenNothingIsGiven) {
    const CommandLine line = commandLine({}, "/home/anna");
    EXPECT_EQ(Task::run, line.task);
    EXPECT_EQ(QStringList(), line.paths);
}

TEST(CommandLine, PathsBecomeAbsoluteAndKeepTheirOrder) {
    const CommandLine line = commandLine({"b.mp3", "/films", "./a.mp3", "."}, "/home/anna");
    EXPECT_EQ((QStringList{"/home/anna/b.mp3", "/films", "/home/anna/a.mp3", "/home/anna"}), line.paths);
}

TEST(CommandLine, PathsOfAnyBytesStayTheseBytes) {
    const CommandLine line = commandLine({"H\xe4"
                                          "fen.mp3"},
                                         "/m\xff");
    ASSERT_EQ(1, line.paths.size());
    EXPECT_EQ(QByteArray("/m\xff/H\xe4"
                         "fen.mp3"),
              pathBytes(line.paths.first()));
}

TEST(CommandLine, FileAddressesBecomePaths) {
    const CommandLine line = commandLine({"file:///films/Evening%20%232.avi", "file:///H%E4fen.mp3"}, "/");
    ASSERT_EQ(2, line.paths.size());
    EXPECT_EQ("/films/Evening #2.avi", line.paths[0]);
    EXPECT_EQ(QByteArray("/H\xe4"
                         "fen.mp3"),
              pathBytes(line.paths[1]));
}

TEST(CommandLine, FilesOfOtherMachinesAreNotThoseOfThisOne) {
    const CommandLine line = commandLine({"file://elsewhere/films/a.avi", "file:a.avi", "file:"}, "/m");
    EXPECT_EQ((QStringList{"/m/file://elsewhere/films/a.avi", "/m/file:a.avi", "/m/file:"}), line.paths);
    const QByteArray here = "file://" + QSysInfo::machineHostName().toUtf8() + "/films/a.avi";
    EXPECT_EQ((QStringList{"/a.avi", "/films/a.avi"}),
              commandLine({"file://localhost/a.avi", here}, "/m").paths);
}

TEST(CommandLine, NothingIsNoFolder) {
    EXPECT_EQ(QStringList{""}, commandLine({""}, "/m").paths);
}

TEST(CommandLine, HelpAndVersionWinOverPaths) {
    EXPECT_EQ(Task::printHelp, commandLine({"a.mp3", "--help"}, "/").task);
    EXPECT_EQ(Task::printHelp, commandLine({"-h"}, "/").task);
    EXPECT_EQ(Task::printVersion, commandLine({"--version", "a.mp3"}, "/").task);
}

TEST(CommandLine, AnUnknownOptionIsRefusedByItsName) {
    const CommandLine line = commandLine({"a.mp3", "--colour"}, "/");
    EXPECT_EQ(Task::refuse, line.task);
    EXPECT_EQ("--colour", line.unknownOption);
    EXPECT_EQ(QStringList(), line.paths);
    EXPECT_EQ(Task::refuse, commandLine({"-x"}, "/").task);
}

TEST(CommandLine, TheToolkitsOptionsAndTheirValuesAreLeftToIt) {
    const CommandLine line =
        commandLine({"-platform", "offscreen", "--style", "fusion", "-reverse", "a.mp3"}, "/");
    EXPECT_EQ(Task::run, line.task);
    EXPECT_EQ(QStringList{"/a.mp3"}, line.paths);
}

TEST(CommandLine, BehindTwoDashesEverythingIsAPath) {
    const CommandLine line = commandLine({"--", "--help", "-"}, "/m");
    EXPECT_EQ(Task::run, line.task);
    EXPECT_EQ((QStringList{"/m/--help", "/m/-"}), line.paths);
}

} // namespace
} // namespace velmora
