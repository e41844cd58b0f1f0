#include "scratch_folder.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace velmora::test {

ScratchFolder::ScratchFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "velmora-test-XXXXXX").string();
    if (!::mkdtemp(name.data())) {
        throw std::runtime_error("no scratch folder: " + name);
    }
    path_ = name;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string ScratchFolder::operator/(std::string_view name) const {
    return path_ + "/" + std::string(name);
}

} // namespace velmora::test
