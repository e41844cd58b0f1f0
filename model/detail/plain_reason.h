#pragma once

#include <QString>

namespace velmora {

/** What it means for the user that a call of the system failed with ERROR, which is errno: one sentence
   without a full stop, of the file that the call was about. The system's own words where there are no
   plainer ones. */
[[nodiscard]] QString plainReason(int error);

} // namespace velmora
