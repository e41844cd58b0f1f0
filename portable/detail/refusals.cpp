#include "refusals.h"

#include "portable/reason.h"

namespace velmora::portable {

void refuse_damaged(std::string detail) {
    throw Refusal({ReasonCode::damaged, 0, std::move(detail)});
}

void refuse_unsupported(std::string detail) {
    throw Refusal({ReasonCode::unsupported, 0, std::move(detail)});
}

void refuse_too_large(std::string detail) {
    throw Refusal({ReasonCode::too_large, 0, std::move(detail)});
}

} // namespace velmora::portable
