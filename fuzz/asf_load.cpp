#include "tag_edit.h"

#include "taglib/asf/load_file_info.h"

#include <cerrno>

/** Input: an ASF file. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    using namespace velmora::fuzz;
    const MediaFile file({reinterpret_cast<const char*>(data), size});
    const DescriptorCheck descriptors;
    LoadedInfo info;
    const int result = asf_load_file_info(file.path(), &info);
    if (result == 1) {
        require((info.flags & ~file_info_flag::tag_present) == 0, "a load sets no other flag");
    } else {
        require(errno == 5, "an unreadable header is error 5");
        require(info.is_empty(), "a failed load leaves the record empty");
    }
    return 0;
}
