#pragma once

#include "model/portable_save.h"

namespace velmora {

/** A save that takes every tag of the file at PATH away, those included that are not shown. BREAK_LINKS: also
   where the file has further hard links. */
[[nodiscard]] PortableSave portableRemoval(const QString& path, bool breakLinks);

} // namespace velmora
