#pragma once

#include "support/stream_capture.h"
#include "taglib/file_info.h"
#include "taglib/id3/store_file_info.h"

#include <string>

namespace velmora::test {

/** A record built for storing: its texts and image are lent. */
struct StoredInfo : _file_info_t {
    StoredInfo() : _file_info_t{} {}

    StoredInfo& with_title(std::string text) { return lend(text, title_, title, file_info_flag::title); }
    StoredInfo& with_artist(std::string text) { return lend(text, artist_, artist, file_info_flag::artist); }
    StoredInfo& with_rating(std::string text) { return lend(text, rating_, rating, file_info_flag::rating); }
    StoredInfo& with_year(std::int32_t value) {
        year = value;
        flags |= file_info_flag::year;
        return *this;
    }
    StoredInfo& with_picture(Image* image) {
        picture = image;
        flags |= file_info_flag::picture;
        return *this;
    }

private:
    StoredInfo& lend(const std::string& text, std::string& owner, char*& slot, std::uint32_t flag) {
        owner = text;
        slot = owner.data();
        flags |= flag;
        return *this;
    }
    std::string title_, artist_, rating_;
};

/** What a store of INFO gives. */
struct Store {
    Store(const std::string& path, _file_info_t& info) {
        StreamCapture capture;
        result = id3_store_file_info(path.c_str(), &info);
        log = capture.text();
    }
    int result = -1;
    std::string log;
};

} // namespace velmora::test
