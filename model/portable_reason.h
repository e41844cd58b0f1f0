#pragma once

#include "portable/reason.h"

#include <QString>

namespace velmora {

/** REASON as one sentence of the user's language, without a full stop. */
[[nodiscard]] QString localisedReason(const portable::Reason& reason);

} // namespace velmora
