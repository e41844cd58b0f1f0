#include "file_attributes.h"

#include "system_refusal.h"

#include <string_view>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace velmora::portable {

namespace {

constexpr const char* access_list = "system.posix_acl_access";

/** Whether errno says that there are no such attributes here. */
bool not_supported() {
    return errno == EOPNOTSUPP || errno == ENOSYS;
}

/** Whether attributes of this name may be refused to a user. */
bool belongs_to_the_system(std::string_view name) {
    return name.starts_with("security.") || name.starts_with("trusted.");
}

/** The names of the attributes of FILE, each with its zero. */
std::vector<char> attribute_names(FIOFUNCSTRUCT* file) {
    std::vector<char> names(4096);
    ssize_t size = 0;
    while ((size = uninterrupted(
                [&] { return ::flistxattr(file->descriptor, names.data(), names.size()); })) < 0 &&
           errno == ERANGE) {
        names.resize(2 * names.size());
    }
    if (size < 0 && !not_supported()) {
        throw system_refusal("its extended attributes");
    }
    names.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return names;
}

std::vector<char> attribute(FIOFUNCSTRUCT* file, const char* name) {
    std::vector<char> value(4096);
    ssize_t size = 0;
    while ((size = uninterrupted(
                [&] { return ::fgetxattr(file->descriptor, name, value.data(), value.size()); })) < 0 &&
           errno == ERANGE) {
        value.resize(2 * value.size());
    }
    if (size < 0) {
        throw system_refusal(std::string("its extended attribute ") + name);
    }
    value.resize(static_cast<std::size_t>(size));
    return value;
}

void copy_attribute(FIOFUNCSTRUCT* source, FIOFUNCSTRUCT* target, const char* name) {
    if (belongs_to_the_system(name) && ::fgetxattr(source->descriptor, name, nullptr, 0) < 0) {
        return;
    }
    const std::vector<char> value = attribute(source, name);
    const int set =
        uninterrupted([&] { return ::fsetxattr(target->descriptor, name, value.data(), value.size(), 0); });
    if (set != 0 && !belongs_to_the_system(name)) {
        throw system_refusal(std::string("its extended attribute ") + name);
    }
}

/** Returns whether the source has an access control list of its own. */
bool copy_extended_attributes(FIOFUNCSTRUCT* source, FIOFUNCSTRUCT* target) {
    const std::vector<char> names = attribute_names(source);
    bool has_list = false;
    for (std::size_t begin = 0; begin < names.size();) {
        const std::string_view name(names.data() + begin);
        has_list = has_list || name == access_list;
        copy_attribute(source, target, name.data());
        begin += name.size() + 1;
    }
    return has_list;
}

} // namespace

void copy_attributes(FIOFUNCSTRUCT* source, const struct stat& status, FIOFUNCSTRUCT* target) {
    mode_t mode = status.st_mode & 07777u;
    const auto give = [&](uid_t owner, gid_t group) {
        return uninterrupted([&] { return ::fchown(target->descriptor, owner, group); }) == 0;
    };
    if (!give(status.st_uid, status.st_gid)) {
        // A file of another owner must not run with the rights of this one. The group alone may still be
        // given.
        mode &= static_cast<mode_t>(~(S_ISUID | S_ISGID));
        static_cast<void>(give(static_cast<uid_t>(-1), status.st_gid));
    }
    if (!copy_extended_attributes(source, target)) {
        // What the folder gives to new files is none of this one's.
        static_cast<void>(::fremovexattr(target->descriptor, access_list));
    }
    if (uninterrupted([&] { return ::fchmod(target->descriptor, mode); }) != 0) {
        throw system_refusal("its permissions");
    }
}

} // namespace velmora::portable
