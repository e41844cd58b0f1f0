#include "ogg_cover.h"

#include "cover_choice.h"
#include "flac_picture.h"
#include "text.h"

#include <string_view>
#include <utility>

namespace velmora::portable {

namespace {

constexpr std::string_view picture_key = "METADATA_BLOCK_PICTURE";

FlacPicture picture_in(const std::string& comment) {
    return *flac_picture(*from_base64(VorbisComments::value_of(comment)));
}

} // namespace

std::vector<std::size_t> ogg_covers(const VorbisComments& comments) {
    std::vector<std::optional<std::uint32_t>> types;
    for (const std::string& comment : comments.comments()) {
        std::optional<FlacPicture> picture;
        if (equal_ignoring_case(VorbisComments::key_of(comment), picture_key)) {
            const auto block = from_base64(VorbisComments::value_of(comment));
            picture = block ? flac_picture(*block) : std::nullopt;
        }
        types.push_back(picture ? std::optional(picture->type) : std::nullopt);
    }
    return cover_places(types);
}

std::optional<Cover> ogg_cover(const VorbisComments& comments) {
    const std::vector<std::size_t> covers = ogg_covers(comments);
    return covers.empty() ? std::nullopt
                          : std::optional(picture_in(comments.comments()[covers.front()]).cover());
}

void apply_ogg_cover(VorbisComments& comments, const Edit<Cover>& edit) {
    const std::vector<std::size_t> covers = ogg_covers(comments);
    std::vector<std::string>& list = comments.comments();
    if (edit.deletes()) {
        for (auto place = covers.rbegin(); place != covers.rend(); ++place) {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(*place));
        }
        return;
    }
    FlacPicture picture;
    if (!covers.empty()) {
        picture = picture_in(list[covers.front()]);
    }
    if (picture.cover() == *edit.value() && picture.type == picture_type::front_cover) {
        return;
    }
    picture = {picture_type::front_cover, edit.value()->mime, picture.description, edit.value()->bytes};
    std::string comment = std::string(picture_key) + '=' + base64(flac_picture_block(picture));
    if (covers.empty()) {
        list.push_back(std::move(comment));
    } else {
        list[covers.front()] = std::move(comment);
    }
}

} // namespace velmora::portable
