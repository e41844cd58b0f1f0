#include "asf_bytes.h"

#include "support/allocation_faults.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"
#include "taglib/asf/load_file_info.h"
#include "taglib/asf/store_file_info.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace velmora {
namespace {

using namespace test;

/** A file whose claims are not true. */
class HostileAsfHeader : public testing::Test {
protected:
    void write(const std::string& bytes) { write_file(path_, bytes); }

    /** Loads; the result, with the error number when it is 0. */
    int load() {
        _file_info_t info{};
        const StreamCapture quiet;
        errno = 0;
        const int result = asf_load_file_info(path_.c_str(), &info);
        error_ = errno;
        id3_free_file_info(&info);
        return result;
    }

    int store() {
        _file_info_t info{};
        char genre[] = "Rock";
        info.flags = file_info_flag::genre;
        info.genre = genre;
        const StreamCapture quiet;
        errno = 0;
        const int result = asf_store_file_info(path_.c_str(), &info);
        error_ = errno;
        return result;
    }

    /** Neither load nor store take the file; both say so, and the file stays as it is. */
    void expect_unreadable(const std::string& bytes, const std::string& what) {
        write(bytes);
        const AllocationFaults allocations;
        const SystemCallFaults calls;
        EXPECT_EQ(0, load()) << what;
        EXPECT_EQ(5, error_) << what;
        EXPECT_EQ(0, store()) << what;
        EXPECT_EQ(5, error_) << what;
        EXPECT_EQ(0, calls.count(SystemCall::write)) << what;
        EXPECT_EQ(0, calls.open_descriptors()) << what;
        EXPECT_LE(allocations.largest(), 4 * bytes.size() + 4096) << what;
        EXPECT_LT(calls.count(), static_cast<int>(bytes.size() + 200)) << what;
        EXPECT_EQ(bytes, read_file(path_)) << what;
    }

    ScratchFolder folder_;
    std::string path_ = folder_ / "hostile.wma";
    int error_ = 0;
};

/** A header object that announces COUNT children. */
std::string announcing(std::uint32_t count, std::uint64_t size, const std::string& children) {
    return object_of_size(header_guid, size, u32(count) + u16(0) + children);
}

TEST_F(HostileAsfHeader, CountOfChildrenThatAreNotThere) {
    for (const std::uint32_t count : {1u, 2u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        expect_unreadable(announcing(count, 30, ""), std::to_string(count));
        expect_unreadable(announcing(count, 0xFFFFFFFFFFFFFFFF, ""), std::to_string(count));
    }
}

TEST_F(HostileAsfHeader, OneChildMoreThanThereIs) {
    expect_unreadable(announcing(3, 30 + 80, padding(30) + padding(50)), "");
}

TEST_F(HostileAsfHeader, HeaderSizeBelowItsOwnFixedPart) {
    for (std::uint64_t size = 0; size < 30; ++size) {
        expect_unreadable(announcing(1, size, padding(30)), std::to_string(size));
        expect_unreadable(announcing(1, size, object_of_size(padding_guid, 0, "")), std::to_string(size));
    }
}

TEST_F(HostileAsfHeader, ChildSizesThatWrap) {
    for (const std::uint64_t size : {0xFFFFFFFFFFFFFFFF, 0xFFFFFFFFFFFFFFE2, 0xFFFFFFFFFFFFFFE3,
                                     0x8000000000000000, std::uint64_t{0x7FFFFFFFFFFFFFFF}}) {
        for (const std::string_view guid : {other_guid, padding_guid, cd_guid, ecd_guid}) {
            const std::string child = object_of_size(guid, size, std::string(100, '\0'));
            expect_unreadable(announcing(1, 1000, child), std::to_string(size));
            expect_unreadable(announcing(1, 0xFFFFFFFFFFFFFFFF, child), std::to_string(size));
        }
    }
}

TEST_F(HostileAsfHeader, UnknownChildLargerThanTheFile) {
    for (const std::uint64_t size : {0x84ull, 0x10000ull, 1ull << 31, 1ull << 40, 1ull << 62}) {
        expect_unreadable(announcing(1, 2 * size, object_of_size(other_guid, size, std::string(100, 'x'))),
                          std::to_string(size));
    }
}

TEST_F(HostileAsfHeader, UnknownChildSmallerThanItsOwnHeader) {
    for (std::uint64_t size = 0; size < 24; ++size) {
        expect_unreadable(announcing(1, 1000, object_of_size(other_guid, size, std::string(1000, 'x'))),
                          std::to_string(size));
    }
}

TEST_F(HostileAsfHeader, ChildrenThatDoNotAdvance) {
    for (const std::string_view guid : {other_guid, padding_guid, cd_guid, ecd_guid}) {
        const std::string child = object_of_size(guid, 0, std::string(100, '\0'));
        expect_unreadable(announcing(2, 1000, child), std::string(guid));
        expect_unreadable(announcing(0xFFFFFFFF, 1000, child), std::string(guid));
    }
    expect_unreadable(announcing(1, 1000, object_of_size(padding_guid, 0, "")), "single padding");
}

TEST_F(HostileAsfHeader, DescriptionsOfSizeZeroAreTakenWhenNoChildFollows) {
    for (const std::string_view guid : {cd_guid, ecd_guid}) {
        write(announcing(1, 1000, object_of_size(guid, 0, std::string(10, '\0'))));
        EXPECT_EQ(1, load()) << guid;
    }
}

TEST_F(HostileAsfHeader, DescriptorCountOfAnEmptyObject) {
    expect_unreadable(announcing(1, 56, object_of_size(ecd_guid, 26, u16(0xFFFF))), "at the end");
    expect_unreadable(
        announcing(1, 56, object_of_size(ecd_guid, 26, u16(0xFFFF) + std::string(300000, '\xFF'))),
        "before data");
    expect_unreadable(announcing(1, 1ull << 62, object_of_size(ecd_guid, 1ull << 60, u16(0xFFFF))),
                      "large object");
}

TEST_F(HostileAsfHeader, ManyDescriptionsThatAllClaimTheSameBytes) {
    std::string children;
    constexpr std::uint32_t count = 2000;
    for (std::uint32_t i = 0; i < count; ++i) {
        children += object_of_size(cd_guid, 34, std::string(10, '\xFF'));
    }
    write(announcing(count, 30 + children.size(), children) + std::string(400000, 'x'));
    const SystemCallFaults calls;
    EXPECT_EQ(0, load());
    EXPECT_EQ(5, error_);
    EXPECT_LT(calls.bytes(SystemCall::read), 3 * 400000);
}

TEST_F(HostileAsfHeader, CountlessTinyPaddingsCostNoMoreThanTheFileHas) {
    // Each padding of one byte lets the next header begin one byte later, where no padding's GUID can be.
    expect_unreadable(
        announcing(0xFFFFFFFF, 1ull << 50, object_of_size(padding_guid, 1, std::string(500, 't'))), "");
}

TEST_F(HostileAsfHeader, LargerThanTheFileLoadsWhenItsChildrenAreSound) {
    write(header_object_of_size(1ull << 40, {ext_content_description({text_descriptor("Genre", "Rock")})}));
    EXPECT_EQ(1, load());
}

TEST_F(HostileAsfHeader, LargerThanTheFileIsNotStoredWhereTheDataWouldHaveToMove) {
    const std::string bytes = header_object_of_size(
        1ull << 40, {content_description("", ""), ext_content_description({}), padding(40)});
    write(bytes);
    EXPECT_EQ(0, store());
}

TEST_F(HostileAsfHeader, LargerThanTheFileIsWrittenAnewBeforeTheDataThatIsNotThereFailsToMove) {
    // Without the slack that the size claims, the header has 30 + 42 + 26 bytes; the genre takes 34 more.
    const std::string children = content_description("T", "A") + ext_content_description({});
    write(object_of_size(header_guid, 1 << 20, u32(2) + u16(0) + children));
    EXPECT_EQ(0, store());
    const std::string stored =
        content_description("T", "A") + ext_content_description({text_descriptor("WM/Genre", "Rock")});
    const std::uint64_t size = 30 + stored.size();
    EXPECT_EQ(object_of_size(header_guid, size, u32(2) + u16(0) + stored), read_file(path_).substr(0, size));
}

TEST_F(HostileAsfHeader, LargerThanTheFileGivesWhatItClaimsToItsPadding) {
    const std::string cd = content_description("T", "A");
    write(object_of_size(header_guid, 1 << 20,
                         u32(3) + u16(0) + cd + ext_content_description({}) + padding(40)));
    EXPECT_EQ(1, store());
    const std::string ecd = ext_content_description({text_descriptor("WM/Genre", "Rock")});
    const std::uint64_t padding_size = (1 << 20) - 30 - cd.size() - ecd.size();
    const std::string stored = object_of_size(
        header_guid, 1 << 20, u32(3) + u16(0) + cd + ecd + object_of_size(padding_guid, padding_size, ""));
    EXPECT_EQ(stored, read_file(path_).substr(0, stored.size()));
}

TEST_F(HostileAsfHeader, CutInsideItsLastPaddingStaysAsItIsWhereItWouldHaveToGrow) {
    const std::string whole =
        header_object({content_description("T", "A"), ext_content_description({}), padding(30)});
    const std::string bytes = whole.substr(0, whole.size() - 5);
    write(bytes);
    EXPECT_EQ(0, store()); // the genre takes 34 bytes, more than the padding has
    EXPECT_EQ(bytes, read_file(path_));
}

TEST_F(HostileAsfHeader, BeyondThirtyTwoBitsIsNotStoredIntoAndStaysAsItIs) {
    // What a store appends behind the padding would go to where the padding says that it ends.
    const std::uint64_t padding_size = 1ull << 40;
    const std::string bytes = header_object_of_size(
        2 * padding_size, {other_object(), object_of_size(padding_guid, padding_size, "")});
    write(bytes);
    EXPECT_EQ(1, load());
    EXPECT_EQ(0, store());
    EXPECT_EQ(5, error_);
    EXPECT_EQ(bytes, read_file(path_));
}

TEST_F(HostileAsfHeader, APaddingBehindTheEndOfTheFileDoesNotLetARefusedStoreGrowIt) {
    // Without a content description in front: the one that is made would go behind the padding's 64 MiB.
    constexpr std::uint64_t padding_size = 64 << 20;
    for (const std::string& first : {other_object(), ext_content_description({})}) {
        const std::string bytes = object_of_size(
            header_guid, 2 * padding_size,
            u32(2) + u16(0) + first + object_of_size(padding_guid, padding_size, std::string(50, '.')));
        write(bytes);
        EXPECT_EQ(0, store());
        EXPECT_EQ(bytes, read_file(path_));
    }
}

TEST_F(HostileAsfHeader, APaddingBehindTheEndOfTheFileIsTracedAsTheMoveThatFails) {
    const std::string bytes = object_of_size(
        header_guid, 1 << 20, u32(1) + u16(0) + object_of_size(padding_guid, 1 << 16, std::string(50, '.')));
    write(bytes);
    _file_info_t info{};
    StreamCapture log;
    EXPECT_EQ(0, asf_store_file_info(path_.c_str(), &info));
    // A header of 30 bytes, the padding, and twice the description of 34 that was made.
    EXPECT_TRUE(log.text().ends_with("Final diff size = fffffffffff10062\n"
                                     "asf_move_file: from 100000 to 10062\n"))
        << log.text();
}

TEST_F(HostileAsfHeader, SizesAroundTheLastFilePositionAreNotStored) {
    for (const std::uint64_t size : {0x7FFFFFFFFFFFFFFFull, 0x8000000000000000ull, 0x8000000000000022ull,
                                     0x8000000000000076ull, 0xFFFFFFFFFFFFFF00ull, 0xFFFFFFFFFFFFFFFFull}) {
        write(header_object_of_size(size, {content_description("", ""), ext_content_description({})}) +
              pattern(100000));
        EXPECT_EQ(1, load()) << size;
        EXPECT_EQ(0, store()) << size;
        EXPECT_LT(read_file(path_).size(), 200000u) << size;
        write(header_object_of_size(size,
                                    {content_description("", ""), ext_content_description({}), padding(40)}) +
              pattern(100000));
        EXPECT_EQ(1, load()) << size;
        EXPECT_EQ(0, store()) << size;
        EXPECT_LT(read_file(path_).size(), 200000u) << size;
    }
}

TEST_F(HostileAsfHeader, PaddingBehindTheEndOfTheFileTakesAStore) {
    const std::string ecd = ext_content_description({});
    write(object_of_size(header_guid, 30 + 34 + ecd.size() + 5000,
                         u32(3) + u16(0) + content_description("", "") + ecd +
                             object_of_size(padding_guid, 5000, "")));
    EXPECT_EQ(1, store());
    EXPECT_EQ(1, load());
}

TEST_F(HostileAsfHeader, CutAtEveryLengthBeforeAnUnknownChildEnds) {
    const std::string bytes = header_object({content_description("T", "A"),
                                             ext_content_description({text_descriptor("Genre", "Rock")}),
                                             padding(30), other_object()});
    for (std::size_t length = 30; length < bytes.size(); ++length) {
        expect_unreadable(bytes.substr(0, length), std::to_string(length));
    }
    write(bytes);
    EXPECT_EQ(1, load());
}

TEST_F(HostileAsfHeader, CutInTheGuidIsUnreadableAndCutBehindItIsAHeaderOfNothing) {
    const std::string bytes = header_object({});
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        if (length < 16) {
            expect_unreadable(bytes.substr(0, length), std::to_string(length));
        } else {
            write(bytes.substr(0, length));
            EXPECT_EQ(1, load()) << length;
        }
    }
}

TEST_F(HostileAsfHeader, CutInALastDescriptorListIsUnreadable) {
    const std::string bytes = header_object({ext_content_description({text_descriptor("Genre", "Rock")})});
    for (std::size_t length = 30; length < bytes.size(); ++length) {
        // From the object header's size on, up to the count, what is missing counts as zero: an empty list.
        if (length >= 30 + 16 && length <= 30 + 24) {
            write(bytes.substr(0, length));
            EXPECT_EQ(1, load()) << length;
        } else {
            expect_unreadable(bytes.substr(0, length), std::to_string(length));
        }
    }
}

TEST_F(HostileAsfHeader, CutInALastContentDescriptionLoadsWhatIsThere) {
    const std::string bytes = header_object({content_description("Title", "")});
    write(bytes.substr(0, bytes.size() - 6));
    _file_info_t info{};
    EXPECT_EQ(1, asf_load_file_info(path_.c_str(), &info));
    EXPECT_STREQ("Tit", info.desc);
    id3_free_file_info(&info);
}

} // namespace
} // namespace velmora
