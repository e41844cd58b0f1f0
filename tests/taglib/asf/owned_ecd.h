#pragma once

#include "taglib/asf/ext_content_description.h"

#include <memory>

namespace velmora::test {

struct FreeEcd {
    void operator()(_asf_ext_content_description_t* ecd) const { asf_free_ext_content_description(ecd); }
};

/** An extended content description that a test owns. */
using Ecd = std::unique_ptr<_asf_ext_content_description_t, FreeEcd>;

} // namespace velmora::test
