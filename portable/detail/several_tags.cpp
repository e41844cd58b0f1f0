#include "several_tags.h"

#include <algorithm>

namespace velmora::portable {

TagValues filled(TagValues values, const TagValues& more) {
    for (std::size_t i = 0; i < text_field_count; ++i) {
        values.texts[i] = values.texts[i] ? values.texts[i] : more.texts[i];
    }
    values.year = values.year ? values.year : more.year;
    if (!values.cover) {
        values.cover = more.cover;
    }
    return values;
}

void set_missing(TagEdits& edits, const TagValues& values) {
    for (std::size_t i = 0; i < text_field_count; ++i) {
        if (edits.texts[i].leaves_alone() && values.texts[i]) {
            edits.texts[i] = Edit<std::string>::set(*values.texts[i]);
        }
    }
    if (edits.year.leaves_alone() && values.year) {
        edits.year = Edit<int>::set(*values.year);
    }
    if (edits.cover.leaves_alone() && values.cover) {
        edits.cover = Edit<Cover>::set(*values.cover);
    }
}

bool sets_anything(const TagEdits& edits) {
    return edits.year.sets() || edits.cover.sets() ||
           std::any_of(edits.texts.begin(), edits.texts.end(), [](const auto& edit) { return edit.sets(); });
}

} // namespace velmora::portable
