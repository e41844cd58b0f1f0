#include "media_kind.h"

#include <algorithm>
#include <array>
#include <string>

namespace velmora::portable {

namespace {

struct KindRow {
    std::string_view extension; ///< in lower case
    MediaKind kind;
};

constexpr std::array kind_table = {
    KindRow{"mp3", {Media::audio, Container::mpeg_audio}},
    KindRow{"mp2", {Media::audio, Container::mpeg_audio}},
    KindRow{"flac", {Media::audio, Container::flac}},
    KindRow{"m4a", {Media::audio, Container::mp4}},
    KindRow{"m4p", {Media::audio, Container::mp4}},
    KindRow{"wav", {Media::audio, Container::wav}},
    KindRow{"wma", {Media::audio, Container::asf}},
    KindRow{"ogg", {Media::audio, Container::ogg}},
    KindRow{"opus", {Media::audio, Container::ogg}},
    KindRow{"aif", {Media::audio, Container::aiff}},
    KindRow{"aiff", {Media::audio, Container::aiff}},
    KindRow{"ac3", {Media::audio, Container::tagless}},
    KindRow{"mp4", {Media::video, Container::mp4}},
    KindRow{"m4v", {Media::video, Container::mp4}},
    KindRow{"mov", {Media::video, Container::mp4}},
    KindRow{"wmv", {Media::video, Container::asf}},
    KindRow{"asf", {Media::video, Container::asf}},
    KindRow{"dvr-ms", {Media::video, Container::asf}},
    KindRow{"avi", {Media::video, Container::avi}},
    KindRow{"divx", {Media::video, Container::avi}},
    KindRow{"flv", {Media::video, Container::tagless}},
    KindRow{"mpeg", {Media::video, Container::tagless}},
    KindRow{"mpg", {Media::video, Container::tagless}},
    KindRow{"ts", {Media::video, Container::tagless}},
    KindRow{"vob", {Media::video, Container::tagless}},
    KindRow{"ifo", {Media::video, Container::side_file}},
    KindRow{"iso", {Media::video, Container::side_file}},
    KindRow{"bmp", {Media::image, Container::picture}},
    KindRow{"jpeg", {Media::image, Container::picture}},
    KindRow{"jpg", {Media::image, Container::picture}},
    KindRow{"png", {Media::image, Container::picture}},
    KindRow{"tif", {Media::image, Container::picture}},
    KindRow{"tiff", {Media::image, Container::picture}},
};

char in_lower_case(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

std::optional<MediaKind> media_kind(std::string_view path) {
    const std::string_view name = path.substr(path.rfind('/') + 1);
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0) {
        return std::nullopt;
    }
    std::string extension(name.substr(dot + 1));
    std::transform(extension.begin(), extension.end(), extension.begin(), in_lower_case);
    const auto* row = std::find_if(kind_table.begin(), kind_table.end(), [&](const KindRow& candidate) {
        return candidate.extension == extension;
    });
    if (row == kind_table.end()) {
        return std::nullopt;
    }
    // Of a DVD's information files only the one that stands for the disc has its tag beside it.
    std::string stem(name.substr(0, dot));
    std::transform(stem.begin(), stem.end(), stem.begin(), in_lower_case);
    const bool part_of_dvd = extension == "ifo" && stem != "video_ts";
    return part_of_dvd ? MediaKind{row->kind.media, Container::tagless} : row->kind;
}

} // namespace velmora::portable
