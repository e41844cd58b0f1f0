#include "taglib/asf/move_file.h"

#include "asf_bytes.h"

#include "support/allocation_faults.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <utility>

namespace velmora {
namespace {

using namespace test;

/** One move in a file of its own. */
struct Move {
    int result;
    std::string bytes; ///< of the file afterwards
    std::string log;
};

Move move(const std::string& bytes, std::int64_t from, std::int64_t to) {
    OpenBytes file(bytes);
    StreamCapture log;
    const int result = asf_move_file(file.file(), from, to);
    return {result, file.bytes(), log.text()};
}

const std::string sixteen_bytes = "0123456789abcdef";

TEST(AsfMoveFile, MovesSixtyFourKilobytesTowardsTheEnd) {
    const std::string data = pattern(65536);
    const Move moved = move(sixteen_bytes + data, 16, 26);
    EXPECT_EQ(1, moved.result);
    EXPECT_EQ(sixteen_bytes + data.substr(0, 10) + data, moved.bytes);
    EXPECT_EQ("asf_move_file: from 10 to 1a\n", moved.log);
}

TEST(AsfMoveFile, MovesSixtyFourKilobytesTowardsTheStartAndLeavesTheTail) {
    const std::string data = pattern(65536);
    const Move moved = move(sixteen_bytes + data, 16, 6);
    EXPECT_EQ(1, moved.result);
    EXPECT_EQ(sixteen_bytes.substr(0, 6) + data + data.substr(65526), moved.bytes);
    EXPECT_EQ("asf_move_file: from 10 to 6\n", moved.log);
}

TEST(AsfMoveFile, MovesEveryLargerRemainder) {
    for (const std::size_t size : {65537u, 100000u, 131071u, 131072u, 131073u, 200000u}) {
        const std::string data = pattern(size);
        EXPECT_EQ(1, move(sixteen_bytes + data, 16, 1016).result) << size;
        EXPECT_EQ(sixteen_bytes + data, move(sixteen_bytes + data, 16, 1016).bytes.erase(16, 1000)) << size;
        EXPECT_EQ(1, move(sixteen_bytes + data, 16, 3).result) << size;
        EXPECT_EQ(sixteen_bytes.substr(0, 3) + data + data.substr(size - 13),
                  move(sixteen_bytes + data, 16, 3).bytes)
            << size;
    }
}

TEST(AsfMoveFile, MovesByMoreThanTheDataHas) {
    const std::string data = pattern(70000);
    const std::string moved = move(sixteen_bytes + data, 16, 100016).bytes;
    EXPECT_EQ(data, moved.substr(100016));
    EXPECT_EQ(sixteen_bytes + data, moved.substr(0, 16 + 70000));
}

TEST(AsfMoveFile, MovesMoreThanItsBufferHoldsWithoutOverwritingWhatIsStillToMove) {
    const std::string data = pattern(3 * 1024 * 1024 + 17);
    for (const std::int64_t to : {3, 15, 17, 1016, 2'000'000}) {
        const ScratchFolder folder;
        const std::string path = folder / "file";
        write_file(path, sixteen_bytes + data);
        FIOFUNCSTRUCT file{};
        const StreamCapture quiet;
        ASSERT_EQ(0, fio_open(path.c_str(), O_RDWR, 0, &file));
        EXPECT_EQ(1, asf_move_file(&file, 16, to)) << to;
        fio_close(&file);
        const std::string moved = read_file(path);
        EXPECT_TRUE(moved.substr(static_cast<std::size_t>(to), data.size()) == data) << to;
        const std::size_t before = std::min<std::size_t>(16, static_cast<std::size_t>(to));
        EXPECT_EQ(sixteen_bytes.substr(0, before), moved.substr(0, before)) << to;
    }
}

TEST(AsfMoveFile, NothingToMoveIsASuccess) {
    for (const std::int64_t to : {6, 16, 26}) {
        const Move moved = move(sixteen_bytes, 16, to);
        EXPECT_EQ(1, moved.result) << to;
        EXPECT_EQ(sixteen_bytes, moved.bytes) << to;
    }
}

TEST(AsfMoveFile, EndsBehindTheMovedDataWithoutMakingTheFileLonger) {
    OpenBytes file(sixteen_bytes);
    StreamCapture quiet;
    EXPECT_EQ(1, asf_move_file(file.file(), 16, 100));
    EXPECT_EQ(100, file.position());
    OpenBytes larger(sixteen_bytes + pattern(65536));
    EXPECT_EQ(1, asf_move_file(larger.file(), 16, 6));
    EXPECT_EQ(65542, larger.position());
}

TEST(AsfMoveFile, WritesNoByteInPlaceOfCuttingTheFile) {
    ScratchFolder folder;
    write_file(folder / "file", sixteen_bytes + pattern(65536));
    FIOFUNCSTRUCT file{};
    StreamCapture quiet;
    const SystemCallFaults calls;
    ASSERT_EQ(0, fio_open((folder / "file").c_str(), O_RDWR, 0, &file));
    EXPECT_EQ(1, asf_move_file(&file, 16, 6));
    const SystemCallRecord& last = calls.records().back();
    EXPECT_EQ(SystemCall::write, last.call);
    EXPECT_EQ(0, last.requested);
    EXPECT_EQ(65542, last.position);
    fio_close(&file);
}

TEST(AsfMoveFile, LessThanSixtyFourKilobytesFailTowardsTheStartWithNothingMoved) {
    for (const std::size_t size : {1u, 1000u, 65535u}) {
        const std::string bytes = sixteen_bytes + pattern(size);
        const Move moved = move(bytes, 16, 6);
        EXPECT_EQ(0, moved.result) << size;
        EXPECT_EQ(bytes, moved.bytes) << size;
        EXPECT_EQ("asf_move_file: from 10 to 6\nasf_move_file: Error reading file\n", moved.log) << size;
    }
}

TEST(AsfMoveFile, LessThanSixtyFourKilobytesFailTowardsTheEndInAShortFileWithNothingMoved) {
    for (const std::size_t size : {1u, 1000u, 65519u}) {
        const std::string bytes = sixteen_bytes + pattern(size);
        const Move moved = move(bytes, 16, 26);
        EXPECT_EQ(0, moved.result) << size;
        EXPECT_EQ(bytes, moved.bytes) << size;
        EXPECT_EQ("asf_move_file: from 10 to 1a\nasf_move_file: Error reading file\n", moved.log) << size;
    }
}

TEST(AsfMoveFile, LessThanSixtyFourKilobytesFailTowardsTheEndAfterAWholePieceWasCopied) {
    // The piece reaches into what stands before the data.
    for (const std::size_t size : {65520u, 65535u}) {
        const std::string bytes = sixteen_bytes + pattern(size);
        const Move moved = move(bytes, 16, 26);
        const std::size_t begin = bytes.size() - 65536;
        EXPECT_EQ(0, moved.result) << size;
        EXPECT_EQ(bytes.substr(0, begin + 10) + bytes.substr(begin), moved.bytes) << size;
        EXPECT_EQ("asf_move_file: from 10 to 1a\n", moved.log) << size;
    }
}

TEST(AsfMoveFile, FailsWithoutAWordWhenTheDataBeginsBehindTheFile) {
    for (const std::int64_t to : {6ll, 1000ll}) {
        const Move moved = move(sixteen_bytes, 17, to);
        EXPECT_EQ(0, moved.result) << to;
        EXPECT_EQ(sixteen_bytes, moved.bytes) << to;
        EXPECT_EQ(std::string::npos, moved.log.find("Error")) << to;
    }
    EXPECT_EQ(0, move(sixteen_bytes, 1ll << 62, (1ll << 62) + 10).result);
}

TEST(AsfMoveFile, FailsWithoutAWordForPositionsThatAFileCanNotHave) {
    const std::string bytes = sixteen_bytes + pattern(200000);
    constexpr std::int64_t last = std::numeric_limits<std::int64_t>::max();
    constexpr std::int64_t first = std::numeric_limits<std::int64_t>::min();
    const std::pair<std::int64_t, std::int64_t> moves[] = {{-256, 100}, {-256, -300}, {first, 100}, {16, -1},
                                                           {16, first}, {16, last},   {last, 16}};
    for (const auto& [from, to] : moves) {
        const Move moved = move(bytes, from, to);
        EXPECT_EQ(0, moved.result) << from << " to " << to;
        EXPECT_TRUE(bytes == moved.bytes) << from << " to " << to;
        EXPECT_EQ(std::string::npos, moved.log.find("Error")) << from << " to " << to;
    }
}

TEST(AsfMoveFile, FailsWithoutMemory) {
    OpenBytes file(sixteen_bytes + pattern(65536));
    StreamCapture quiet;
    const AllocationFaults buffer(1);
    EXPECT_EQ(0, asf_move_file(file.file(), 16, 26));
    EXPECT_EQ(sixteen_bytes + pattern(65536), file.bytes());
}

TEST(AsfMoveFile, LogsAReadThatFails) {
    ScratchFolder folder;
    write_file(folder / "file", sixteen_bytes + pattern(200000));
    FIOFUNCSTRUCT file{};
    StreamCapture log;
    SystemCallFaults faults;
    ASSERT_EQ(0, fio_open((folder / "file").c_str(), O_RDWR, 0, &file));
    faults.fail(SystemCall::read, 1, EIO);
    EXPECT_EQ(0, asf_move_file(&file, 16, 26));
    EXPECT_EQ("asf_move_file: from 10 to 1a\nasf_move_file: Error reading file\n", log.text());
    fio_close(&file);
}

TEST(AsfMoveFile, LogsAShortWriteAndLeavesEveryByteWhereItWas) {
    ScratchFolder folder;
    write_file(folder / "file", sixteen_bytes + pattern(200000));
    FIOFUNCSTRUCT file{};
    StreamCapture log;
    SystemCallFaults faults;
    ASSERT_EQ(0, fio_open((folder / "file").c_str(), O_RDWR, 0, &file));
    faults.cut_short(SystemCall::write, 1, 1000);
    EXPECT_EQ(0, asf_move_file(&file, 16, 26));
    EXPECT_EQ("asf_move_file: from 10 to 1a\nasf_move_file: Error writing file\n", log.text());
    fio_close(&file);
    EXPECT_TRUE(read_file(folder / "file") == sixteen_bytes + pattern(200000));
}

TEST(AsfMoveFile, StoppedOnItsWayLeavesEveryByteAtItsOldOrItsNewPlace) {
    const std::string data = pattern(3 * 1024 * 1024);
    for (const std::int64_t to : {6, 26}) {
        for (const int write : {1, 2, 3}) {
            const ScratchFolder folder;
            const std::string path = folder / "file";
            write_file(path, sixteen_bytes + data);
            FIOFUNCSTRUCT file{};
            const StreamCapture log;
            SystemCallFaults faults;
            ASSERT_EQ(0, fio_open(path.c_str(), O_RDWR, 0, &file));
            faults.cut_short(SystemCall::write, write, 5000);
            EXPECT_EQ(0, asf_move_file(&file, 16, to));
            fio_close(&file);
            const std::string left = read_file(path);
            const std::string at_old = left.substr(16, data.size());
            const std::string at_new = left.substr(static_cast<std::size_t>(to), data.size());
            std::size_t lost = 0;
            for (std::size_t i = 0; i < data.size(); ++i) {
                lost += at_old[i] != data[i] && (i >= at_new.size() || at_new[i] != data[i]);
            }
            EXPECT_EQ(0u, lost) << "to " << to << ", write " << write;
        }
    }
}

} // namespace
} // namespace velmora
