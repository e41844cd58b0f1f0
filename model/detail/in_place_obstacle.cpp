#include "in_place_obstacle.h"

#include "plain_reason.h"

#include "model/new_file_obstacle.h"

#include "platform/file_path.h"
#include "platform/localisation.h"
#include "taglib/avi/header_reader.h"

#include <QtEndian>
#include <QtGlobal>

#include <array>
#include <cerrno>
#include <fstream>
#include <optional>
#include <sys/statvfs.h>

namespace velmora {

namespace {

using Remedy = SaveObstacle::Remedy;

/** A Windows Media header moves the media behind it in pieces of this size, and none that is smaller. */
constexpr quint64 smallestMove = 65536;
/** Less room than this on a disk is none: a tag may take more. */
constexpr quint64 hardlyAnyRoom = 65536;

/** The first bytes of a file; zeros where it has none. */
std::array<char, 24> beginningOf(const QString& path) {
    std::array<char, 24> bytes{};
    std::ifstream(pathBytes(path).constData(), std::ios::binary).read(bytes.data(), bytes.size());
    return bytes;
}

bool isDiskFull(const QString& path) {
    struct statvfs disk {};
    return ::statvfs(pathBytes(path).constData(), &disk) == 0 &&
           quint64{disk.f_bavail} * disk.f_frsize < hardlyAnyRoom;
}

/** What the system refused, where ERROR is one that only a refusal leaves behind. */
std::optional<SaveObstacle> refusal(int error) {
    switch (error) {
    case EACCES:
    case EPERM:
        return SaveObstacle{localised("You have no permission to write to it"), Remedy::AnotherPlace};
    case EROFS:
    case ENOSPC:
    case EDQUOT:
    case ETXTBSY:
    case EISDIR:
        return SaveObstacle{plainReason(error), Remedy::AnotherPlace};
    case EFBIG:
        return SaveObstacle{plainReason(error), Remedy::PortableTags};
    default:
        return std::nullopt;
    }
}

/** What holds for every kind of file. */
std::optional<SaveObstacle> generalObstacle(const QString& path, const FailedSave& failed) {
    if (!failed.size) {
        return SaveObstacle{localised("It is not there any more"), Remedy::None};
    }
    if (isPipeOrDevice(path)) {
        return SaveObstacle{localised("It is no ordinary file"), Remedy::None};
    }
    if (failed.size == 0) {
        return SaveObstacle{localised("It is empty"), Remedy::None};
    }
    return refusal(failed.error);
}

SaveObstacle unreadableHeader() {
    return {localised("Its header can't be read"), Remedy::PortableTags};
}

SaveObstacle otherObstacle(const QString& path, int error) {
    if (isDiskFull(path)) { // a write that only part of had room leaves no error behind
        return {localised("No space is left on its disk"), Remedy::AnotherPlace};
    }
    const QString reason = localised("Its tag can't be written");
    return {error == 0 ? reason : reason + QStringLiteral(": ") + qt_error_string(error),
            Remedy::PortableTags};
}

} // namespace

SaveObstacle id3Obstacle(const QString& path, const FailedSave& failed) {
    if (const auto obstacle = generalObstacle(path, failed)) {
        return *obstacle;
    }
    if (QByteArrayView(beginningOf(path)).startsWith("ID3")) {
        return {localised("Its tag can't be changed in place"), Remedy::PortableTags};
    }
    return otherObstacle(path, failed.error);
}

SaveObstacle asfObstacle(const QString& path, const FailedSave& failed) {
    if (const auto obstacle = generalObstacle(path, failed)) {
        return *obstacle;
    }
    if (failed.error == EIO) {
        return unreadableHeader();
    }
    // Behind the header object's GUID.
    const auto header = qFromLittleEndian<quint64>(beginningOf(path).data() + 16);
    if (header <= *failed.size && *failed.size - header < smallestMove) {
        return {localised("Too little media lies behind its header for the header to grow or shrink"),
                Remedy::PortableTags};
    }
    return otherObstacle(path, failed.error);
}

SaveObstacle aviObstacle(const QString& path, const FailedSave& failed) {
    if (const auto obstacle = generalObstacle(path, failed)) {
        return *obstacle;
    }
    switch (failed.error) {
    case avi_error_unreadable:
        return unreadableHeader();
    case avi_error_several_riffs:
        return {localised("It consists of several RIFF chunks, which a save in place can't change"),
                Remedy::PortableTags};
    default:
        return otherObstacle(path, failed.error);
    }
}

QString copyObstacle(int error, const QString& target) {
    switch (error) {
    case ECANCELED:
        return localised("The save was cancelled");
    case EEXIST:
        return localised("A copy needs another name or another folder");
    case ENOENT:
    case ENOTDIR:
        if (fileExists(pathFolder(target))) {
            return localised("What was to be copied is not there any more");
        }
        break;
    default:
        break;
    }
    return newFileObstacle(error, target);
}

} // namespace velmora
