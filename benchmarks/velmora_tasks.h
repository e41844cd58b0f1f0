#pragma once

/** The tag library's work that is measured, one file at a time. */
namespace tasks {

/** How a file keeps its tag. */
enum class Format { id3, asf, avi };

/** The format that Velmora takes the file at PATH for, by its extension. */
[[nodiscard]] Format formatOf(const char* path);

/** Loads the tag and frees the record. False when there was no tag with a title. */
[[nodiscard]] bool read(Format format, const char* path);

/** Stores TITLE, and nothing else. */
[[nodiscard]] bool storeTitle(Format format, const char* path, const char* title);

/** Moves everything from offset FROM of the file to offset TO. */
[[nodiscard]] bool move(const char* path, long long from, long long to);

} // namespace tasks
