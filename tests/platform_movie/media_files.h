#pragma once

#include "support/scratch_folder.h"

#include <QImage>
#include <QString>

#include <string>
#include <vector>

namespace velmora::test {

/** Real media files, made with ffmpeg the first time that a test asks for them. */
class MediaFiles {
public:
    /** A folder of files for the whole test program. */
    static MediaFiles& shared();

    /** The path of NAME, made with ENCODING, ffmpeg's options, from a film of two seconds and 320 x 240
       pixels. In its first second the quarters are red and green above blue and white, in its second one all
       is yellow. */
    QString film(const std::string& name, const std::vector<std::string>& encoding);
    /** The path of NAME, made with ENCODING from the film that film() describes and a sound track. */
    QString filmWithSound(const std::string& name, const std::vector<std::string>& encoding);
    /** Two seconds of sound. */
    QString sound(const std::string& name, const std::vector<std::string>& encoding);
    /** A sound file with a picture in it, as music with cover art has. */
    QString soundWithPicture(const std::string& name);
    /** A file of these bytes. */
    QString file(const std::string& name, const std::string& bytes);

    [[nodiscard]] const ScratchFolder& folder() const { return folder_; }

private:
    QString make(const std::string& name, const std::vector<std::string>& arguments);
    ScratchFolder folder_;
};

/** Whether FRAME is the film's first one: its four quarters in their places, 320 x 240. */
[[nodiscard]] bool isFirstFrame(const QImage& frame);
/** Whether FRAME is from the film's second half. */
[[nodiscard]] bool isYellow(const QImage& frame);

} // namespace velmora::test
