#include "tag_edit.h"

#include "taglib/avi/load_file_info.h"

#include <cerrno>

/** Input: an AVI file. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    using namespace velmora::fuzz;
    const MediaFile file({reinterpret_cast<const char*>(data), size});
    const DescriptorCheck descriptors;
    LoadedInfo info;
    const int result = avi_load_file_info(file.path(), &info);
    if (result == 1) {
        require((info.flags & ~file_info_flag::tag_present) == 0, "a load sets no other flag");
    } else {
        require(errno == 5 || errno == 78, "a refused file is error 5 or 78");
        require(info.is_empty(), "a failed load leaves the record empty");
    }
    return 0;
}
