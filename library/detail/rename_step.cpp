#include "rename_step.h"

#include "file_name.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {

namespace {

/** Whether ERROR says that the file system does not know a call, or not that way. */
bool isUnknownCall(int error) {
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
}

bool isNoLinks(int error) {
    return error == EPERM || error == EMLINK || isUnknownCall(error);
}

/** By a second name, which is made and never replaces, and the end of the first. */
int renameByLink(const char* from, const char* to) {
    if (::linkat(AT_FDCWD, from, AT_FDCWD, to, 0) != 0) {
        return errno;
    }
    if (::unlinkat(AT_FDCWD, from, 0) != 0) {
        const int error = errno;
        ::unlinkat(AT_FDCWD, to, 0);
        return error;
    }
    return 0;
}

/** By an empty file that takes the name, so that nothing but it is replaced. */
int renameOverPlaceholder(const char* from, const char* to) {
    const int placeholder = ::openat(AT_FDCWD, to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (placeholder < 0) {
        return errno;
    }
    ::close(placeholder);
    if (::renameat(AT_FDCWD, from, AT_FDCWD, to) != 0) {
        const int error = errno;
        struct stat status {};
        if (::fstatat(AT_FDCWD, to, &status, AT_SYMLINK_NOFOLLOW) == 0 && status.st_size == 0) {
            ::unlinkat(AT_FDCWD, to, 0);
        }
        return error;
    }
    return 0;
}

int renameToFreeName(const QByteArray& from, const QByteArray& to) {
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (!isUnknownCall(errno)) {
        return errno;
    }
    const int error = renameByLink(from.constData(), to.constData());
    return isNoLinks(error) ? renameOverPlaceholder(from.constData(), to.constData()) : error;
}

/** Whether both names are one entry of the folder: the same file, which has no further links. */
bool areOneEntry(const QByteArray& one, const QByteArray& other) {
    struct stat first {};
    struct stat second {};
    return ::fstatat(AT_FDCWD, one.constData(), &first, AT_SYMLINK_NOFOLLOW) == 0 &&
           ::fstatat(AT_FDCWD, other.constData(), &second, AT_SYMLINK_NOFOLLOW) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino && first.st_nlink == 1;
}

} // namespace

int renameWithoutReplacing(const QByteArray& from, const QByteArray& to) {
    const int error = renameToFreeName(from, to);
    if (error != EEXIST || !areOneEntry(from, to)) {
        return error;
    }
    const QByteArray between = unusedNameBeside(from);
    if (const int first = renameToFreeName(from, between)) {
        return first;
    }
    const int second = renameToFreeName(between, to);
    if (second != 0) {
        static_cast<void>(renameToFreeName(between, from));
    }
    return second;
}

int exchangeNames(const QByteArray& one, const QByteArray& other) {
    return ::renameat2(AT_FDCWD, one.constData(), AT_FDCWD, other.constData(), RENAME_EXCHANGE) == 0 ? 0
                                                                                                     : errno;
}

QByteArray unusedNameBeside(const QByteArray& path) {
    const QByteArray folder = path.left(path.lastIndexOf('/') + 1);
    const QByteArray extension = extensionOf(path);
    const QByteArray stem = path.mid(folder.size(), path.size() - folder.size() - extension.size());
    for (int number = 1;; ++number) {
        const QByteArray mark = ".renaming" + QByteArray::number(number) + extension;
        QByteArray name = folder + stem.left(longestFileName - mark.size()) + mark;
        struct stat status {};
        if (::fstatat(AT_FDCWD, name.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
            return name;
        }
    }
}

} // namespace velmora
