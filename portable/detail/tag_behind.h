#pragma once

#include "tagged_file.h"

namespace velmora::portable {

/** Opens the media of one format: FILE up to SIZE. */
using OpenFormat = std::unique_ptr<TaggedFile> (*)(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);

/** A file of OPEN's format behind which saves in place may have put a tag, as they do where a format has a
   tag of its own that they do not write. Other programs don't read it, so that nothing is read from it here;
   but what it says of a field that is edited goes with the edit, and all of it with the last tag. */
[[nodiscard]] std::unique_ptr<TaggedFile> open_before_tag(OpenFormat open, FIOFUNCSTRUCT* file,
                                                          std::uint64_t size, Media media);

} // namespace velmora::portable
