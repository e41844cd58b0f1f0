#include "portable_result.h"

#include "model/portable_reason.h"

namespace velmora {

namespace {

/** Whether it was the file's folder or disk that refused. */
bool isOfItsPlace(const portable::Reason& reason) {
    using Code = portable::ReasonCode;
    return reason.code == Code::system || reason.code == Code::not_writable ||
           reason.code == Code::file_refused || reason.code == Code::folder_refused ||
           reason.code == Code::no_space;
}

} // namespace

PortableSaveResult resultOf(const portable::SaveOutcome& outcome) {
    using End = PortableSaveResult::End;
    PortableSaveResult result;
    result.othersReadIt = outcome.others_read_it;
    if (outcome.warning) {
        result.warning = localisedReason(*outcome.warning);
    }
    switch (outcome.result) {
    case portable::SaveResult::saved:
        result.end = End::Saved;
        return result;
    case portable::SaveResult::unchanged:
        result.end = End::Unchanged;
        return result;
    case portable::SaveResult::failed:
        break;
    }
    const portable::Reason reason = outcome.failure.value_or(portable::Reason());
    result.reason = localisedReason(reason);
    result.anotherPlaceHelps = isOfItsPlace(reason);
    if (reason.code == portable::ReasonCode::more_links) {
        result.end = End::MoreLinks;
    } else if (reason.code == portable::ReasonCode::cancelled) {
        result.end = End::Cancelled;
    }
    return result;
}

} // namespace velmora
