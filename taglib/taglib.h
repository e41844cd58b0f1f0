#pragma once

/** The tag library: everything that its users need, in one header. */

#include "argument_text.h"
#include "file_info.h"
#include "filetime.h"
#include "fio.h"
#include "guid.h"
#include "id3/descriptor.h"
#include "id3/genres.h"
#include "id3/header_v1.h"
#include "id3/load_file_info.h"
#include "id3/picture.h"
#include "id3/reader.h"
#include "id3/remove_file_info.h"
#include "id3/store_file_info.h"
#include "id3/text.h"
#include "id3/time_text.h"
#include "id3/writer.h"
#include "image_files.h"
#include "path.h"
#include "trace.h"
#include "wide_text.h"
