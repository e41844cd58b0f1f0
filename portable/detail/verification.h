#pragma once

#include "file_transfer.h"
#include "progress.h"
#include "tagged_file.h"

namespace velmora::portable {

/** A file and what it was taken apart into. */
struct OpenTags {
    FIOFUNCSTRUCT* file;
    const TaggedFile& tags;
};

/** Throws the Refusal `would_lose` unless AFTER is BEFORE with EDITS, which are completed, in it: the values
   that were asked for, every other item of every tag as the bytes that it was, and the same media. Large
   media is compared by two threads; PROGRESS is told on this one alone. */
void verify_edits(const OpenTags& before, const OpenTags& after, const TagEdits& edits, Progress& progress);

/** Throws the Refusal `would_lose` unless AFTER has the media of BEFORE and no values. */
void verify_removal(const OpenTags& before, const OpenTags& after, Progress& progress);

/** Throws the Refusal `would_lose` unless the bytes of BEFORE, one range behind the other, are those of
   AFTER. */
void verify_bytes(const std::vector<FileRange>& before, const std::vector<FileRange>& after,
                  Progress& progress);

/** Bytes that either of the first two compares. */
[[nodiscard]] std::uint64_t verified_bytes(const OpenTags& open);

} // namespace velmora::portable
