#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace velmora::portable {

/** What a picture of a tag shows, by the numbers that ID3v2, FLAC and ASF share. */
namespace picture_type {
inline constexpr std::uint32_t other = 0;
inline constexpr std::uint32_t front_cover = 3;
} // namespace picture_type

/** Which of the pictures with these TYPES (nothing: no picture) are the cover: all front covers, or else
   the first other picture. */
[[nodiscard]] inline std::vector<std::size_t>
cover_places(std::span<const std::optional<std::uint32_t>> types) {
    std::vector<std::size_t> covers;
    std::optional<std::size_t> other;
    for (std::size_t i = 0; i < types.size(); ++i) {
        if (types[i] == picture_type::front_cover) {
            covers.push_back(i);
        } else if (types[i] == picture_type::other && !other) {
            other = i;
        }
    }
    return covers.empty() && other ? std::vector{*other} : covers;
}

} // namespace velmora::portable
