#include "portable_reason.h"

#include "detail/plain_reason.h"

#include "platform/localisation.h"

#include <QtGlobal>

namespace velmora {

namespace {

using portable::ReasonCode;

QString wording(const portable::Reason& reason) {
    switch (reason.code) {
    case ReasonCode::system:
        return plainReason(reason.error);
    case ReasonCode::file_refused:
        return localised("You have no permission to write to it");
    case ReasonCode::folder_refused:
        return localised("You have no permission to put a new file into its folder");
    case ReasonCode::unknown_kind:
        return localised("Files of this kind carry no tag");
    case ReasonCode::foreign_field:
        return localised("Files of this kind have no such field");
    case ReasonCode::damaged:
        return localised("The file is damaged");
    case ReasonCode::unsupported:
        return localised("The file is of a sort that can't be saved safely");
    case ReasonCode::too_large:
        return localised("Something is too large for this kind of file");
    case ReasonCode::not_regular:
        return localised("It is no ordinary file");
    case ReasonCode::not_writable:
        return localised("The file is write-protected");
    case ReasonCode::more_links:
        return localised("The file has further hard links, which would keep the old contents");
    case ReasonCode::changed_meanwhile:
        return localised("Another program changed the file meanwhile");
    case ReasonCode::no_space:
        return localised("No space is left for the new file");
    case ReasonCode::would_lose:
        return localised("The new file would have lost something");
    case ReasonCode::folder_not_synced:
        return localised("The system could not confirm that the folder is on the disk");
    case ReasonCode::cancelled:
        return localised("The save was cancelled");
    case ReasonCode::not_kept:
        return localised("The file's old contents can't be kept for an undo: %@",
                         qt_error_string(reason.error));
    }
    return {};
}

} // namespace

QString localisedReason(const portable::Reason& reason) {
    const QString text = wording(reason);
    // Which field a message speaks of is said in the format's own terms, in every language.
    const bool speaksOfField = reason.code != ReasonCode::system &&
                               reason.code != ReasonCode::folder_refused && !reason.detail.empty();
    return !speaksOfField
               ? text
               : text + QStringLiteral(" (") + QString::fromStdString(reason.detail) + QLatin1Char(')');
}

} // namespace velmora
