#include "save_edits.h"

#include "text.h"

#include "portable/reason.h"

namespace velmora::portable {

namespace {

constexpr int largest_year = 9999;

const char* name_of(Field field, Media media) {
    switch (field) {
    case Field::album:
        return "album";
    case Field::director:
        return "director";
    case Field::rating:
        return "rating";
    default:
        return media == Media::video ? "artist" : "cast";
    }
}

Edit<std::string> valid_text(const Edit<std::string>& edit) {
    if (!edit.sets()) {
        return edit;
    }
    std::string text = valid_utf8(*edit.value());
    return text.empty() ? Edit<std::string>::remove() : Edit<std::string>::set(std::move(text));
}

} // namespace

TagEdits valid_edits(const TagEdits& edits, Media media) {
    TagEdits valid = edits;
    for (std::size_t i = 0; i < field_count; ++i) {
        const auto field = static_cast<Field>(i);
        if (edits.asks_for(field) && !has_field(media, field)) {
            throw Refusal({ReasonCode::foreign_field, 0, name_of(field, media)});
        }
    }
    for (auto& text : valid.texts) {
        text = valid_text(text);
    }
    if (valid.year.sets() && *valid.year.value() == 0) {
        valid.year = Edit<int>::remove();
    }
    if (valid.year.sets() && (*valid.year.value() < 0 || *valid.year.value() > largest_year)) {
        throw Refusal({ReasonCode::too_large, 0, "year"});
    }
    if (valid.cover.sets() && valid.cover.value()->bytes.empty()) {
        valid.cover = Edit<Cover>::remove();
    }
    return valid;
}

} // namespace velmora::portable
