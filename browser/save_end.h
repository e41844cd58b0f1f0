#pragma once

#include "model/portable_save.h"

#include <optional>

namespace velmora {

/** How a save ended, for those who tell the user. */
struct SaveEnd {
    bool saved = false;
    std::optional<PortableSaveResult> portable; ///< nothing: it was saved in place
};

} // namespace velmora
