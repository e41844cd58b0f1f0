#include "id3_bytes.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

namespace velmora::test {

std::string frames_with_cover() {
    const std::string cover = "\xFF\xD8\xFF" + std::string(20'000, 'c');
    return text4("TALB", "album") + text4("TPE1", "artist") + text4("TIT2", "song") +
           text4("TPE3", "director") + text4("TCON", "genre") + text4("TYER", "1999") +
           frame4("PRIV", bytes("WM/ParentalRating\0PG-13")) +
           frame4("APIC", bytes("\0image/jpeg\0\x03\0") + cover) + text4("TENC", "somebody");
}

void Descriptor::add(std::string_view id, std::string_view body, std::string_view flag_bytes) {
    _id3_frame_t frame;
    ASSERT_NE(nullptr, id3_init_frame(&frame, static_cast<std::int32_t>(body.size())));
    frame.id = id_of(id);
    std::uint16_t both = 0;
    std::memcpy(&both, flag_bytes.data(), sizeof both);
    frame.flags = both;
    std::memcpy(frame.data, body.data(), body.size());
    ASSERT_EQ(1, id3_insert_frame(this, &frame));
}

std::vector<std::string> Descriptor::list() const {
    std::vector<std::string> rows;
    for (std::int32_t i = 0; i < frame_count; ++i) {
        const _id3_frame_t& frame = frames[i];
        const std::uint32_t id = frame.id;
        std::string row(4, '\0');
        std::memcpy(row.data(), &id, sizeof id);
        row += ':';
        row.append(reinterpret_cast<const char*>(frame.data), static_cast<std::size_t>(frame.size));
        rows.push_back(row);
    }
    return rows;
}

Frame::Frame(std::string_view body, std::string_view id_text) : _id3_frame_t{} {
    size = static_cast<std::int32_t>(body.size());
    id = id_of(id_text);
    data = static_cast<std::uint8_t*>(std::malloc(body.size() + 1));
    std::memcpy(data, body.data(), body.size());
    data[body.size()] = 0;
}

Frame::~Frame() {
    std::free(data);
}

std::string Frame::body() const {
    return {reinterpret_cast<const char*>(data), static_cast<std::size_t>(size)};
}

std::uint32_t id_of(std::string_view name) {
    std::uint32_t id = 0;
    EXPECT_EQ(4u, name.size());
    std::memcpy(&id, name.data(), sizeof id);
    return id;
}

} // namespace velmora::test
