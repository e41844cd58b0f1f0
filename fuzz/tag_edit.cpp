#include "tag_edit.h"

#include "fake_image/fake_image.h"

#include <algorithm>
#include <cstring>

namespace velmora::fuzz {

namespace flag = file_info_flag;

TagEdit::TagEdit(Input& input)
    : flags_(static_cast<std::uint32_t>(input.number(2)) & 0x1FF),
      texts_{{flag::title, &_file_info_t::title, {}},       {flag::artist, &_file_info_t::artist, {}},
             {flag::desc, &_file_info_t::desc, {}},         {flag::genre, &_file_info_t::genre, {}},
             {flag::director, &_file_info_t::director, {}}, {flag::rating, &_file_info_t::rating, {}}} {
    for (Text& text : texts_) {
        if (has(text.flag)) {
            text.value = input.text();
        }
    }
    if (has(flag::year)) {
        year_ = static_cast<std::int32_t>(input.number(4));
    }
    if (has(flag::time)) {
        time_ = input.number(8);
    }
    if (has(flag::picture)) {
        const std::string jpeg = "\xFF\xD8\xFF" + input.bytes();
        picture_ = jpeg.size() < 3 + 255 ? image_from_bytes(jpeg.data(), jpeg.size()) : nullptr;
    }
}

TagEdit::~TagEdit() {
    image_release(picture_);
    require(test::fake_images_alive() == 0, "no image outlives its owners");
}

_file_info_t TagEdit::record() const {
    _file_info_t info{};
    info.flags = flags_;
    for (const Text& text : texts_) {
        info.*text.slot = const_cast<char*>(text.value.c_str()); // lent, and only read
    }
    info.year = year_;
    info.time = time_;
    info.picture = picture_;
    return info;
}

std::uint32_t TagEdit::differing(const _file_info_t& loaded, std::uint32_t flags) const {
    std::uint32_t differing = 0;
    for (const Text& text : texts_) {
        const char* const found = loaded.*text.slot;
        if (!text.value.empty() && (!found || text.value != found)) {
            differing |= text.flag;
        }
    }
    if (year_ != 0 && loaded.year != year_) {
        differing |= flag::year;
    }
    if (time_ != 0 && loaded.time != time_) {
        differing |= flag::time;
    }
    if (picture_ &&
        (!loaded.picture || test::fake_image_bytes(loaded.picture) != test::fake_image_bytes(picture_))) {
        differing |= flag::picture;
    }
    return differing & flags & flags_;
}

std::uint32_t TagEdit::ascii_fields() const {
    std::uint32_t fields = 0;
    for (const Text& text : texts_) {
        if (std::all_of(text.value.begin(), text.value.end(),
                        [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
            fields |= text.flag;
        }
    }
    return fields;
}

LoadedInfo::~LoadedInfo() {
    id3_free_file_info(this);
    require(is_empty(), "a released record is zeroed");
    id3_free_file_info(this);
}

bool LoadedInfo::is_empty() const {
    return flags == 0 && !title && !artist && !desc && !genre && !director && !rating && year == 0 &&
           !picture && !aux_object && time == 0;
}

} // namespace velmora::fuzz
