#pragma once

#include <cstdint>
#include <string>

/** The same work done with TagLib, the yardstick of tag_benchmark. Only the benchmarks link it. */
namespace peer {

/** What Velmora's record holds, as TagLib gives it. Texts are UTF-8. */
struct Tags {
    std::string title;
    std::string artist;
    std::string album;
    std::string genre;
    std::uint32_t year = 0;
    std::string picture; ///< encoded bytes
};

/* Each opens the file at PATH, reads its tag, takes the fields out and closes it. An empty title tells that
   the tag was not found. */
[[nodiscard]] Tags readLeadingId3(const char* path);
[[nodiscard]] Tags readAppendedId3(const char* path);
[[nodiscard]] Tags readAsf(const char* path);
[[nodiscard]] Tags readAvi(const char* path);

/* Each opens the file, reads its tag, changes the title and writes the tag back to where it was. */
[[nodiscard]] bool storeAppendedId3(const char* path, const char* title);
[[nodiscard]] bool storeAsf(const char* path, const char* title);
[[nodiscard]] bool storeAvi(const char* path, const char* title);
/** Opens the file, reads its tag, changes the title and writes the tag back, but finds it as a first attempt
   would: by reading every list in whole, the film itself too. */
[[nodiscard]] bool storeAviReadingWholeLists(const char* path, const char* title);

} // namespace peer
