#include "new_file_obstacle.h"

#include "detail/plain_reason.h"

#include "platform/file_path.h"
#include "platform/localisation.h"

#include <cerrno>
#include <unistd.h>

namespace velmora {

QString newFileObstacle(int error, const QString& path) {
    const QString folder = pathFolder(path);
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return fileExists(folder) ? plainReason(error) : localised("Its folder is not there");
    case EACCES:
    case EPERM:
        return ::access(pathBytes(folder).constData(), W_OK | X_OK) == 0
                   ? plainReason(error)
                   : localised("You have no permission to put a new file into its folder");
    default:
        return plainReason(error);
    }
}

} // namespace velmora
