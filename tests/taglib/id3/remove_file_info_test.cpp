#include "taglib/id3/remove_file_info.h"

#include "id3_bytes.h"

#include "support/stream_capture.h"
#include "support/system_call_faults.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace velmora::test {
namespace {

struct Removal {
    explicit Removal(const std::string& path) {
        StreamCapture capture;
        result = id3_remove_file_info(path.c_str());
        log = capture.text();
    }
    int result = -1;
    std::string log;
};

struct DescriptorRemoval {
    explicit DescriptorRemoval(OpenFile& file) {
        StreamCapture capture;
        result = id3_remove_descriptor_v2(file.handle());
        log = capture.text();
    }
    int result = -1;
    std::string log;
};

TEST(Id3Remove, AppendedTagStaysReadableBecauseFilesNeverGetShorter) {
    const std::string contents = "media" + appended_tag(text4("TALB", "a"));
    OpenFile file(contents);
    const Removal removal(file.path());
    EXPECT_EQ(1, removal.result);
    EXPECT_EQ("", removal.log);
    EXPECT_EQ(contents, file.contents());
}

TEST(Id3Remove, WritesNoBytesAtTheTag) {
    OpenFile file("media" + appended_tag(text4("TALB", "a")));
    const SystemCallFaults watch;
    EXPECT_EQ(1, id3_remove_file_info(file.path().c_str()));
    ASSERT_EQ(1, watch.count(SystemCall::write));
    for (const SystemCallRecord& call : watch.records()) {
        if (call.call == SystemCall::write) {
            EXPECT_EQ(5, call.position);
            EXPECT_EQ(0, call.requested);
        }
    }
    EXPECT_EQ(0, watch.open_descriptors());
}

TEST(Id3Remove, FileOfNothingButTheTagIsDeleted) {
    OpenFile file(appended_tag(text4("TALB", "a")));
    EXPECT_EQ(1, Removal(file.path()).result);
    EXPECT_FALSE(file_exists(file.path()));
}

TEST(Id3Remove, FileOfNothingButTheTagIsDeletedOnceItIsClosed) {
    const OpenFile file(appended_tag(""));
    const SystemCallFaults watch;
    EXPECT_EQ(1, id3_remove_file_info(file.path().c_str()));
    const auto& calls = watch.records();
    ASSERT_GE(calls.size(), 2u);
    EXPECT_EQ(SystemCall::close, calls[calls.size() - 2].call);
    EXPECT_EQ(SystemCall::unlink, calls[calls.size() - 1].call);
}

TEST(Id3Remove, FileWithATagBehind4GigabytesIsNotDeleted) {
    const std::int64_t length = std::int64_t{1} << 32;
    const std::string tag = appended_tag(text4("TALB", "a"));
    const OpenFile file(length + static_cast<std::int64_t>(tag.size()), tag, length);
    const StreamCapture log;
    const SystemCallFaults watch;
    EXPECT_EQ(1, id3_remove_file_info(file.path().c_str()));
    EXPECT_TRUE(file_exists(file.path()));
    ASSERT_EQ(1, watch.count(SystemCall::write));
    for (const SystemCallRecord& call : watch.records()) {
        if (call.call == SystemCall::write) {
            EXPECT_EQ(length, call.position);
        }
    }
}

TEST(Id3Remove, FileWithoutAppendedTagIsLeftAlone) {
    const std::string contents = leading_tag(4, text4("TALB", "a")) + "media";
    OpenFile file(contents);
    const Removal removal(file.path());
    EXPECT_EQ(1, removal.result);
    EXPECT_EQ("id3_load_header_v1: Failed to read header\n", removal.log);
    EXPECT_EQ(contents, file.contents());
}

TEST(Id3Remove, EmptyFileIsLeftAlone) {
    OpenFile file("");
    const Removal removal(file.path());
    EXPECT_EQ(1, removal.result);
    EXPECT_EQ("id3_is_present_v2: Failed to read footer\n"
              "id3_load_header_v1: Failed to read header\n",
              removal.log);
    EXPECT_TRUE(file_exists(file.path()));
}

TEST(Id3Remove, MissingFileFailsAndIsNotCreated) {
    const ScratchFolder folder;
    const Removal removal(folder / "nothing.mp3");
    EXPECT_EQ(0, removal.result);
    EXPECT_EQ("id3_remove_file_info: couldn't open file for r/w\n", removal.log);
    EXPECT_FALSE(file_exists(folder / "nothing.mp3"));
}

TEST(Id3Remove, AnyFailingCallLeavesTheFileAndNothingOpen) {
    const std::string contents = "media" + appended_tag(text4("TALB", "a"));
    for (int nth = 1; nth <= 8; ++nth) {
        OpenFile file(contents);
        const StreamCapture log;
        SystemCallFaults faults;
        faults.fail(nth, EIO);
        EXPECT_EQ(nth == 1 ? 0 : 1, id3_remove_file_info(file.path().c_str())) << nth;
        EXPECT_EQ(contents, file.contents()) << nth;
        EXPECT_EQ(0, faults.open_descriptors()) << nth;
    }
}

TEST(Id3RemoveDescriptor, GoesToTheTagAndChangesNothing) {
    const std::string contents = "media" + appended_tag(text4("TALB", "a"));
    OpenFile file(contents);
    const DescriptorRemoval removal(file);
    EXPECT_EQ(1, removal.result);
    EXPECT_EQ("", removal.log);
    EXPECT_EQ(contents, file.contents());
    EXPECT_EQ(5, fio_ltell(file.handle()));
}

TEST(Id3RemoveDescriptor, VersionsDoNotMatter) {
    OpenFile file("media" + header(5, 0x10, 0) + header(255, 0x10, 0, "3DI"));
    const DescriptorRemoval removal(file);
    EXPECT_EQ(1, removal.result);
    EXPECT_EQ("", removal.log);
    EXPECT_EQ(5, fio_ltell(file.handle()));
}

TEST(Id3RemoveDescriptor, FileOfNothingButTheTagIsNotDeleted) {
    OpenFile file(appended_tag(""));
    EXPECT_EQ(1, DescriptorRemoval(file).result);
    EXPECT_EQ(appended_tag(""), file.contents());
}

TEST(Id3RemoveDescriptor, MissingFooterIsASuccess) {
    OpenFile file("media without any tag");
    const DescriptorRemoval removal(file);
    EXPECT_EQ(1, removal.result);
    EXPECT_EQ("", removal.log);
}

TEST(Id3RemoveDescriptor, UnreadableFooterFails) {
    OpenFile file("123456789");
    const DescriptorRemoval removal(file);
    EXPECT_EQ(0, removal.result);
    EXPECT_EQ("id3_remove_descriptor_v2: Failed to read footer\n", removal.log);
}

TEST(Id3RemoveDescriptor, FooterThatPointsInFrontOfTheFileFails) {
    OpenFile file("media" + header(4, 0x10, 100, "3DI"));
    const DescriptorRemoval removal(file);
    EXPECT_EQ(0, removal.result);
    EXPECT_EQ("id3_remove_descriptor_v2: Invalid footer offset\n", removal.log);
}

TEST(Id3RemoveDescriptor, UnreadableHeaderFails) {
    OpenFile file(appended_tag(""));
    SystemCallFaults faults;
    faults.fail(SystemCall::read, 2, EIO);
    const DescriptorRemoval removal(file);
    EXPECT_EQ(0, removal.result);
    EXPECT_EQ("id3_remove_descriptor_v2: Failed to read header\n", removal.log);
}

TEST(Id3RemoveDescriptor, FooterThatLeadsToNoHeaderFails) {
    OpenFile file("1234567890" + header(4, 0x10, 0, "3DI"));
    const DescriptorRemoval removal(file);
    EXPECT_EQ(0, removal.result);
    EXPECT_EQ("id3_remove_descriptor_v2: Invalid header sig\n", removal.log);
}

} // namespace
} // namespace velmora::test
