#pragma once

#include "model/save_obstacle.h"

#include <QString>

namespace velmora {

/** Why FAILED, a save of the file at PATH by the ID3, ASF or AVI module, did not
   succeed. Looks at the file. */
[[nodiscard]] SaveObstacle id3Obstacle(const QString& path, const FailedSave& failed);
[[nodiscard]] SaveObstacle asfObstacle(const QString& path, const FailedSave& failed);
[[nodiscard]] SaveObstacle aviObstacle(const QString& path, const FailedSave& failed);

/** Why a copy could not be made at TARGET, where ERROR is errno: one sentence without a full stop. Looks
   at TARGET's folder. */
[[nodiscard]] QString copyObstacle(int error, const QString& target);

} // namespace velmora
