#pragma once

#include <optional>
#include <string_view>

namespace velmora::portable {

/** What a file is to a user. */
enum class Media { audio, video, image, other };

/** How a file is built, which decides who reads and writes its tags. */
enum class Container {
    mpeg_audio, ///< frames of MPEG audio: tags in front of them and behind
    flac,
    mp4, ///< boxes: MP4 and QuickTime
    wav, ///< RIFF WAVE
    asf,
    avi, ///< RIFF AVI
    ogg, ///< Vorbis or Opus in Ogg
    aiff,
    tagless,   ///< no tag that others read exists: the program's own stands behind the media
    side_file, ///< a DVD folder or a disc image, whose tag is a file of its own beside it
    picture,   ///< carries no tag
};

struct MediaKind {
    Media media;
    Container container;

    friend bool operator==(const MediaKind&, const MediaKind&) = default;
};

/** The kind of the file at PATH, told by its extension in any case. Nothing for an extension that is not one
   of a kind of file that the program knows. */
[[nodiscard]] std::optional<MediaKind> media_kind(std::string_view path);

} // namespace velmora::portable
