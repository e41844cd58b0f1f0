#include "filter_text.h"

#include "folded_text.h"

#include <algorithm>
#include <limits>

namespace velmora {

MissingBits missingIn(const portable::ReadOutcome& read) {
    if (read.failure || !read.kind) {
        return 0;
    }
    using portable::Field;
    MissingBits missing = read.tags.empty() ? missingTag : MissingBits{0};
    for (std::size_t index = 0; index < portable::field_count; ++index) {
        const auto field = static_cast<Field>(index);
        const bool there = field == Field::year    ? read.values.year.has_value()
                           : field == Field::cover ? read.values.cover.has_value()
                                                   : read.values.text(field).has_value();
        if (!there && portable::has_field(read.kind->media, field)) {
            missing = static_cast<MissingBits>(missing | missingBit(field));
        }
    }
    return missing;
}

FilterText::FilterText(const RowTexts& texts, int year, MissingBits missing)
    : year_(static_cast<std::int16_t>(std::clamp<int>(year, 0, std::numeric_limits<std::int16_t>::max()))),
      missing_(missing) {
    for (const QString& text : texts) {
        folded_ += foldedText(text);
        folded_ += '\n';
    }
    folded_.shrink_to_fit();
}

} // namespace velmora
