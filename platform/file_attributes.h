#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>

namespace velmora {

/** A moment: whole seconds since 1970-01-01 UTC, rounded down, and the nanoseconds after them (0 to
   999,999,999). */
struct FileTime {
    std::int64_t seconds = 0;
    std::uint32_t nanoseconds = 0;

    // NOLINTNEXTLINE(modernize-use-nullptr): what the compiler writes compares with 0
    auto operator<=>(const FileTime&) const = default;
};

/** What the file system says of a file. What it does not record is absent. */
struct FileAttributes {
    bool isDirectory = false;
    std::optional<std::uint64_t> size;
    /** The birth time; where the file system keeps none, the earlier of the times of the last modification
       and of the last status change. */
    std::optional<FileTime> creationDate;
};

/** Asks anew for the attributes of the file at PATH (bytes as they are in the file system), following
   symbolic links. Nothing when there is no such file or it can't be asked. From any thread. */
[[nodiscard]] std::optional<FileAttributes> fileAttributes(const QByteArray& path);

} // namespace velmora
