#include "portable_input.h"

/** Input: a byte for the kind of file, a file. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    using namespace velmora::fuzz;
    Input input(data, size);
    const std::string_view extension = take_extension(input);
    const MediaFile file(input.rest(), extension);
    const DescriptorCheck descriptors;
    const portable::ReadOutcome outcome = portable::read_tags(file.path());
    require(!outcome.failure || (outcome.values == portable::TagValues() && outcome.tags.empty()),
            "a file that can't be read says nothing");
    require_sound(outcome.values);
    return 0;
}
