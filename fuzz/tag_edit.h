#pragma once

#include "harness.h"

#include "taglib/file_info.h"

/** The record that a store target stores. */
namespace velmora::fuzz {

/** Read from the front of an input: two bytes of flags (the nine fields' bits); then for each flagged text,
   in the order title, artist, desc, genre, director, rating, a length byte and the text; for a flagged year
   four bytes, for a flagged time eight, for a flagged picture a length byte and the bytes that follow FF D8
   FF; of length 255 it is no picture. */
class TagEdit {
public:
    explicit TagEdit(Input& input);
    ~TagEdit();
    TagEdit(const TagEdit&) = delete;
    TagEdit& operator=(const TagEdit&) = delete;

    /** A record to store; its flags are those of the input each time. */
    [[nodiscard]] _file_info_t record() const;
    [[nodiscard]] bool has(std::uint32_t flag) const { return (flags_ & flag) != 0; }

    /** The fields of FLAGS that LOADED does not hold as they are in this edit, though it sets them to a
       value. */
    [[nodiscard]] std::uint32_t differing(const _file_info_t& loaded, std::uint32_t flags) const;
    /** The text fields in which all characters are ASCII. */
    [[nodiscard]] std::uint32_t ascii_fields() const;

private:
    struct Text {
        std::uint32_t flag;
        char* _file_info_t::*slot;
        std::string value;
    };
    std::uint32_t flags_;
    Text texts_[6];
    std::int32_t year_ = 0;
    std::uint64_t time_ = 0;
    Image* picture_ = nullptr;
};

/** A loaded record; requires that it can be released twice and that no image outlives it. */
struct LoadedInfo : _file_info_t {
    LoadedInfo() : _file_info_t{} {}
    ~LoadedInfo();
    LoadedInfo(const LoadedInfo&) = delete;
    LoadedInfo& operator=(const LoadedInfo&) = delete;

    /** Whether the record is as a load that fails leaves it. */
    [[nodiscard]] bool is_empty() const;
};

} // namespace velmora::fuzz
