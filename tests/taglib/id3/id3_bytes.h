#pragma once

#include "../open_file.h"

#include "support/bytes.h"
#include "support/id3_tags.h"
#include "support/scratch_folder.h"
#include "taglib/id3/descriptor.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/** Tags for tests, put together without the code under test. */
namespace velmora::test {

/** The bytes of TEXT, zeros included: bytes("a\0b"). */
template <std::size_t size>
[[nodiscard]] std::string bytes(const char (&text)[size]) {
    return {text, size - 1};
}

/** Frames of a version 4 tag for every field, one with a cover of 20,000 bytes that has a frame behind it. */
[[nodiscard]] std::string frames_with_cover();

/** A descriptor that releases what it holds. */
struct Descriptor : _id3_file_desc_t {
    Descriptor() : _id3_file_desc_t{} {}
    ~Descriptor() { id3_free_descriptor(this); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    /** Appends a frame; fails the test when that fails. */
    void add(std::string_view id, std::string_view body, std::string_view flags = {"\0\0", 2});
    /** Each frame as "TALB:" and its body. */
    [[nodiscard]] std::vector<std::string> list() const;
};

/** A frame of its own, released with the object. */
struct Frame : _id3_frame_t {
    explicit Frame(std::string_view body, std::string_view id = "TEST");
    ~Frame();
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    [[nodiscard]] std::string body() const;
};

/* A frame's members by value: they have no alignment, so nothing may refer to them. */
[[nodiscard]] inline std::uint32_t id_in(const _id3_frame_t& frame) {
    return frame.id;
}
[[nodiscard]] inline std::int32_t size_in(const _id3_frame_t& frame) {
    return frame.size;
}
[[nodiscard]] inline std::uint16_t flags_in(const _id3_frame_t& frame) {
    return frame.flags;
}
[[nodiscard]] inline const std::uint8_t* data_in(const _id3_frame_t& frame) {
    return frame.data;
}

[[nodiscard]] std::uint32_t id_of(std::string_view name);

} // namespace velmora::test
