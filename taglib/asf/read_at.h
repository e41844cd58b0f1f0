#pragma once

#include "content_description.h"
#include "ext_content_description.h"

/** The readers of objects for callers that know where the file is: they do without asking for its position.
   Each starts at START, which is the file's position, and is otherwise the public function of its name. */
namespace velmora {

_asf_object_t* asf_read_object_at(FIOFUNCSTRUCT* file, std::int64_t start, _asf_object_t* object);

_asf_object_t* asf_read_padding_object_at(FIOFUNCSTRUCT* file, std::int64_t start, _asf_object_t* object);

_asf_content_description_t* asf_read_content_description_at(FIOFUNCSTRUCT* file, std::int64_t start,
                                                            _asf_content_description_t* cd);

/** FILE_END: where the file ends. */
_asf_ext_content_description_t* asf_read_ext_content_description_at(FIOFUNCSTRUCT* file, std::int64_t start,
                                                                    std::int64_t file_end,
                                                                    _asf_ext_content_description_t* ecd);

} // namespace velmora
