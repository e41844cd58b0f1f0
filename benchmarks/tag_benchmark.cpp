/** Reading and storing tags, beside TagLib, and moving data, beside a plain loop.
   tag_benchmark FOLDER [options of Google Benchmark]: FOLDER is what make_library.py made; its files "store"
   and "large" are written to.

   Names are WORK/WHO. A read is one pass over all files of a folder; a store changes one file's title to and
   fro. WHO is velmora, closed (the same with standard error closed), or the yardstick. */

#include "taglib_peer.h"
#include "trace_sink.h"
#include "velmora_tasks.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using tasks::Format;

constexpr const char* velmora = "/velmora";
constexpr const char* closed = "/closed";
constexpr const char* yardstick = "/yardstick";

using ReadOne = std::function<bool(const char* path)>;
using StoreOne = std::function<bool(const char* path, const char* title)>;

void readAll(benchmark::State& state, const std::vector<std::string>& files, TraceSink sink,
             const ReadOne& read) {
    bool good = sendTracesTo(sink);
    for (auto _ : state) {
        for (const std::string& file : files) {
            good = read(file.c_str()) && good;
        }
    }
    if (!good) {
        state.SkipWithError("a file was not read");
    }
}

void addRead(const std::string& work, const std::vector<std::string>& files, const ReadOne& ours,
             const ReadOne& theirs) {
    const auto add = [&](const char* who, TraceSink sink, const ReadOne& read) {
        benchmark::RegisterBenchmark((work + who).c_str(),
                                     [=](benchmark::State& state) { readAll(state, files, sink, read); });
    };
    add(velmora, TraceSink::nowhere, ours);
    add(closed, TraceSink::closed, ours);
    add(yardstick, TraceSink::nowhere, theirs);
}

std::vector<std::string> filesOf(const fs::path& folder) {
    std::vector<std::string> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        files.push_back(entry.path().string());
    }
    std::sort(files.begin(), files.end());
    return files;
}

/** Of songs every other one has a cover, from the second on. */
std::vector<std::string> withoutCovers(const std::vector<std::string>& songs) {
    std::vector<std::string> files;
    for (std::size_t i = 0; i < songs.size(); i += 2) {
        files.push_back(songs[i]);
    }
    return files;
}

/** All songs of FOLDER, and by themselves those without a cover: whether that is a picture is found out by
   reading its tables, which is no matter of tags. */
void addReadOfSongs(const std::string& work, const fs::path& folder, const ReadOne& ours,
                    const ReadOne& theirs) {
    const std::vector<std::string> songs = filesOf(folder);
    addRead(work, songs, ours, theirs);
    addRead(work + " without covers", withoutCovers(songs), ours, theirs);
}

/** Two titles to take turns. */
struct Titles {
    const char* one;
    const char* other;
};

void storeAlternately(benchmark::State& state, const std::string& file, Titles titles, TraceSink sink,
                      const StoreOne& store) {
    bool good = sendTracesTo(sink);
    bool turn = false;
    for (auto _ : state) {
        good = store(file.c_str(), turn ? titles.one : titles.other) && good;
        turn = !turn;
    }
    if (!good) {
        state.SkipWithError("a title was not stored");
    }
}

std::string copyFor(const fs::path& file, const char* who) {
    const fs::path copy = file.parent_path() / (std::string(who + 1) + "-" + file.filename().string());
    fs::copy_file(file, copy, fs::copy_options::overwrite_existing);
    return copy.string();
}

/** FOLDER/store/NAME beside the yardstick, and FOLDER/large/NAME. */
void addStore(const std::string& work, const fs::path& folder, const char* name, Titles titles, Format format,
              const StoreOne& theirs) {
    const fs::path file = folder / "store" / name;
    const StoreOne ours = [format](const char* path, const char* title) {
        return tasks::storeTitle(format, path, title);
    };
    const auto add = [&](const std::string& entry, const std::string& path, TraceSink sink,
                         const StoreOne& store) {
        benchmark::RegisterBenchmark(entry.c_str(), [=](benchmark::State& state) {
            storeAlternately(state, path, titles, sink, store);
        });
    };
    add(work + velmora, copyFor(file, velmora), TraceSink::nowhere, ours);
    add(work + closed, copyFor(file, closed), TraceSink::closed, ours);
    add(work + yardstick, copyFor(file, yardstick), TraceSink::nowhere, theirs);
    add(work + "/large", (folder / "large" / name).string(), TraceSink::nowhere, ours);
}

/** The fewest reads and writes that change a tag in the INFO list behind everything else: one read a chunk,
   and one of the list; one write of the list, and one of the file's header. The tag stays as it is. */
bool rewriteInfoList(const char* path, const char*) {
    const int file = ::open(path, O_RDWR | O_CLOEXEC);
    unsigned char head[12];
    unsigned char list[4096];
    bool good = file >= 0 && ::pread(file, head, sizeof head, 0) == sizeof head;
    unsigned size = 0;
    off_t at = sizeof head;
    unsigned char chunk[12] = {};
    for (; good && std::memcmp(chunk + 8, "INFO", 4) != 0; at += 8 + size + (size & 1)) {
        good = ::pread(file, chunk, sizeof chunk, at) == sizeof chunk;
        std::memcpy(&size, chunk + 4, sizeof size);
    }
    at -= 8 + size + (size & 1);
    const auto length = static_cast<ssize_t>(8 + size);
    good = good && length <= static_cast<ssize_t>(sizeof list) &&
           ::pread(file, list, 8 + size, at) == length && ::pwrite(file, list, 8 + size, at) == length &&
           ::pwrite(file, head, sizeof head, 0) == sizeof head;
    ::close(file);
    return good;
}

void addFurtherYardstick(const std::string& work, const char* who, const fs::path& folder, Titles titles,
                         const StoreOne& store) {
    const std::string path = copyFor(folder / "store" / "film.avi", who);
    benchmark::RegisterBenchmark((work + who).c_str(), [=](benchmark::State& state) {
        storeAlternately(state, path, titles, TraceSink::nowhere, store);
    });
}

constexpr long long mebibyte = 1 << 20;
constexpr long long moveFrom = 5000;
constexpr long long moveTo = moveFrom + 1024;
constexpr long long movedSize = 1024 * mebibyte;

/** The fewest reads and writes that move SIZE bytes in steps of 1 MiB: upwards from the back, downwards from
   the front. */
bool shift(const char* path, long long from, long long to, long long size) {
    const int file = ::open(path, O_RDWR | O_CLOEXEC);
    std::vector<char> buffer(mebibyte);
    bool good = file >= 0;
    for (long long done = 0; good && done < size;) {
        const long long step = std::min(mebibyte, size - done);
        const long long at = from < to ? size - done - step : done;
        good = ::pread(file, buffer.data(), static_cast<std::size_t>(step), from + at) == step &&
               ::pwrite(file, buffer.data(), static_cast<std::size_t>(step), to + at) == step;
        done += step;
    }
    ::close(file);
    return good;
}

/** Writes the file that is moved, when it is not there yet. */
bool makeMovedFile(const std::string& file) {
    if (fs::exists(file)) {
        return true;
    }
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const std::vector<char> data(mebibyte, 'v');
    bool good = descriptor >= 0;
    for (long long at = 0; good && at < moveTo + movedSize; at += mebibyte) {
        good = ::pwrite(descriptor, data.data(), data.size(), at) == mebibyte;
    }
    ::close(descriptor);
    return good;
}

/** One move up and one back. */
void moveToAndFro(benchmark::State& state, const std::string& file, bool ours) {
    bool good = sendTracesTo(TraceSink::nowhere) && makeMovedFile(file);
    // As long before each round: the file keeps what a move up adds.
    for (auto _ : state) {
        good = good && ::truncate(file.c_str(), moveFrom + movedSize) == 0;
        if (ours) {
            good = good && tasks::move(file.c_str(), moveFrom, moveTo) &&
                   tasks::move(file.c_str(), moveTo, moveFrom);
        } else {
            good = good && shift(file.c_str(), moveFrom, moveTo, movedSize) &&
                   shift(file.c_str(), moveTo, moveFrom, movedSize);
        }
    }
    if (!good) {
        state.SkipWithError("the data was not moved");
    }
}

void addMove(const fs::path& folder) {
    // One file for both, so that both find the same pages in memory.
    const std::string file = (folder / "moved").string();
    for (const bool ours : {true, false}) {
        benchmark::RegisterBenchmark((std::string("move") + (ours ? velmora : yardstick)).c_str(),
                                     [=](benchmark::State& state) { moveToAndFro(state, file, ours); })
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
    }
}

ReadOne reads(Format format) {
    return [format](const char* path) { return tasks::read(format, path); };
}

ReadOne peerReads(peer::Tags (*read)(const char*)) {
    return [read](const char* path) {
        const peer::Tags tags = read(path);
        benchmark::DoNotOptimize(&tags);
        return !tags.title.empty();
    };
}

void addAll(const fs::path& folder) {
    addReadOfSongs("read leading", folder / "leading", reads(Format::id3), peerReads(peer::readLeadingId3));
    addReadOfSongs("read appended", folder / "appended", reads(Format::id3),
                   peerReads(peer::readAppendedId3));
    addReadOfSongs("read asf", folder / "asf", reads(Format::asf), peerReads(peer::readAsf));
    addRead("read avi", filesOf(folder / "avi"), reads(Format::avi), peerReads(peer::readAvi));
    // Titles that keep the length of the tag, and so its place at the end of the song.
    constexpr Titles asLong{"Down to the old harbours.", "Up to the house of a boy."};
    constexpr Titles longer{"A walk", "A walk along the river in the evening"};
    addStore("store appended", folder, "song.mp3", asLong, Format::id3, peer::storeAppendedId3);
    addStore("store asf", folder, "song.wma", longer, Format::asf, peer::storeAsf);
    addStore("store avi", folder, "film.avi", longer, Format::avi, peer::storeAvi);
    addFurtherYardstick("store avi", "/whole lists", folder, longer, peer::storeAviReadingWholeLists);
    addFurtherYardstick("store avi", "/fewest calls", folder, longer, rewriteInfoList);
    addMove(folder);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: tag_benchmark FOLDER [options]\n", stderr);
        return 2;
    }
    const fs::path folder = argv[1];
    std::copy(argv + 2, argv + argc, argv + 1);
    --argc;
    benchmark::Initialize(&argc, argv);
    addAll(folder);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
