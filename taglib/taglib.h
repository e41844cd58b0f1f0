#pragma once

/** The tag library: everything that its users need, in one header. */

#include "argument_text.h"
#include "file_info.h"
#include "filetime.h"
#include "fio.h"
#include "guid.h"
#include "image_files.h"
#include "path.h"
#include "trace.h"
#include "wide_text.h"
