#include "tagged_file.h"

#include "formats.h"
#include "tag_behind.h"

#include "portable/reason.h"

namespace velmora::portable {

std::unique_ptr<TaggedFile> open_tagged_file(FIOFUNCSTRUCT* file, std::uint64_t size, const MediaKind& kind) {
    switch (kind.container) {
    case Container::aiff:
        return open_before_tag(open_aiff, file, size, kind.media);
    case Container::asf:
        return open_asf(file, size, kind.media);
    case Container::avi:
        return open_avi(file, size, kind.media);
    case Container::mp4:
        return open_before_tag(open_mp4, file, size, kind.media);
    case Container::flac:
        return open_before_tag(open_flac, file, size, kind.media);
    case Container::ogg:
        return open_before_tag(open_ogg, file, size, kind.media);
    case Container::mpeg_audio:
        return open_mpeg_audio(file, size, kind.media);
    case Container::side_file:
    case Container::tagless:
        return open_own_tag(file, size, kind.media);
    case Container::wav:
        return open_before_tag(open_wav, file, size, kind.media);
    default:
        throw Refusal({ReasonCode::unsupported, 0, "no format"});
    }
}

} // namespace velmora::portable
