#include "reason.h"

#include <cstring>

namespace velmora::portable {

namespace {

std::string with_detail(const char* text, const std::string& detail) {
    return detail.empty() ? text : std::string(text) + " (" + detail + ")";
}

} // namespace

std::string sentence(const Reason& reason) {
    switch (reason.code) {
    case ReasonCode::system:
    case ReasonCode::file_refused:
    case ReasonCode::folder_refused:
        return with_detail(std::strerror(reason.error), reason.detail);
    case ReasonCode::unknown_kind:
        return "not a kind of file that carries a tag";
    case ReasonCode::foreign_field:
        return "this kind of file has no such field (" + reason.detail + ")";
    case ReasonCode::damaged:
        return with_detail("the file is damaged", reason.detail);
    case ReasonCode::unsupported:
        return with_detail("the file is of a sort that can't be saved safely", reason.detail);
    case ReasonCode::too_large:
        return with_detail("too large for this kind of file", reason.detail);
    case ReasonCode::not_regular:
        return "not a regular file";
    case ReasonCode::not_writable:
        return "the file is write-protected";
    case ReasonCode::more_links:
        return "the file has further hard links, which would keep the old contents";
    case ReasonCode::changed_meanwhile:
        return "another program changed the file meanwhile";
    case ReasonCode::no_space:
        return with_detail("no space is left for the new file", reason.detail);
    case ReasonCode::would_lose:
        return with_detail("the new file would have lost something", reason.detail);
    case ReasonCode::folder_not_synced:
        return "saved, but the system could not confirm that the folder is on the disk";
    case ReasonCode::cancelled:
        return "cancelled";
    case ReasonCode::not_kept:
        return with_detail("what the file was can't be kept for an undo", std::strerror(reason.error));
    }
    return {};
}

} // namespace velmora::portable
