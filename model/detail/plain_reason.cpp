#include "plain_reason.h"

#include "platform/localisation.h"

#include <QtGlobal>

#include <cerrno>

namespace velmora {

QString plainReason(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ESTALE:
        return localised("It is not there any more");
    case EACCES:
    case EPERM:
        return localised("You have no permission for that");
    case EROFS:
        return localised("It lies on a disk that can only be read");
    case ENOSPC:
    case EDQUOT:
        return localised("No space is left on its disk");
    case EFBIG:
        return localised("It would become too large");
    case EISDIR:
        return localised("It is no ordinary file");
    case EBUSY:
    case ETXTBSY:
        return localised("Another program is using it");
    case EIO:
        return localised("Its disk reports a fault");
    case ENAMETOOLONG:
        return localised("Its name is too long");
    default:
        return qt_error_string(error);
    }
}

} // namespace velmora
