#include "taglib_peer_loop.h"

#include <algorithm>
#include <atomic>
#include <fileref.h>
#include <tag.h>
#include <thread>

unsigned long lengthOfTags(const std::vector<std::string>& paths) {
    std::atomic<std::size_t> next = 0;
    std::atomic<unsigned long> length = 0;
    const auto read = [&] {
        for (std::size_t index = next++; index < paths.size(); index = next++) {
            const TagLib::FileRef file(paths[index].c_str(), false);
            if (const TagLib::Tag* const tag = file.tag()) {
                length += tag->title().size() + tag->artist().size() + tag->album().size() +
                          tag->comment().size() + tag->genre().size() + tag->year();
            }
        }
    };
    std::vector<std::thread> threads;
    for (unsigned thread = 0; thread < std::max(1U, std::thread::hardware_concurrency()); ++thread) {
        threads.emplace_back(read);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    return length;
}
