#include "fault_table_files.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "taglib/taglib.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/** A store by a process that may not let a file grow as far as the tag needs. The program ignores the signal
   that the system sends then, as these processes do. */
namespace velmora::test {
namespace {

/** What a store that is refused room came to. */
struct Refused {
    int result = -1; ///< the store's; -1 when the process was killed
    std::string log;
    std::string file;
};

template <typename Store>
Refused store_with_limit(const MediaSample& sample, rlim_t limit, Store store) {
    const ScratchFolder folder;
    const std::string path = folder / "film";
    const std::string log = folder / "log";
    write_file(path, sample.bytes);
    const pid_t child = ::fork();
    if (child == 0) {
        std::freopen(log.c_str(), "w", stderr);
        std::setvbuf(stderr, nullptr, _IONBF, 0);
        const rlimit at_most{limit, limit};
        ::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &at_most);
        std::string title(20000, 't');
        _file_info_t info{};
        info.flags = file_info_flag::title;
        info.title = title.data();
        ::_exit(store(path.c_str(), &info));
    }
    Refused refused;
    int status = 0;
    ::waitpid(child, &status, 0);
    refused.result = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    refused.log = read_file(log);
    refused.file = read_file(path);
    return refused;
}

TEST(FileSizeLimit, BelowTheTagIsAnErrorForAnId3Store) {
    const MediaSample song = id3_appended_sample(3000);
    const Refused refused = store_with_limit(song, 3000, id3_store_file_info);
    EXPECT_EQ(0, refused.result);
    EXPECT_TRUE(refused.log.ends_with("id3_store_descriptor_v2: Failed to write header\n"
                                      "id3_store_file_info: couldn't store new descriptor\n"))
        << refused.log;
    EXPECT_EQ(song.bytes, refused.file);
}

TEST(FileSizeLimit, BelowTheTagIsAnErrorForAnAsfStore) {
    const MediaSample film = asf_sample(70000, 0, "Old");
    const Refused refused = store_with_limit(film, 3000, asf_store_file_info);
    EXPECT_EQ(0, refused.result);
    EXPECT_TRUE(refused.log.ends_with("asf_move_file: Error writing file\n")) << refused.log;
    EXPECT_EQ(film.bytes, refused.file);
}

TEST(FileSizeLimit, BelowTheTagIsAnErrorForAnAviStore) {
    const MediaSample film = avi_sample(3000, AviInfo::none);
    const Refused refused = store_with_limit(film, film.bytes.size(), avi_store_file_info);
    EXPECT_EQ(0, refused.result);
    EXPECT_TRUE(refused.log.ends_with("avi_store_item: Error writing file\n"
                                      "avi_store_file_info: Error writing <info> tag\n"))
        << refused.log;
    EXPECT_EQ(film.bytes, refused.file);
}

} // namespace
} // namespace velmora::test
