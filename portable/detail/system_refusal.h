#pragma once

#include "portable/reason.h"

#include <cerrno>
#include <string>

namespace velmora::portable {

/** The Refusal for a call of the system that failed with errno, while it did WHAT (UTF-8, may be empty). */
[[nodiscard]] inline Refusal system_refusal(std::string what = {}) {
    const bool no_space = errno == ENOSPC || errno == EDQUOT;
    return Refusal({no_space ? ReasonCode::no_space : ReasonCode::system, errno, std::move(what)});
}

/** Makes CALL until it is not interrupted. Returns what it returned, with its errno. */
template <typename Call>
[[nodiscard]] auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

} // namespace velmora::portable
