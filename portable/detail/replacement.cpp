#include "replacement.h"

#include "file_attributes.h"
#include "file_transfer.h"
#include "system_refusal.h"

#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace velmora::portable {

namespace {

/** PATH without links, but for a last part that is not there. */
std::string resolved(const std::string& path) {
    const auto real = [](const std::string& given) {
        struct Free {
            void operator()(char* text) const { std::free(text); }
        };
        const std::unique_ptr<char, Free> text(::realpath(given.c_str(), nullptr));
        return text ? std::string(text.get()) : std::string();
    };
    std::string whole = real(path);
    if (whole.empty() && errno == ENOENT) {
        const std::size_t slash = path.rfind('/');
        const std::string folder = real(slash == std::string::npos ? "." : path.substr(0, slash + 1));
        whole = folder.empty() ? folder : folder + '/' + path.substr(slash + 1);
    }
    if (whole.empty()) {
        throw system_refusal();
    }
    return whole;
}

bool same_time(const timespec& left, const timespec& right) {
    return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
}

bool same_file(const struct stat& left, const struct stat& right) {
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino && left.st_size == right.st_size &&
           same_time(left.st_mtim, right.st_mtim) && same_time(left.st_ctim, right.st_ctim);
}

std::uint64_t size_of(const Segment& segment) {
    const auto* const range = std::get_if<Range>(&segment);
    return range ? range->size() : std::get<0>(segment).size();
}

} // namespace

Replacement::Replacement(const std::string& path, bool break_links, bool may_be_missing) {
    const std::string whole = resolved(path);
    const std::size_t slash = whole.rfind('/');
    name_ = whole.substr(slash + 1);
    open_folder(whole.substr(0, slash + 1));
    open_original(break_links, may_be_missing);
}

void Replacement::open_folder(const std::string& path) {
    // A folder that can't be listed still takes new files; it then can't be synced.
    if (!folder_.open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC) &&
        !folder_.open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {
        throw system_refusal();
    }
}

void Replacement::open_original(bool break_links, bool may_be_missing) {
    // What is no regular file must neither be waited for nor be made to do anything.
    original_.handle()->descriptor = uninterrupted([&] {
        return ::openat(folder_.handle()->descriptor, name_.c_str(),
                        O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    });
    if (!original_.is_open()) {
        if (may_be_missing && errno == ENOENT) {
            exists_ = false;
            status_.st_mode = S_IFREG | 0666;
            return;
        }
        // A link that leads anywhere was followed above.
        errno = errno == ELOOP ? ENOENT : errno;
        throw errno == ENXIO ? Refusal({ReasonCode::not_regular, 0, {}}) : system_refusal();
    }
    if (::fstat(original_.handle()->descriptor, &status_) != 0) {
        throw system_refusal();
    }
    if (!S_ISREG(status_.st_mode)) {
        throw Refusal({ReasonCode::not_regular, 0, {}});
    }
    if ((status_.st_mode & S_IWUSR) == 0) {
        throw Refusal({ReasonCode::not_writable, 0, {}});
    }
    if (::faccessat(folder_.handle()->descriptor, name_.c_str(), W_OK, AT_EACCESS) != 0) {
        // So the system answers for a file that was made immutable.
        switch (errno) {
        case EPERM:
            throw Refusal({ReasonCode::not_writable, 0, {}});
        case EACCES:
            throw Refusal({ReasonCode::file_refused, EACCES, {}});
        default:
            throw system_refusal();
        }
    }
    if (status_.st_nlink > 1 && !break_links) {
        throw Refusal({ReasonCode::more_links, 0, {}});
    }
}

FIOFUNCSTRUCT* Replacement::open_new_file() {
    remove_left_behind(folder_.handle()->descriptor);
    new_file_.emplace(folder_.handle()->descriptor);
    return new_file_->handle();
}

void Replacement::fill(const Rewrite& rewrite, Progress& progress) {
    FIOFUNCSTRUCT* const target = open_new_file();
    std::uint64_t position = 0;
    for (const Segment& segment : rewrite.segments) {
        if (const auto* const range = std::get_if<Range>(&segment)) {
            copy_range(original(), *range, target, position, progress);
        } else {
            write_at(target, std::get<0>(segment), position);
        }
        position += size_of(segment);
    }
    if (rewrite.finish) {
        rewrite.finish(target);
    }
    complete_new_file();
}

void Replacement::fill(const std::vector<FileRange>& parts, Progress& progress) {
    FIOFUNCSTRUCT* const target = open_new_file();
    std::uint64_t position = 0;
    for (const FileRange& part : parts) {
        copy_range(part.file, part.range, target, position, progress);
        position += part.range.size();
    }
    complete_new_file();
}

/** Gives the new file its attributes and puts it on the disk. */
void Replacement::complete_new_file() {
    FIOFUNCSTRUCT* const target = new_file_->handle();
    if (exists_) {
        copy_attributes(original(), status_, target);
    } else {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        if (::fchmod(target->descriptor, status_.st_mode & 07777u & ~mask) != 0) {
            throw system_refusal("its permissions");
        }
    }
    if (uninterrupted([&] { return ::fsync(target->descriptor); }) != 0) {
        throw system_refusal("writing the new file to the disk");
    }
    if (::fstat(target->descriptor, &new_status_) != 0) {
        throw system_refusal();
    }
}

std::optional<FileMark> Replacement::original_mark() const {
    return exists_ ? std::optional(mark_of(status_)) : std::nullopt;
}

std::optional<FileMark> Replacement::replacement_mark() const {
    return new_file_ ? std::optional(mark_of(new_status_)) : std::nullopt;
}

void Replacement::check_unchanged() {
    struct stat now {};
    if (::fstatat(folder_.handle()->descriptor, name_.c_str(), &now, AT_SYMLINK_NOFOLLOW) != 0) {
        throw errno == ENOENT ? Refusal({ReasonCode::changed_meanwhile, 0, {}}) : system_refusal();
    }
    if (!same_file(status_, now)) {
        throw Refusal({ReasonCode::changed_meanwhile, 0, {}});
    }
}

std::optional<Reason> Replacement::take_place() {
    if (exists_) {
        check_unchanged();
    }
    new_file_->take_place(name_, exists_);
    return sync_folder();
}

std::optional<Reason> Replacement::remove() {
    check_unchanged();
    if (::unlinkat(folder_.handle()->descriptor, name_.c_str(), 0) != 0) {
        throw system_refusal();
    }
    return sync_folder();
}

std::optional<Reason> Replacement::sync_folder() {
    if (uninterrupted([&] { return ::fsync(folder_.handle()->descriptor); }) != 0) {
        return Reason{ReasonCode::folder_not_synced, errno, {}};
    }
    return std::nullopt;
}

FileMark mark_of(const struct stat& status) {
    return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size), status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec};
}

} // namespace velmora::portable
