#include "new_file.h"

#include "system_refusal.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <random>
#include <string_view>
#include <sys/file.h>
#include <unistd.h>

namespace velmora::portable {

namespace {

constexpr std::string_view hidden_prefix = ".velmora-new-";
constexpr std::size_t hidden_digits = 16;
constexpr mode_t owner_alone = 0600;
constexpr int attempts = 16;

std::string new_hidden_name() {
    std::random_device random;
    std::array<char, hidden_digits + 1> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x%08x", static_cast<unsigned>(random()),
                  static_cast<unsigned>(random()));
    return std::string(hidden_prefix) + digits.data();
}

bool is_hidden_name(std::string_view name) {
    return name.size() == hidden_prefix.size() + hidden_digits &&
           name.substr(0, hidden_prefix.size()) == hidden_prefix &&
           name.find_first_not_of("0123456789abcdef", hidden_prefix.size()) == std::string_view::npos;
}

std::string path_of_descriptor(int descriptor) {
    return "/proc/self/fd/" + std::to_string(descriptor);
}

/** The Refusal for a call that failed with errno while it did WHAT in the folder. */
Refusal folder_refusal(const char* what) {
    return errno == EACCES || errno == EPERM ? Refusal({ReasonCode::folder_refused, errno, what})
                                             : system_refusal(what);
}

void remove_unless_locked(int folder, const char* name) {
    const int file = ::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        return;
    }
    struct stat status {};
    const bool ours = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid();
    if (ours && ::flock(file, LOCK_EX | LOCK_NB) == 0) {
        static_cast<void>(::unlinkat(folder, name, 0));
    }
    ::close(file);
}

} // namespace

NewFile::NewFile(int folder) : folder_(folder) {
    if (!open_without_name()) {
        open_hidden();
    }
}

NewFile::~NewFile() {
    const int error = errno;
    remove_name();
    if (file_.descriptor >= 0) {
        ::close(file_.descriptor);
    }
    errno = error;
}

/** Returns whether the file is this process's own: another one, which cleans up, may have been faster. A file
   system without locks has none of others to respect. */
bool NewFile::lock() {
    const bool taken = ::flock(file_.descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    struct stat status {};
    return !taken && (::fstat(file_.descriptor, &status) != 0 || status.st_nlink > 0);
}

bool NewFile::open_without_name() {
    file_.descriptor =
        uninterrupted([&] { return ::openat(folder_, ".", O_TMPFILE | O_RDWR | O_CLOEXEC, owner_alone); });
    // Only those that can be given a name are of use.
    if (file_.descriptor >= 0 && ::access(path_of_descriptor(file_.descriptor).c_str(), F_OK) != 0) {
        ::close(file_.descriptor);
        file_.descriptor = -1;
    }
    if (file_.descriptor >= 0) {
        // Nobody else can see it before it is named; from then on it is locked.
        static_cast<void>(::flock(file_.descriptor, LOCK_EX | LOCK_NB));
    }
    return file_.descriptor >= 0;
}

void NewFile::open_hidden() {
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const std::string name = new_hidden_name();
        file_.descriptor = uninterrupted([&] {
            return ::openat(folder_, name.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, owner_alone);
        });
        if (file_.descriptor >= 0 && lock()) {
            hidden_name_ = name;
            return;
        }
        if (file_.descriptor >= 0) {
            ::close(file_.descriptor);
            file_.descriptor = -1;
        } else if (errno != EEXIST) {
            break;
        }
    }
    throw folder_refusal("making a new file in its folder");
}

void NewFile::link_hidden() {
    const std::string path = path_of_descriptor(file_.descriptor);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const std::string name = new_hidden_name();
        if (::linkat(AT_FDCWD, path.c_str(), folder_, name.c_str(), AT_SYMLINK_FOLLOW) == 0) {
            hidden_name_ = name;
            return;
        }
        if (errno != EEXIST && errno != EINTR) {
            break;
        }
    }
    throw folder_refusal("naming the new file");
}

void NewFile::take_place(const std::string& name, bool replace) {
    if (hidden_name_.empty()) {
        link_hidden();
    }
    const unsigned flags = replace ? 0 : RENAME_NOREPLACE;
    if (::renameat2(folder_, hidden_name_.c_str(), folder_, name.c_str(), flags) != 0) {
        throw errno == EEXIST ? Refusal({ReasonCode::changed_meanwhile, 0, {}})
                              : folder_refusal("putting the new file in its place");
    }
    hidden_name_.clear();
}

void NewFile::remove_name() {
    if (!hidden_name_.empty()) {
        static_cast<void>(uninterrupted([&] { return ::unlinkat(folder_, hidden_name_.c_str(), 0); }));
    }
}

void remove_left_behind(int folder) {
    const int copy = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (copy < 0) {
        return;
    }
    DIR* const listing = ::fdopendir(copy);
    if (!listing) {
        ::close(copy);
        return;
    }
    while (const dirent* const entry = ::readdir(listing)) {
        if (is_hidden_name(entry->d_name)) {
            remove_unless_locked(folder, entry->d_name);
        }
    }
    ::closedir(listing);
}

} // namespace velmora::portable
