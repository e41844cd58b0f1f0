#pragma once

#include "file_transfer.h"
#include "tagged_file.h"

#include "portable/kept_bytes.h"
#include "portable/portable_tags.h"

#include <vector>

/** How a saved file becomes again what it was (docs/portable-tags.md, "How a save is taken back"): what went
   over into the new file is taken from there, and only the rest is kept. */
namespace velmora::portable {

/** Keeps what a file made by REWRITE lacks of the old one, which is open as FILE and SIZE bytes long. Throws
   a Refusal, `not_kept` where there is no room; KEPT then keeps what it did before. */
[[nodiscard]] WayBack keep_way_back(FIOFUNCSTRUCT* file, std::uint64_t size, const Rewrite& rewrite,
                                    KeptBytes& kept);

/** The parts of the old file in their order, in KEPT, open as KEPT_FILE, and in the file made of it, open as
   MADE. Throws a Refusal. */
[[nodiscard]] std::vector<FileRange> parts_of_old_file(const WayBack& way_back, FIOFUNCSTRUCT* kept_file,
                                                       FIOFUNCSTRUCT* made);

} // namespace velmora::portable
