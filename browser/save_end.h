#pragma once

#include "model/portable_save.h"
#include "model/save_obstacle.h"

#include <optional>

namespace velmora {

/** How a save ended, for those who tell the user. */
struct SaveEnd {
    bool saved = false;
    std::optional<PortableSaveResult> portable; ///< nothing: it was saved in place
    QString path;                               ///< of the file
    SaveObstacle obstacle;                      ///< of one that was not saved
    bool removal = false; ///< not its values were to be written, but all tags to be deleted
};

} // namespace velmora
