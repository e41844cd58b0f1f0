#include "media_type.h"

#include "platform/file_path.h"

#include <algorithm>
#include <array>
#include <span>

namespace velmora {

namespace {

constexpr std::array videoExtensions = {"avi", "divx", "dvr-ms", "flv", "ifo", "iso", "mov",
                                        "mp4", "mpeg", "mpg",    "ts",  "vob", "wmv"};
constexpr std::array audioExtensions = {"ac3", "flac", "m4a", "m4p", "mp2", "mp3", "wav", "wma"};
constexpr std::array imageExtensions = {"bmp", "jpeg", "jpg", "png", "tif", "tiff"};

bool isOneOf(const QString& extension, std::span<const char* const> list) {
    return std::any_of(list.begin(), list.end(), [&](const char* candidate) {
        return extension.compare(QLatin1String(candidate), Qt::CaseInsensitive) == 0;
    });
}

MediaType typeOfExtension(const QString& extension) {
    if (isOneOf(extension, videoExtensions)) {
        return videoMedia;
    }
    if (isOneOf(extension, audioExtensions)) {
        return audioMedia;
    }
    return isOneOf(extension, imageExtensions) ? imageMedia : otherMedia;
}

} // namespace

MediaKind mediaKindOfPath(const QString& path) {
    const QString extension = pathExtension(path);
    const bool isDvdFolder =
        lastPathComponent(path).compare(QLatin1String("video_ts.ifo"), Qt::CaseInsensitive) == 0;
    const bool isDiscImage = extension.compare(QLatin1String("iso"), Qt::CaseInsensitive) == 0;
    const bool hasSideFile = isDvdFolder || isDiscImage;
    const QString taggedFile = hasSideFile ? pathWithoutExtension(path) + QLatin1String(".TAG") : path;
    return {typeOfExtension(extension), extension, taggedFile};
}

} // namespace velmora
