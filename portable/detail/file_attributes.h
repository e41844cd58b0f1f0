#pragma once

#include "taglib/fio.h"

#include <sys/stat.h>

namespace velmora::portable {

/** Gives TARGET, a file just made, the owner and group of SOURCE where that is allowed, its extended
   attributes, access control lists and mode. STATUS is SOURCE's. Throws a Refusal where something that the
   user could lose can't be set; attributes that only the system itself may set are left to it. */
void copy_attributes(FIOFUNCSTRUCT* source, const struct stat& status, FIOFUNCSTRUCT* target);

} // namespace velmora::portable
