#include "model/detail/tag_record.h"

#include "platform/file_path.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/asf/load_file_info.h"
#include "taglib/avi/load_file_info.h"
#include "taglib/avi/store_file_info.h"
#include "taglib/id3/load_file_info.h"
#include "taglib/id3/store_file_info.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(TagModule, WindowsMediaExtensionsHaveTheAsfModule) {
    for (const char* name : {"a.asf", "a.wmv", "a.wma", "a.WMA"}) {
        EXPECT_EQ(&asf_load_file_info, tagModuleOfExtension(pathExtension(name)).load) << name;
    }
}

TEST(TagModule, WindowsMediaExtensionsAreStoredByTheAsfModule) {
    const test::ScratchFolder folder;
    const std::string path = folder / "file";
    test::write_file(path, "no media"); // which the module refuses under its own name
    for (const char* name : {"a.asf", "a.wmv", "a.wma", "a.WMA"}) {
        _file_info_t info{};
        test::StreamCapture log;
        EXPECT_EQ(0, tagModuleOfExtension(pathExtension(name)).store(path.c_str(), &info)) << name;
        EXPECT_EQ("asf_read_header_object: Not a valid header\n", log.text()) << name;
    }
}

TEST(TagModule, AviExtensionsHaveTheAviModule) {
    for (const char* name : {"a.avi", "a.divx", "a.AVI"}) {
        EXPECT_EQ(&avi_load_file_info, tagModuleOfExtension(pathExtension(name)).load) << name;
        EXPECT_EQ(&avi_store_file_info, tagModuleOfExtension(pathExtension(name)).store) << name;
    }
}

TEST(TagModule, EverythingElseHasTheId3Module) {
    for (const char* name : {"a.mp3", "a.dvr-ms", "a.mp4", "a", "a.TAG", "wma", "a.wma.mp3"}) {
        EXPECT_EQ(&id3_load_file_info, tagModuleOfExtension(pathExtension(name)).load) << name;
        EXPECT_EQ(&id3_store_file_info, tagModuleOfExtension(pathExtension(name)).store) << name;
    }
}

} // namespace
} // namespace velmora
