#include "fault_table_files.h"

#include "fake_image/fake_image.h"
#include "support/allocation_faults.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/taglib.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

/** Each request for memory by `new` fails in its turn; nothing may be thrown out of the library. */
namespace velmora::test {
namespace {

constexpr std::string_view picture_bytes = "\xFF\xD8\xFFpicture";

class NoExceptions : public testing::Test {
protected:
    /** Calls RUN once for each request that it makes, with that request failing, on a file of these BYTES;
       CHECK is told what it returned. Fails the test when there is no request. */
    template <typename Check>
    void run_without_memory(const std::string& bytes, const std::function<int()>& run, Check check) {
        bool refused = true;
        int requests = 0;
        for (; refused; ++requests) {
            write_file(path(), bytes);
            const StreamCapture quiet;
            int result = -1;
            {
                const AllocationFaults no_memory(requests + 1, Memory::operator_new);
                EXPECT_NO_THROW(result = run()) << requests + 1;
                refused = no_memory.count() > requests;
            }
            if (refused) {
                check(result);
            }
        }
        EXPECT_GT(requests, 1);
    }
    template <typename Store, typename Load>
    void expect_store_leaves_picture(const std::string& bytes, Store store, Load load) {
        const std::string name = path();
        const auto run = [&] {
            _file_info_t info = stored();
            return store(name.c_str(), &info);
        };
        run_without_memory(bytes, run, [&](int result) {
            EXPECT_EQ(1, result);
            expect_title_and_old_picture(load);
        });
    }
    /** Stores into the file first. */
    template <typename Store, typename Load>
    void expect_load_without_picture(Store store, Load load) {
        const std::string name = path();
        _file_info_t info = stored();
        {
            const StreamCapture quiet;
            ASSERT_EQ(1, store(name.c_str(), &info));
        }
        _file_info_t loaded{};
        const auto run = [&] {
            id3_free_file_info(&loaded);
            return load(name.c_str(), &loaded);
        };
        run_without_memory(read_file(name), run, [&](int result) {
            EXPECT_EQ(1, result);
            EXPECT_EQ(nullptr, loaded.picture);
            EXPECT_STREQ("New", loaded.title);
        });
        EXPECT_NE(nullptr, loaded.picture);
        id3_free_file_info(&loaded);
    }
    /** The title and the image, lent. */
    [[nodiscard]] _file_info_t stored() {
        _file_info_t info{};
        info.flags = file_info_flag::title | file_info_flag::picture;
        info.title = title_.data();
        info.picture = image_.get();
        return info;
    }
    template <typename Load>
    void expect_title_and_old_picture(Load load) {
        _file_info_t info{};
        EXPECT_EQ(1, load(path().c_str(), &info));
        EXPECT_STREQ("New", info.title);
        EXPECT_EQ(old_picture(), info.picture ? fake_image_bytes(info.picture) : "");
        id3_free_file_info(&info);
    }
    void TearDown() override {
        image_.reset();
        EXPECT_EQ(0, fake_images_alive());
    }
    [[nodiscard]] std::string path() const { return folder_ / "film"; }
    [[nodiscard]] const std::string& folder() const { return folder_.path(); }
    [[nodiscard]] Image* image() const { return image_.get(); }

private:
    ScratchFolder folder_;
    std::string title_ = "New";
    std::unique_ptr<Image, void (*)(Image*)> image_{
        image_from_bytes(picture_bytes.data(), picture_bytes.size()), image_release};
};

TEST_F(NoExceptions, LeaveAnId3StoreWhichLeavesThePicture) {
    expect_store_leaves_picture(id3_appended_sample(100).bytes, id3_store_file_info, id3_load_file_info);
}

TEST_F(NoExceptions, LeaveAnAsfStoreWhichLeavesThePicture) {
    expect_store_leaves_picture(asf_sample(100, 300, "Old").bytes, asf_store_file_info, asf_load_file_info);
}

TEST_F(NoExceptions, LeaveAnAviStoreWhichLeavesThePicture) {
    expect_store_leaves_picture(avi_sample(100, AviInfo::last).bytes, avi_store_file_info,
                                avi_load_file_info);
}

TEST_F(NoExceptions, LeaveAnId3Load) {
    write_file(path(), id3_appended_sample(100).bytes);
    expect_load_without_picture(id3_store_file_info, id3_load_file_info);
}

TEST_F(NoExceptions, LeaveAnAsfLoad) {
    write_file(path(), asf_sample(100, 300, "Old").bytes);
    expect_load_without_picture(asf_store_file_info, asf_load_file_info);
}

TEST_F(NoExceptions, LeaveAnAviLoad) {
    write_file(path(), avi_sample(100, AviInfo::last).bytes);
    expect_load_without_picture(avi_store_file_info, avi_load_file_info);
}

TEST_F(NoExceptions, LeaveTheSearchForAlbumArt) {
    write_file(folder() + "/AlbumArt_{00000000-0000-0   -0000-000000000000}_Large.jpg", picture_bytes);
    const std::string name = path();
    Image* found = nullptr;
    run_without_memory(
        "film",
        [&] {
            image_release(found);
            found = id3_load_albumart(name.c_str(), GUID{});
            return found ? 1 : 0;
        },
        [](int result) { EXPECT_EQ(0, result); });
    EXPECT_NE(nullptr, found);
    image_release(found);
}

TEST_F(NoExceptions, LeaveTheWritingOfAnImageFile) {
    const std::string name = path();
    const auto write = [&] {
        Util_WriteBmpToJpgFile(image(), name.c_str());
        return 1;
    };
    run_without_memory("old", write, [&](int) { EXPECT_EQ("old", read_file(name)); });
    EXPECT_EQ(picture_bytes, read_file(name));
}

} // namespace
} // namespace velmora::test
