#include "vorbis_comments.h"

#include "date_text.h"
#include "id3v2_text.h"
#include "save_edits.h"
#include "text.h"

#include "portable/reason.h"

#include <algorithm>

namespace velmora::portable {

namespace {

constexpr std::uint32_t most_comments = 250'000; ///< what no file has, and little memory

using ByteView = std::span<const std::uint8_t>;

struct KeyRow {
    std::string_view key;
    Field field;
};

constexpr std::array keys = {
    KeyRow{"TITLE", Field::title},          KeyRow{"ARTIST", Field::artist},
    KeyRow{"ALBUM", Field::album},          KeyRow{"DIRECTOR", Field::director},
    KeyRow{"DESCRIPTION", Field::synopsis}, KeyRow{"GENRE", Field::genre},
    KeyRow{"CONTENTRATING", Field::rating}, KeyRow{"DATE", Field::year},
};

std::optional<Field> field_of(std::string_view comment, Media media) {
    const std::string_view key = VorbisComments::key_of(comment);
    const auto* const row = std::find_if(keys.begin(), keys.end(), [&](const KeyRow& candidate) {
        return equal_ignoring_case(candidate.key, key);
    });
    return row != keys.end() && has_field(media, row->field) ? std::optional(row->field) : std::nullopt;
}

std::string comment_for(Field field, std::string_view value) {
    const auto* const row = std::find_if(keys.begin(), keys.end(),
                                         [&](const KeyRow& candidate) { return candidate.field == field; });
    return std::string(row->key) + '=' + std::string(value);
}

std::string take_text(ByteView& bytes) {
    const auto refuse = [] { throw Refusal({ReasonCode::damaged, 0, "Vorbis comments"}); };
    if (bytes.size() < 4) {
        refuse();
    }
    const std::uint32_t size = load_le32(bytes.data());
    if (size > bytes.size() - 4) {
        refuse();
    }
    std::string text(reinterpret_cast<const char*>(bytes.data()) + 4, size);
    bytes = bytes.subspan(4 + std::size_t{size});
    return text;
}

void append_text(Bytes& bytes, std::string_view text) {
    append_le32(bytes, static_cast<std::uint32_t>(text.size()));
    append(bytes, text);
}

std::string in_capitals(std::string_view key) {
    std::string capitals(key);
    std::transform(capitals.begin(), capitals.end(), capitals.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return capitals;
}

Bytes bytes_of(std::string_view text) {
    return {text.begin(), text.end()};
}

} // namespace

std::string_view VorbisComments::key_of(std::string_view comment) {
    const std::size_t equals = comment.find('=');
    return comment.substr(0, equals == std::string_view::npos ? 0 : equals);
}

std::string_view VorbisComments::value_of(std::string_view comment) {
    return comment.substr(comment.find('=') + 1);
}

VorbisComments::VorbisComments(ByteView bytes) {
    vendor_ = take_text(bytes);
    if (bytes.size() < 4) {
        throw Refusal({ReasonCode::damaged, 0, "Vorbis comments"});
    }
    std::uint32_t count = load_le32(bytes.data());
    bytes = bytes.subspan(4);
    if (count > most_comments) {
        throw Refusal({ReasonCode::too_large, 0, "Vorbis comments"});
    }
    for (; count > 0; --count) {
        comments_.push_back(take_text(bytes));
    }
    rest_.assign(bytes.begin(), bytes.end());
}

std::vector<std::string> VorbisComments::values_of(Field field, Media media) const {
    std::vector<std::string> values;
    for (const std::string& comment : comments_) {
        if (field_of(comment, media) == field) {
            values.push_back(valid_utf8(value_of(comment)));
        }
    }
    return values;
}

TagValues VorbisComments::values(Media media) const {
    TagValues values;
    for (std::size_t i = 0; i < text_field_count; ++i) {
        std::string text = joined(values_of(static_cast<Field>(i), media));
        if (!text.empty()) {
            values.texts[i] = std::move(text);
        }
    }
    for (const std::string& date : values_of(Field::year, media)) {
        values.year = values.year ? values.year : year_of(date);
    }
    return values;
}

std::vector<TagItem> VorbisComments::items(Media media) const {
    std::vector<TagItem> items{{"Vorbis vendor", bytes_of(vendor_), std::nullopt}};
    for (const std::string& comment : comments_) {
        items.push_back(
            {"Vorbis " + in_capitals(key_of(comment)), bytes_of(comment), field_of(comment, media)});
    }
    items.push_back({"Vorbis end", rest_, std::nullopt});
    return items;
}

/** Replaces the first comment of FIELD, or puts one behind all others, and removes the rest of them. */
void VorbisComments::replace(Field field, Media media, std::optional<std::string> comment) {
    std::vector<std::string> comments;
    for (std::string& old : comments_) {
        if (field_of(old, media) != field) {
            comments.push_back(std::move(old));
        } else if (comment) {
            comments.push_back(std::move(*comment));
            comment.reset();
        }
    }
    if (comment) {
        comments.push_back(std::move(*comment));
    }
    comments_ = std::move(comments);
}

void VorbisComments::apply(const TagEdits& edits, Media media) {
    const TagValues old = values(media);
    for (std::size_t i = 0; i < text_field_count; ++i) {
        const auto field = static_cast<Field>(i);
        const Edit<std::string>& edit = edits.texts[i];
        if (edit.deletes()) {
            replace(field, media, std::nullopt);
        } else if (edit.sets() && edit.value() != old.texts[i]) {
            replace(field, media, comment_for(field, *edit.value()));
        }
    }
    if (edits.year.deletes()) {
        replace(Field::year, media, std::nullopt);
    } else if (edits.year.sets() && edits.year.value() != old.year) {
        replace(Field::year, media, comment_for(Field::year, date_with_year({}, *edits.year.value())));
    }
}

Bytes VorbisComments::bytes() const {
    Bytes bytes;
    append_text(bytes, vendor_);
    append_le32(bytes, static_cast<std::uint32_t>(comments_.size()));
    for (const std::string& comment : comments_) {
        append_text(bytes, comment);
    }
    append(bytes, rest_);
    return bytes;
}

} // namespace velmora::portable
