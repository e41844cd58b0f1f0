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

/** For one that nobody will edit: a record whose strings lie in its own block. Memory for it is asked for
    only when it is known how long they are. */
_asf_content_description_t* asf_read_fixed_content_description_at(FIOFUNCSTRUCT* file, std::int64_t start);

/** Whether descriptors become records or stay as they lie in the file. */
enum class AsfDescriptorForm { records, packed };

/** FILE_END: where the file ends. */
_asf_ext_content_description_t* asf_read_ext_content_description_at(FIOFUNCSTRUCT* file, std::int64_t start,
                                                                    std::int64_t file_end,
                                                                    AsfDescriptorForm form,
                                                                    _asf_ext_content_description_t* ecd);

} // namespace velmora
