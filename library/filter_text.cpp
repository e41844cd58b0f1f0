#include "filter_text.h"

#include "detail/folded_text.h"

#include <algorithm>
#include <limits>

namespace velmora {

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
