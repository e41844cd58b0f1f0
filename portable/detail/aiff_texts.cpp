#include "aiff_texts.h"

#include "checked_read.h"
#include "riff_info.h"

#include <algorithm>

namespace velmora::portable {

std::optional<Field> AiffTexts::field_of(std::uint32_t fourcc) {
    switch (fourcc) {
    case make_fourcc("NAME"):
        return Field::title;
    case make_fourcc("AUTH"):
        return Field::artist;
    case make_fourcc("ANNO"):
        return Field::synopsis;
    default:
        return std::nullopt;
    }
}

void AiffTexts::read(const ReadCursor& cursor, const Chunk& chunk) {
    if (const std::optional<Field> field = field_of(chunk.fourcc)) {
        texts_.push_back({chunk, *field, read_range(cursor, chunk.data(), "a text")});
    }
}

TagValues AiffTexts::values() const {
    TagValues values;
    for (const Text& text : texts_) {
        std::string shown = info_text(text.data);
        if (!shown.empty() && !values.text(text.field)) {
            values.text(text.field) = std::move(shown);
        }
    }
    return values;
}

std::vector<TagItem> AiffTexts::items() const {
    std::vector<TagItem> items;
    for (const Text& text : texts_) {
        items.push_back({"AIFF " + fourcc_name(text.chunk.fourcc), text.data, text.field});
    }
    return items;
}

std::vector<AiffTexts::Change> AiffTexts::with(const TagEdits& edits) const {
    std::vector<Change> changes;
    std::vector<Field> put;
    for (const Text& text : texts_) {
        if (!edits.asks_for(text.field)) {
            continue;
        }
        Bytes bytes;
        if (edits.sets(text.field) && std::find(put.begin(), put.end(), text.field) == put.end()) {
            append(bytes, *edits.text(text.field).value());
            bytes = make_chunk(text.chunk.fourcc, bytes, std::endian::big);
            put.push_back(text.field);
        }
        changes.push_back({text.chunk, std::move(bytes)});
    }
    return changes;
}

} // namespace velmora::portable
