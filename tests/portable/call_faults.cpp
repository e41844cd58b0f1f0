#include "call_faults.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora::test {

namespace {

CallFaults* watching = nullptr;

[[noreturn]] void die() {
    ::kill(::getpid(), SIGKILL);
    for (;;) {
        ::pause();
    }
}

/** Makes CALL, which takes the bytes that it may move, unless a fault is in its way: then FAILED is
   returned. */
template <typename Call, typename Result>
Result watched(const char* name, std::size_t length, Result failed, Call call,
               std::optional<int> written = std::nullopt) {
    if (!watching) {
        return call(length);
    }
    const CallFault* const fault = watching->next(name, length, written);
    if (!fault) {
        return call(length);
    }
    switch (fault->kind) {
    case CallFault::Kind::error:
        errno = fault->error;
        return failed;
    case CallFault::Kind::short_count:
        return call(std::min(length, fault->most));
    case CallFault::Kind::kill_before:
        die();
    case CallFault::Kind::kill_after:
        static_cast<void>(call(length));
        die();
    }
    return failed;
}

bool makes_file(int flags) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

mode_t mode_of(int flags, va_list arguments) {
    return makes_file(flags) ? va_arg(arguments, mode_t) : 0;
}

std::optional<int> written_by_open(int flags) {
    return makes_file(flags) ? std::optional(-1) : std::nullopt;
}

} // namespace

CallFaults::CallFaults() {
    watching = this;
}

CallFaults::~CallFaults() {
    watching = nullptr;
}

CallFaults* CallFaults::current() {
    return watching;
}

void CallFaults::set(std::size_t nth, const CallFault& fault) {
    nth_ = records_.size() + nth;
    fault_ = fault;
}

void CallFaults::fill_disk(std::size_t nth, int except) {
    full_from_ = records_.size() + nth;
    not_full_ = except;
}

const CallFault* CallFaults::next(const char* name, std::size_t length, std::optional<int> written) {
    static constexpr CallFault no_space{CallFault::Kind::error, ENOSPC};
    records_.push_back({name, length});
    if (full_from_ != 0 && records_.size() >= full_from_ && written &&
        (*written < 0 || *written != not_full_)) {
        return &no_space;
    }
    return records_.size() == nth_ ? &fault_ : nullptr;
}

} // namespace velmora::test

using velmora::test::CallFaults;
using velmora::test::watched;

// The linker's --wrap=NAME leads each call of NAME to __wrap_NAME and gives the system's own as __real_NAME.
// NOLINTBEGIN(bugprone-reserved-identifier)
// WRAP declares the real call and defines the one that takes its place, for calls that move no bytes.
#define WRAP(result, failed, name, parameters, arguments)                                                    \
    extern "C" result __real_##name parameters;                                                              \
    extern "C" result __wrap_##name parameters {                                                             \
        return watched(#name, 0, static_cast<result>(failed),                                                \
                       [&](std::size_t) { return __real_##name arguments; });                                \
    }
// For those that move LENGTH bytes, which a fault may make fewer, WRITTEN as CallFaults::next() has it.
#define WRAP_TRANSFER(name, written, parameters, arguments)                                                  \
    extern "C" ssize_t __real_##name parameters;                                                             \
    extern "C" ssize_t __wrap_##name parameters {                                                            \
        return watched(                                                                                      \
            #name, length, ssize_t{-1}, [&](std::size_t most) { return __real_##name arguments; }, written); \
    }

WRAP(int, -1, close, (int file), (file))
WRAP(off_t, -1, lseek, (int file, off_t offset, int whence), (file, offset, whence))
WRAP(int, -1, fstat, (int file, struct stat* status), (file, status))
WRAP(int, -1, fstatat, (int folder, const char* name, struct stat* status, int flags),
     (folder, name, status, flags))
WRAP(char*, nullptr, realpath, (const char* path, char* buffer), (path, buffer))
// The disk is not waited for: what it holds after a loss of power no test sees.
extern "C" int __wrap_fsync(int) {
    return watched("fsync", 0, -1, [](std::size_t) { return 0; });
}
extern "C" int __wrap_sync_file_range(int, off64_t, off64_t, unsigned) {
    return watched("sync_file_range", 0, -1, [](std::size_t) { return 0; });
}
WRAP(int, -1, unlinkat, (int folder, const char* name, int flags), (folder, name, flags))
WRAP(int, -1, renameat2, (int from_folder, const char* from, int to_folder, const char* to, unsigned flags),
     (from_folder, from, to_folder, to, flags))
WRAP(int, -1, fchmod, (int file, mode_t mode), (file, mode))
WRAP(int, -1, fchown, (int file, uid_t owner, gid_t group), (file, owner, group))
WRAP(ssize_t, -1, flistxattr, (int file, char* names, size_t size), (file, names, size))
WRAP(ssize_t, -1, fgetxattr, (int file, const char* name, void* value, size_t size),
     (file, name, value, size))
WRAP(int, -1, fremovexattr, (int file, const char* name), (file, name))
WRAP(int, -1, flock, (int file, int operation), (file, operation))
WRAP(int, -1, faccessat, (int folder, const char* name, int mode, int flags), (folder, name, mode, flags))
WRAP(int, -1, access, (const char* path, int mode), (path, mode))
WRAP(DIR*, nullptr, fdopendir, (int file), (file))
WRAP(struct dirent*, nullptr, readdir, (DIR * listing), (listing))
WRAP(int, -1, closedir, (DIR * listing), (listing))
WRAP_TRANSFER(read, std::nullopt, (int file, void* bytes, size_t length), (file, bytes, most))
WRAP_TRANSFER(write, file, (int file, const void* bytes, size_t length), (file, bytes, most))
WRAP_TRANSFER(pread, std::nullopt, (int file, void* bytes, size_t length, off_t offset),
              (file, bytes, most, offset))
WRAP_TRANSFER(pwrite, file, (int file, const void* bytes, size_t length, off_t offset),
              (file, bytes, most, offset))

extern "C" int __real_linkat(int from_folder, const char* from, int to_folder, const char* to, int flags);
extern "C" int __wrap_linkat(int from_folder, const char* from, int to_folder, const char* to, int flags) {
    return watched(
        "linkat", 0, -1, [&](std::size_t) { return __real_linkat(from_folder, from, to_folder, to, flags); },
        -1);
}

extern "C" int __real_fsetxattr(int file, const char* name, const void* value, size_t size, int flags);
extern "C" int __wrap_fsetxattr(int file, const char* name, const void* value, size_t size, int flags) {
    return watched(
        "fsetxattr", 0, -1, [&](std::size_t) { return __real_fsetxattr(file, name, value, size, flags); },
        file);
}

extern "C" ssize_t __real_copy_file_range(int from, off64_t* source, int to, off64_t* target, size_t length,
                                          unsigned flags);
extern "C" ssize_t __wrap_copy_file_range(int from, off64_t* source, int to, off64_t* target, size_t length,
                                          unsigned flags) {
    return watched(
        "copy_file_range", length, ssize_t{-1},
        [&](std::size_t most) -> ssize_t {
            if (CallFaults::current() && CallFaults::current()->copying_refused()) {
                errno = EXDEV;
                return -1;
            }
            return __real_copy_file_range(from, source, to, target, most, flags);
        },
        to);
}

extern "C" int __real_openat(int folder, const char* name, int flags, ...);
extern "C" int __wrap_openat(int folder, const char* name, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = velmora::test::mode_of(flags, arguments);
    va_end(arguments);
    return watched(
        "openat", 0, -1,
        [&](std::size_t) {
            const bool unnamed = (flags & O_TMPFILE) == O_TMPFILE;
            if (unnamed && CallFaults::current() && CallFaults::current()->unnamed_files_refused()) {
                errno = EOPNOTSUPP;
                return -1;
            }
            return __real_openat(folder, name, flags, mode);
        },
        velmora::test::written_by_open(flags));
}

extern "C" int __real_open(const char* path, int flags, ...);
extern "C" int __wrap_open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = velmora::test::mode_of(flags, arguments);
    va_end(arguments);
    return watched(
        "open", 0, -1, [&](std::size_t) { return __real_open(path, flags, mode); },
        velmora::test::written_by_open(flags));
}
// NOLINTEND(bugprone-reserved-identifier)
