#include "media_type.h"

#include "platform/file_path.h"
#include "taglib/asf/load_file_info.h"
#include "taglib/asf/store_file_info.h"
#include "taglib/avi/load_file_info.h"
#include "taglib/avi/store_file_info.h"
#include "taglib/id3/load_file_info.h"
#include "taglib/id3/store_file_info.h"

#include <algorithm>
#include <array>
#include <span>

namespace velmora {

namespace {

constexpr std::array videoExtensions = {"avi", "divx", "dvr-ms", "flv", "ifo", "iso", "mov",
                                        "mp4", "mpeg", "mpg",    "ts",  "vob", "wmv"};
constexpr std::array audioExtensions = {"ac3", "flac", "m4a", "m4p", "mp2", "mp3", "wav", "wma"};
constexpr std::array imageExtensions = {"bmp", "jpeg", "jpg", "png", "tif", "tiff"};

constexpr TagModule id3Module = {id3_load_file_info, id3_store_file_info};
constexpr TagModule asfModule = {
    asf_load_file_info, [](const char* path, _file_info_t* info) { return asf_store_file_info(path, info); }};
constexpr TagModule aviModule = {avi_load_file_info, avi_store_file_info};

struct ModuleRow {
    const char* extension;
    const TagModule* module;
};
constexpr std::array moduleTable = {
    ModuleRow{"asf", &asfModule}, ModuleRow{"wmv", &asfModule},  ModuleRow{"wma", &asfModule},
    ModuleRow{"avi", &aviModule}, ModuleRow{"divx", &aviModule},
};

bool isOneOf(const QString& extension, std::span<const char* const> list) {
    return std::any_of(list.begin(), list.end(), [&](const char* candidate) {
        return extension.compare(QLatin1String(candidate), Qt::CaseInsensitive) == 0;
    });
}

} // namespace

MediaType mediaTypeOfPath(const QString& path) {
    const QString extension = pathExtension(path);
    if (isOneOf(extension, videoExtensions)) {
        return videoMedia;
    }
    if (isOneOf(extension, audioExtensions)) {
        return audioMedia;
    }
    return isOneOf(extension, imageExtensions) ? imageMedia : otherMedia;
}

const TagModule& tagModuleOfPath(const QString& path) {
    const QString extension = pathExtension(path);
    const auto* row = std::find_if(moduleTable.begin(), moduleTable.end(), [&](const ModuleRow& candidate) {
        return extension.compare(QLatin1String(candidate.extension), Qt::CaseInsensitive) == 0;
    });
    return row == moduleTable.end() ? id3Module : *row->module;
}

QString taggedFileOfPath(const QString& path) {
    const bool isDvdFolder =
        lastPathComponent(path).compare(QLatin1String("video_ts.ifo"), Qt::CaseInsensitive) == 0;
    const bool isDiscImage = pathExtension(path).compare(QLatin1String("iso"), Qt::CaseInsensitive) == 0;
    return isDvdFolder || isDiscImage ? pathWithoutExtension(path) + QLatin1String(".TAG") : path;
}

} // namespace velmora
