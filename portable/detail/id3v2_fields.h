#pragma once

#include "id3v2_tag.h"
#include "tagged_file.h"

#include "portable/media_kind.h"
#include "portable/tag_values.h"

/** The nine fields in an ID3v2 tag, of whatever version: docs/portable-tags.md says which frames they are. */
namespace velmora::portable {

/** What TAG says. */
[[nodiscard]] TagValues id3v2_values(const Id3v2Tag& tag, Media media);

/** What TAG says once EDITS are in it: a picture that was hidden by the cover shows when that is deleted, and
   a genre that is a number has a name. */
[[nodiscard]] TagValues id3v2_values_with(const Id3v2Tag& tag, const TagEdits& edits, Media media);

/** Every frame of TAG, in its order, with the field that it is a place of. */
[[nodiscard]] std::vector<TagItem> id3v2_items(const Id3v2Tag& tag, Media media);

/** Puts VALUES, which are one text in id3v2_values(), into the frame of FIELD one by one. TAG is of version
   2.4, which parts values by a zero, and says that text already. Nothing is changed where FIELD has no text
   frame of its own, or where a reader would take one of VALUES for the number of a genre. */
void id3v2_part_values(Id3v2Tag& tag, Field field, const std::vector<std::string>& values, Media media);

/** Puts EDITS into TAG. Frames that say already what is asked stay as the bytes that they are. Throws a
   Refusal where TAG is damaged. */
void id3v2_apply(Id3v2Tag& tag, const TagEdits& edits, Media media);

} // namespace velmora::portable
