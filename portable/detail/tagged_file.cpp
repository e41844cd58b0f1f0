#include "tagged_file.h"

#include "../reason.h"

namespace velmora::portable {

std::unique_ptr<TaggedFile> open_tagged_file(FIOFUNCSTRUCT* file, std::uint64_t size, const MediaKind& kind) {
    static_cast<void>(file);
    static_cast<void>(size);
    switch (kind.container) {
    default:
        throw Refusal({ReasonCode::unsupported, 0, "no format"});
    }
}

} // namespace velmora::portable
