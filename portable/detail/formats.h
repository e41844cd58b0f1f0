#pragma once

#include "tagged_file.h"

/** The formats. Each takes apart the file that is open as FILE and SIZE bytes long, and throws a Refusal
   where it is not one of its kind, is damaged or can't be read. */
namespace velmora::portable {

[[nodiscard]] std::unique_ptr<TaggedFile> open_mpeg_audio(FIOFUNCSTRUCT* file, std::uint64_t size,
                                                          Media media);
[[nodiscard]] std::unique_ptr<TaggedFile> open_flac(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);
[[nodiscard]] std::unique_ptr<TaggedFile> open_mp4(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);
[[nodiscard]] std::unique_ptr<TaggedFile> open_wav(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);
[[nodiscard]] std::unique_ptr<TaggedFile> open_asf(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);
[[nodiscard]] std::unique_ptr<TaggedFile> open_avi(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);
[[nodiscard]] std::unique_ptr<TaggedFile> open_ogg(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);
[[nodiscard]] std::unique_ptr<TaggedFile> open_aiff(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);

/** For the kinds that have no tag that others read, and for side files. */
[[nodiscard]] std::unique_ptr<TaggedFile> open_own_tag(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);

} // namespace velmora::portable
