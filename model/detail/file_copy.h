#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace velmora {

/** A copy of a file that is made under a hidden name beside the place that it is to take, and goes with the
   object unless it took it. On any thread. Paths are in the file system's encoding. */
class FileCopy {
public:
    /** Of the file at SOURCE, for TARGET. */
    FileCopy(std::string source, std::string target);
    ~FileCopy();
    FileCopy(const FileCopy&) = delete;
    FileCopy& operator=(const FileCopy&) = delete;

    /** Makes the copy. Gives 0 or errno: EEXIST where the target is the source itself, ECANCELED where
       PROGRESS, which is told the bytes done and those to do, gave false. */
    [[nodiscard]] int make(const std::function<bool(std::uint64_t done, std::uint64_t total)>& progress);
    /** The hidden copy; with the target's extension. */
    [[nodiscard]] const std::string& path() const { return path_; }
    /** Puts the copy into the target's place, in one step and instead of what is there. Gives 0 or errno. */
    [[nodiscard]] int takePlace();

private:
    std::string source_;
    std::string target_;
    std::string path_;
    bool made_ = false;
};

} // namespace velmora
