#include "show_files.h"

#include "interruption.h"
#include "printing.h"
#include "progress_bar.h"

#include "portable/picture_header.h"
#include "portable/portable_tags.h"

#include <nlohmann/json.hpp>

namespace velmora::tag_tool {

namespace {

using Json = nlohmann::ordered_json;
using portable::Cover;
using portable::Field;
using portable::Media;
using portable::ReadOutcome;

/** A text of the values under the name that it has for a kind of file. */
struct NamedField {
    const char* song;
    const char* film;
    Field song_field;
    Field film_field;
};

constexpr std::array named_fields = {
    NamedField{"title", "title", Field::title, Field::title},
    NamedField{"artist", "cast", Field::artist, Field::artist},
    NamedField{"album", "director", Field::album, Field::director},
    NamedField{"synopsis", "synopsis", Field::synopsis, Field::synopsis},
    NamedField{"genre", "genre", Field::genre, Field::genre},
    NamedField{"rating", "rating", Field::rating, Field::rating},
};

Media media_of(const ReadOutcome& outcome) {
    return outcome.kind ? outcome.kind->media : Media::other;
}

const char* kind_name(Media media) {
    switch (media) {
    case Media::audio:
        return "audio";
    case Media::video:
        return "video";
    case Media::image:
        return "image";
    case Media::other:
        break;
    }
    return "other";
}

/** Calls TAKE with the name and the value of each text of OUTCOME. */
template <typename Take>
void for_each_text(const ReadOutcome& outcome, Take take) {
    const bool film = media_of(outcome) == Media::video;
    for (const NamedField& field : named_fields) {
        take(film ? field.film : field.song, outcome.values.text(film ? field.film_field : field.song_field));
    }
}

std::string replaced_utf8(const std::string& text) {
    // The library's own writer puts U+FFFD where bytes are not UTF-8.
    const std::string quoted = Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
    return Json::parse(quoted).get<std::string>();
}

std::string hexadecimal(const std::string& bytes) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        text += digits[static_cast<unsigned char>(byte) >> 4];
        text += digits[static_cast<unsigned char>(byte) & 0xF];
    }
    return text;
}

Json json_of(const Cover& cover) {
    Json object = {
        {"mime", cover.mime}, {"bytes", cover.bytes.size()}, {"width", nullptr}, {"height", nullptr}};
    if (const auto header = portable::picture_header(cover.bytes)) {
        object["width"] = header->width;
        object["height"] = header->height;
    }
    return object;
}

Json json_of(const std::string& path, const ReadOutcome& outcome, const std::string& failure) {
    Json object;
    const std::string shown_path = replaced_utf8(path);
    object["path"] = shown_path;
    if (shown_path != path) {
        object["path_hex"] = hexadecimal(path);
    }
    object["kind"] = kind_name(media_of(outcome));
    object["tags"] = outcome.tags;
    for_each_text(outcome, [&](const char* name, const std::optional<std::string>& text) {
        object[name] = text ? Json(*text) : Json(nullptr);
    });
    object["year"] = outcome.values.year ? Json(*outcome.values.year) : Json(nullptr);
    object["cover"] = outcome.values.cover ? json_of(*outcome.values.cover) : Json(nullptr);
    if (!failure.empty()) {
        object["error"] = failure;
    }
    return object;
}

void print_text(const std::string& path, const ReadOutcome& outcome) {
    print(in_one_line(path) + "\n");
    for_each_text(outcome, [](const char* name, const std::optional<std::string>& text) {
        if (text) {
            print(std::string("  ") + name + ": " + in_one_line(*text) + "\n");
        }
    });
    if (outcome.values.year) {
        print("  year: " + std::to_string(*outcome.values.year) + "\n");
    }
    if (const auto& cover = outcome.values.cover) {
        print("  cover: " + in_one_line(cover->mime) + ", " + std::to_string(cover->bytes.size()) +
              " bytes\n");
    }
    if (!outcome.tags.empty()) {
        std::string tags;
        for (const std::string& tag : outcome.tags) {
            tags += (tags.empty() ? "" : ", ") + tag;
        }
        print("  tags: " + tags + "\n");
    }
}

} // namespace

bool show_files(const Request& request, const std::vector<FoundFile>& files) {
    bool all_well = true;
    const char* separator = "[\n";
    for (const FoundFile& file : files) {
        if (interruption() != 0) {
            break;
        }
        ReadOutcome outcome;
        std::string failure = file.failure;
        if (failure.empty()) {
            outcome = portable::read_tags(file.path);
            failure = outcome.failure ? sentence(*outcome.failure) : std::string();
        }
        if (request.json) {
            print(separator +
                  json_of(file.path, outcome, failure).dump(-1, ' ', false, Json::error_handler_t::replace));
            separator = ",\n";
        } else if (failure.empty()) {
            print_text(file.path, outcome);
        }
        if (!failure.empty()) {
            print_failure(file.path, failure);
            all_well = false;
        }
    }
    if (request.json) {
        print(*separator == '[' ? "[]\n" : "\n]\n");
    }
    return all_well;
}

} // namespace velmora::tag_tool
