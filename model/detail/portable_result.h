#pragma once

#include "model/portable_save.h"
#include "portable/portable_tags.h"

namespace velmora {

/** How a save of portable tags ended, in the user's language. */
[[nodiscard]] PortableSaveResult resultOf(const portable::SaveOutcome& outcome);

} // namespace velmora
