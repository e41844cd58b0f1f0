#pragma once

#include <QString>

namespace velmora {

/** Why no file could be put at PATH, where ERROR is errno: one sentence of the user's language without a full
   stop. Looks at PATH's folder. */
[[nodiscard]] QString newFileObstacle(int error, const QString& path);

} // namespace velmora
