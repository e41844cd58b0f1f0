#include "system_call_faults.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// The linker's --wrap=NAME leads each call of NAME to __wrap_NAME and gives the system's own as __real_NAME.
// The second names are those that large-file and fortified builds call.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
int __real_open(const char* path, int flags, ...);
int __real_close(int descriptor);
ssize_t __real_read(int descriptor, void* buffer, size_t length);
ssize_t __real_write(int descriptor, const void* buffer, size_t length);
off_t __real_lseek(int descriptor, off_t offset, int whence);
int __real_stat(const char* path, struct stat* status);
int __real_fsync(int descriptor);
int __real_unlink(const char* path);
int __real_rename(const char* from, const char* to);
char* __real_mktemp(char* name);
}

namespace {

using velmora::test::SystemCall;
using velmora::test::SystemCallFaults;
using velmora::test::SystemCallRecord;

/** Makes the call through REAL, or FAILED in its place, and records it. */
template <typename Real, typename Failed>
auto watch(SystemCallFaults& faults, SystemCallRecord record, Real real, Failed failed) {
    const SystemCallFaults::Fate fate = faults.fate_of_next(record.call, record.position, record.requested);
    auto result = failed;
    if (fate.error == 0) {
        result = real(fate.limit);
    } else {
        errno = fate.error;
    }
    const int error = errno;
    record.result = static_cast<std::int64_t>(result);
    record.error = record.result < 0 ? error : 0;
    faults.record(record);
    errno = error;
    return result;
}

SystemCallRecord record_of_path(SystemCall call, const char* path) {
    SystemCallRecord record;
    record.call = call;
    record.path = path ? path : "";
    return record;
}

SystemCallRecord record_of_descriptor(const SystemCallFaults& faults, SystemCall call, int descriptor) {
    SystemCallRecord record;
    record.call = call;
    record.path = faults.path_of(descriptor);
    record.descriptor = descriptor;
    return record;
}

SystemCallRecord record_of_transfer(const SystemCallFaults& faults, SystemCall call, int descriptor,
                                    size_t length) {
    const int error = errno;
    SystemCallRecord record = record_of_descriptor(faults, call, descriptor);
    record.position = __real_lseek(descriptor, 0, SEEK_CUR);
    record.requested = static_cast<std::int64_t>(length);
    errno = error;
    return record;
}

int watched_open(const char* path, int flags, mode_t mode) {
    SystemCallFaults* const faults = SystemCallFaults::of_this_thread();
    if (!faults) {
        return __real_open(path, flags, mode);
    }
    SystemCallRecord record = record_of_path(SystemCall::open, path);
    record.requested = flags;
    return watch(
        *faults, record, [=](size_t) { return __real_open(path, flags, mode); }, -1);
}

ssize_t watched_read(int descriptor, void* buffer, size_t length) {
    SystemCallFaults* const faults = SystemCallFaults::of_this_thread();
    if (!faults) {
        return __real_read(descriptor, buffer, length);
    }
    return watch(
        *faults, record_of_transfer(*faults, SystemCall::read, descriptor, length),
        [=](size_t limit) { return __real_read(descriptor, buffer, std::min(length, limit)); }, ssize_t{-1});
}

off_t watched_lseek(int descriptor, off_t offset, int whence) {
    SystemCallFaults* const faults = SystemCallFaults::of_this_thread();
    if (!faults) {
        return __real_lseek(descriptor, offset, whence);
    }
    SystemCallRecord record = record_of_descriptor(*faults, SystemCall::lseek, descriptor);
    record.requested = offset;
    return watch(
        *faults, record, [=](size_t) { return __real_lseek(descriptor, offset, whence); }, off_t{-1});
}

int watched_stat(const char* path, struct stat* status) {
    SystemCallFaults* const faults = SystemCallFaults::of_this_thread();
    if (!faults) {
        return __real_stat(path, status);
    }
    return watch(
        *faults, record_of_path(SystemCall::stat, path), [=](size_t) { return __real_stat(path, status); },
        -1);
}

/** The mode of an open call, which is passed only where a file may be made. */
mode_t mode_of(int flags, va_list arguments) {
    const bool given = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    return given ? va_arg(arguments, mode_t) : 0;
}

} // namespace

extern "C" {

int __wrap_open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = mode_of(flags, arguments);
    va_end(arguments);
    return watched_open(path, flags, mode);
}

int __wrap_open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = mode_of(flags, arguments);
    va_end(arguments);
    return watched_open(path, flags | O_LARGEFILE, mode);
}

int __wrap___open_2(const char* path, int flags) {
    return watched_open(path, flags, 0);
}

int __wrap___open64_2(const char* path, int flags) {
    return watched_open(path, flags | O_LARGEFILE, 0);
}

int __wrap_close(int descriptor) {
    SystemCallFaults* const faults = SystemCallFaults::of_this_thread();
    if (!faults) {
        return __real_close(descriptor);
    }
    const SystemCallRecord record = record_of_descriptor(*faults, SystemCall::close, descriptor);
    if (faults->fate_of_next(SystemCall::close).error != 0) {
        __real_close(descriptor);
    }
    return watch(
        *faults, record, [=](size_t) { return __real_close(descriptor); }, -1);
}

ssize_t __wrap_read(int descriptor, void* buffer, size_t length) {
    return watched_read(descriptor, buffer, length);
}

ssize_t __wrap___read_chk(int descriptor, void* buffer, size_t length, size_t) {
    return watched_read(descriptor, buffer, length);
}

ssize_t __wrap_write(int descriptor, const void* buffer, size_t length) {
    SystemCallFaults* const faults = SystemCallFaults::of_this_thread();
    if (!faults) {
        return __real_write(descriptor, buffer, length);
    }
    return watch(
        *faults, record_of_transfer(*faults, SystemCall::write, descriptor, length),
        [=](size_t limit) { return __real_write(descriptor, buffer, std::min(length, limit)); }, ssize_t{-1});
}

off_t __wrap_lseek(int descriptor, off_t offset, int whence) {
    return watched_lseek(descriptor, offset, whence);
}

off_t __wrap_lseek64(int descriptor, off_t offset, int whence) {
    return watched_lseek(descriptor, offset, whence);
}

int __wrap_stat(const char* path, struct stat* status) {
    return watched_stat(path, status);
}

int __wrap_stat64(const char* path, struct stat* status) {
    return watched_stat(path, status);
}

int __wrap_fsync(int descriptor) {
    SystemCallFaults* const faults = SystemCallFaults::of_this_thread();
    if (!faults) {
        return __real_fsync(descriptor);
    }
    return watch(
        *faults, record_of_descriptor(*faults, SystemCall::fsync, descriptor),
        [=](size_t) { return __real_fsync(descriptor); }, -1);
}

int __wrap_unlink(const char* path) {
    SystemCallFaults* const faults = SystemCallFaults::of_this_thread();
    if (!faults) {
        return __real_unlink(path);
    }
    return watch(
        *faults, record_of_path(SystemCall::unlink, path), [=](size_t) { return __real_unlink(path); }, -1);
}

int __wrap_rename(const char* from, const char* to) {
    SystemCallFaults* const faults = SystemCallFaults::of_this_thread();
    if (!faults) {
        return __real_rename(from, to);
    }
    SystemCallRecord record = record_of_path(SystemCall::rename, from);
    record.target = to ? to : "";
    return watch(
        *faults, record, [=](size_t) { return __real_rename(from, to); }, -1);
}

char* __wrap_mktemp(char* name) {
    SystemCallFaults* const faults = SystemCallFaults::of_this_thread();
    if (!faults) {
        return __real_mktemp(name);
    }
    SystemCallRecord record = record_of_path(SystemCall::mktemp, name);
    const SystemCallFaults::Fate fate = faults->fate_of_next(SystemCall::mktemp);
    if (fate.error == 0) {
        __real_mktemp(name);
    } else {
        name[0] = '\0';
        errno = fate.error;
    }
    const int error = errno;
    record.target = name;
    record.result = name[0] == '\0' ? -1 : 0;
    record.error = record.result < 0 ? error : 0;
    faults->record(record);
    if (record.result == 0 && faults->creates_generated_names()) {
        __real_close(__real_open(name, O_WRONLY | O_CREAT | O_EXCL, 0600));
    }
    errno = error;
    return name;
}

} // extern "C"
// NOLINTEND(bugprone-reserved-identifier)
