#include "tag_values.h"

#include <algorithm>

namespace velmora::portable {

bool has_field(Media media, Field field) {
    switch (field) {
    case Field::album:
        return media != Media::video;
    case Field::director:
    case Field::rating:
        return media == Media::video;
    default:
        return true;
    }
}

bool TagEdits::asks_for(Field field) const {
    switch (field) {
    case Field::year:
        return !year.leaves_alone();
    case Field::cover:
        return !cover.leaves_alone();
    default:
        return !text(field).leaves_alone();
    }
}

bool TagEdits::sets(Field field) const {
    switch (field) {
    case Field::year:
        return year.sets();
    case Field::cover:
        return cover.sets();
    default:
        return text(field).sets();
    }
}

bool TagEdits::empty() const {
    return year.leaves_alone() && cover.leaves_alone() &&
           std::all_of(texts.begin(), texts.end(), [](const auto& edit) { return edit.leaves_alone(); });
}

TagValues TagEdits::applied_to(const TagValues& old) const {
    TagValues values;
    for (std::size_t field = 0; field < text_field_count; ++field) {
        values.texts[field] = texts[field].applied_to(old.texts[field]);
    }
    values.year = year.applied_to(old.year);
    values.cover = cover.applied_to(old.cover);
    return values;
}

} // namespace velmora::portable
