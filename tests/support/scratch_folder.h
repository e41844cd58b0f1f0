#pragma once

#include <string>
#include <string_view>

namespace velmora::test {

/** A new, empty folder that goes with everything in it when the object does. */
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }
    /** The path of NAME inside the folder. */
    [[nodiscard]] std::string operator/(std::string_view name) const;

private:
    std::string path_;
};

} // namespace velmora::test
