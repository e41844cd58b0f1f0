#pragma once

#include "support/bytes.h"
#include "support/id3_tags.h"
#include "support/scratch_folder.h"

#include <QString>

#include <string>

/** Songs for tests, put together without the code under test. */
namespace velmora::test {

/** Two silent frames of MPEG audio, layer 3. */
[[nodiscard]] inline std::string silentFrames() {
    const std::string frame = hex("FF FB 90 C4") + std::string(413, '\0');
    return frame + frame;
}

/** A song with a version 4 tag of FRAMES in front. */
[[nodiscard]] inline std::string song(const std::string& frames) {
    return leading_tag(4, frames) + silentFrames();
}

[[nodiscard]] inline std::string song(const std::string& title, const std::string& artist) {
    return song(text4("TIT2", title) + text4("TPE1", artist));
}

/** Writes the file NAME into FOLDER and gives its path. */
inline QString written(const ScratchFolder& folder, const std::string& name, const std::string& bytes) {
    write_file(folder / name, bytes);
    return QString::fromStdString(folder / name);
}

} // namespace velmora::test
