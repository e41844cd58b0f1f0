#include "tag_edit.h"

#include "taglib/id3/load_file_info.h"

/** Input: a file with an ID3 tag. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    using namespace velmora::fuzz;
    const MediaFile file({reinterpret_cast<const char*>(data), size});
    const DescriptorCheck descriptors;
    LoadedInfo info;
    const int result = id3_load_file_info(file.path(), &info);
    require(result == 1 ? info.flags == file_info_flag::tag_present : result == 0 && info.is_empty(),
            "a load either finds a tag or leaves the record empty");
    return 0;
}
