#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace velmora {

/** Bytes that GetTempFileName's target must hold. */
inline constexpr std::size_t temp_file_name_capacity = 1024;

/** Makes an unused name: DIRECTORY + "/" + PREFIX + "." and six characters chosen by the system's unique-name
   generator. Each step is limited to 1,024 bytes. No file is created. Returns 0 when an argument is missing
   or the generator fails, else UNIQUE, or 1 when UNIQUE is 0. */
[[nodiscard]] std::uint32_t GetTempFileName(const char* directory, const char* prefix, std::uint32_t unique,
                                            char* name);

/** Cuts PATH at its last "/" (the slash goes too). A path without one, and null, stay as they are. */
void PathRemoveFileSpec(char* path);

/** A zero-terminated text of the malloc family. */
struct FreeText {
    void operator()(char* text) const { std::free(text); }
};
using OwnedText = std::unique_ptr<char, FreeText>;

/** The folder of the file PATH: what stands in front of its last "/". A path without one comes back whole.
   Null when memory runs out. */
[[nodiscard]] OwnedText folder_of_file(const char* path);

} // namespace velmora
