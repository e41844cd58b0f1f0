#include "taglib/avi/move_file.h"

#include "avi_bytes.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"
#include "taglib/byte_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

namespace velmora::test {
namespace {

class AviMoveFile : public testing::Test {
protected:
    /** Moves an item of that size field from OFFSET to TO in the file, which holds BYTES when
       they are given. */
    int move(std::uint64_t offset, std::uint32_t size, std::uint64_t to) {
        ByteFile file;
        EXPECT_TRUE(file.open(path_.c_str(), O_RDWR));
        _avi_item_t item{};
        item.offset = offset;
        item.size = size;
        StreamCapture log;
        const int result = avi_move_file(file.handle(), &item, to);
        log_ = log.text();
        EXPECT_EQ(offset, item.offset);
        return result;
    }

    void expect_file(const std::string& bytes) { EXPECT_TRUE(bytes == read_file(path_)); }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "file";
    std::string log_;
};

TEST_F(AviMoveFile, ExactlyOnePieceTowardsTheEnd) {
    const std::string before = pattern(70000);
    write_file(path_, before);
    EXPECT_EQ(1, move(10, 65528, 60));
    expect_file(before.substr(0, 60) + before.substr(10, 65536) + before.substr(65596));
    EXPECT_EQ("", log_);
}

TEST_F(AviMoveFile, ExactlyOnePieceTowardsTheFront) {
    const std::string before = pattern(70000);
    write_file(path_, before);
    EXPECT_EQ(1, move(60, 65528, 10));
    expect_file(before.substr(0, 10) + before.substr(60, 65536) + before.substr(65546));
}

TEST_F(AviMoveFile, MoreThanOnePieceIsMovedWholeTowardsTheEndThoughTheRangesOverlap) {
    const std::string before = pattern(300000);
    write_file(path_, before);
    EXPECT_EQ(1, move(1000, 199992, 1003));
    expect_file(before.substr(0, 1003) + before.substr(1000, 200000) + before.substr(201003));
}

TEST_F(AviMoveFile, MoreThanOnePieceIsMovedWholeTowardsTheFrontThoughTheRangesOverlap) {
    const std::string before = pattern(300000);
    write_file(path_, before);
    EXPECT_EQ(1, move(1003, 199992, 1000));
    expect_file(before.substr(0, 1000) + before.substr(1003, 200000) + before.substr(201000));
}

TEST_F(AviMoveFile, AMoveBeyondTheEndMakesTheFileLonger) {
    const std::string before = pattern(100000);
    write_file(path_, before);
    EXPECT_EQ(1, move(0, 99992, 150000));
    expect_file(before + std::string(50000, '\0') + before);
}

TEST_F(AviMoveFile, ARemainderBelowOnePieceIsMovedAsAWholePieceFromTheBackAndFails) {
    // 100 bytes from 70,000: the piece is the 65,536 bytes that end where the item ends.
    const std::string before = pattern(80000);
    write_file(path_, before);
    EXPECT_EQ(0, move(70000, 92, 75000));
    expect_file(before.substr(0, 9564) + before.substr(4564, 65536) + before.substr(75100));
    EXPECT_EQ("", log_);
}

TEST_F(AviMoveFile, ARemainderBelowOnePieceIsMovedAsAWholePieceFromTheFrontAndFails) {
    const std::string before = pattern(80000);
    write_file(path_, before);
    EXPECT_EQ(0, move(5000, 92, 100));
    expect_file(before.substr(0, 100) + before.substr(5000, 65536) + before.substr(65636));
    EXPECT_EQ("", log_);
}

TEST_F(AviMoveFile, APieceThatWouldBeginBeforeTheFileIsAReadError) {
    const std::string before = pattern(80000);
    write_file(path_, before);
    EXPECT_EQ(0, move(5000, 92, 6000));
    expect_file(before);
    EXPECT_EQ("avi_move_file: Error reading file\n", log_);
}

TEST_F(AviMoveFile, APieceThatTheFileEndsInIsAReadErrorAndNothingIsWritten) {
    const std::string before = pattern(150000);
    write_file(path_, before);
    EXPECT_EQ(0, move(50000, 99993, 0));
    expect_file(before);
    EXPECT_EQ("avi_move_file: Error reading file\n", log_);
}

TEST_F(AviMoveFile, ALyingSizeIsAReadErrorAndCostsNothing) {
    write_file(path_, "short");
    EXPECT_EQ(0, move(0, 0xFFFFFFFF, 100));
    expect_file("short");
    EXPECT_EQ("avi_move_file: Error reading file\n", log_);
}

TEST_F(AviMoveFile, ATargetThatNoFileReachesIsAWriteError) {
    const std::string before = pattern(150000);
    write_file(path_, before);
    for (const std::uint64_t to :
         {0x7FFFFFFFFFFFFFFFu, 0x7FFFFFFFFFFE0000u, 0x8000000000000000u, ~std::uint64_t{0}}) {
        EXPECT_EQ(0, move(0, 140000, to)) << to;
        expect_file(before);
        EXPECT_EQ("avi_move_file: Error writing file\n", log_) << to;
    }
}

TEST_F(AviMoveFile, AnItemBeyondEveryFileIsAReadError) {
    write_file(path_, "short");
    for (const std::uint64_t offset : {0x7FFFFFFFFFFFFFFFu, 0x8000000000000000u, ~std::uint64_t{0}}) {
        EXPECT_EQ(0, move(offset, 140000, 10)) << offset;
        EXPECT_EQ("avi_move_file: Error reading file\n", log_) << offset;
    }
}

TEST_F(AviMoveFile, TheLow32BitsOfTheRemainderChooseThePiece) {
    // Size field 0xFFFFFFF9 makes 2^32 + 1 bytes: their low 32 bits say 1, so that a piece of 65,536 bytes
    // comes first.
    write_file(path_, std::string(200000, 'x'));
    ByteFile file;
    EXPECT_TRUE(file.open(path_.c_str(), O_RDWR));
    _avi_item_t item{};
    item.offset = 100000;
    item.size = 0xFFFFFFF9;
    StreamCapture log;
    SystemCallFaults watch;
    EXPECT_EQ(0, avi_move_file(file.handle(), &item, 0));
    EXPECT_EQ(65536, watch.bytes(SystemCall::write));
    EXPECT_EQ("avi_move_file: Error reading file\n", log.text());
}

TEST_F(AviMoveFile, ABigPieceGoesThroughAWindowOfBoundedSize) {
    const std::string before = pattern(1000000);
    write_file(path_, before);
    ByteFile file;
    EXPECT_TRUE(file.open(path_.c_str(), O_RDWR));
    _avi_item_t item{};
    item.size = 999992;
    SystemCallFaults watch;
    EXPECT_EQ(1, avi_move_file(file.handle(), &item, 8));
    for (const SystemCallRecord& record : watch.records()) {
        if (record.call == SystemCall::read || record.call == SystemCall::write) {
            EXPECT_LE(record.requested, 65536);
        }
    }
    expect_file(before.substr(0, 8) + before);
}

TEST_F(AviMoveFile, AFailingWriteIsLoggedAndEndsTheMove) {
    write_file(path_, pattern(300000));
    ByteFile file;
    EXPECT_TRUE(file.open(path_.c_str(), O_RDWR));
    _avi_item_t item{};
    item.size = 199992;
    StreamCapture log;
    SystemCallFaults faults;
    faults.fail(SystemCall::write, 2, ENOSPC);
    EXPECT_EQ(0, avi_move_file(file.handle(), &item, 8));
    EXPECT_EQ(2, faults.count(SystemCall::write));
    EXPECT_EQ("avi_move_file: Error writing file\n", log.text());
}

TEST_F(AviMoveFile, AShortReadIsLoggedAndEndsTheMove) {
    write_file(path_, pattern(300000));
    ByteFile file;
    EXPECT_TRUE(file.open(path_.c_str(), O_RDWR));
    _avi_item_t item{};
    item.size = 199992;
    StreamCapture log;
    SystemCallFaults faults;
    faults.cut_short(SystemCall::read, 2, 100);
    EXPECT_EQ(0, avi_move_file(file.handle(), &item, 8));
    EXPECT_EQ(1, faults.count(SystemCall::write));
    EXPECT_EQ("avi_move_file: Error reading file\n", log.text());
}

} // namespace
} // namespace velmora::test
