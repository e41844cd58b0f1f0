#include "riff_info.h"

#include "checked_read.h"
#include "date_text.h"
#include "picture_mime.h"
#include "refusals.h"
#include "text.h"

#include <algorithm>
#include <span>

namespace velmora::portable {

namespace {

constexpr std::uint64_t largest_list = std::uint64_t{128} << 20;
constexpr std::size_t most_items = 250'000;

struct InfoCode {
    std::uint32_t fourcc;
    Field field;
};

/* In the order in which new items are put behind the others. Of films the director is in IART and the cast in
ISTR. */
constexpr std::array film_codes = {
    InfoCode{make_fourcc("INAM"), Field::title},    InfoCode{make_fourcc("ISTR"), Field::artist},
    InfoCode{make_fourcc("ICMT"), Field::synopsis}, InfoCode{make_fourcc("IART"), Field::director},
    InfoCode{make_fourcc("IRTD"), Field::rating},   InfoCode{make_fourcc("IGNR"), Field::genre},
    InfoCode{make_fourcc("ICRD"), Field::year},     InfoCode{make_fourcc("IPIC"), Field::cover},
};
constexpr std::array song_codes = {
    InfoCode{make_fourcc("INAM"), Field::title}, InfoCode{make_fourcc("IART"), Field::artist},
    InfoCode{make_fourcc("IPRD"), Field::album}, InfoCode{make_fourcc("ICMT"), Field::synopsis},
    InfoCode{make_fourcc("IGNR"), Field::genre}, InfoCode{make_fourcc("ICRD"), Field::year},
};

std::span<const InfoCode> codes_of(Media media) {
    return media == Media::audio ? std::span<const InfoCode>(song_codes)
                                 : std::span<const InfoCode>(film_codes);
}

} // namespace

std::string info_text(std::span<const std::uint8_t> data) {
    const std::string_view all(reinterpret_cast<const char*>(data.data()), data.size());
    const std::string_view text = all.substr(0, all.find('\0'));
    std::string valid = valid_utf8(text);
    return valid == text ? valid : utf8_from_latin1(data.first(text.size()));
}

void RiffInfo::read(const ReadCursor& cursor, const Chunk& chunk) {
    ReadCursor list = cursor;
    if (chunk.whole.size() > largest_list || !list.seek(chunk.data().begin + 4)) {
        refuse_unsupported("an INFO list of more than 128 MiB");
    }
    list = list.slice(chunk.whole.end - list.position());
    while (const std::optional<Chunk> item = next_chunk(list, std::endian::little)) {
        if (items_.size() == most_items) {
            refuse_unsupported("an INFO list of more than 250000 items");
        }
        items_.push_back({item->fourcc, read_range(list, item->data(), "an INFO list")});
    }
    const Bytes rest = read_bytes(list, list.left(), "an INFO list");
    damaged_ = damaged_ || std::any_of(rest.begin(), rest.end(), [](std::uint8_t byte) { return byte != 0; });
}

std::optional<Field> RiffInfo::field_of(std::uint32_t fourcc) const {
    for (const InfoCode& code : codes_of(media_)) {
        if (code.fourcc == fourcc) {
            return code.field;
        }
    }
    return std::nullopt;
}

std::string RiffInfo::text_of(std::uint32_t fourcc) const {
    std::vector<std::string> values;
    for (const InfoItem& item : items_) {
        if (item.fourcc == fourcc) {
            values.push_back(info_text(item.data));
        }
    }
    return joined(values);
}

TagValues RiffInfo::values() const {
    TagValues values;
    for (const InfoCode& code : codes_of(media_)) {
        if (code.field == Field::year) {
            values.year = year_of(text_of(code.fourcc));
        } else if (code.field != Field::cover) {
            std::string text = text_of(code.fourcc);
            if (!text.empty()) {
                values.text(code.field) = std::move(text);
            }
        }
    }
    for (const InfoItem& item : items_) {
        if (field_of(item.fourcc) == Field::cover && !item.data.empty() && !values.cover) {
            values.cover = Cover{item.data, picture_mime(item.data)};
        }
    }
    return values;
}

std::vector<TagItem> RiffInfo::items() const {
    std::vector<TagItem> items;
    for (const InfoItem& item : items_) {
        items.push_back({"INFO " + fourcc_name(item.fourcc), item.data, field_of(item.fourcc)});
    }
    return items;
}

void RiffInfo::refuse_damaged() const {
    if (damaged_) {
        portable::refuse_damaged("an item reaches out of the INFO list");
    }
}

Bytes RiffInfo::data_for(std::uint32_t fourcc, Field field, const TagEdits& edits) const {
    if (field == Field::cover) {
        return edits.cover.value()->bytes;
    }
    Bytes data;
    append(data, field == Field::year ? date_with_year(text_of(fourcc), *edits.year.value())
                                      : *edits.text(field).value());
    data.push_back(0);
    return data;
}

Bytes RiffInfo::with(const TagEdits& edits) const {
    Bytes list;
    append_le32(list, fourcc::info);
    std::vector<std::uint32_t> put; // the codes that have their new value
    const auto put_value = [&](std::uint32_t fourcc, Field field) {
        if (edits.sets(field) && std::find(put.begin(), put.end(), fourcc) == put.end()) {
            append(list, make_chunk(fourcc, data_for(fourcc, field, edits), std::endian::little));
            put.push_back(fourcc);
        }
    };
    for (const InfoItem& item : items_) {
        const std::optional<Field> field = field_of(item.fourcc);
        if (!field || !edits.asks_for(*field)) {
            append(list, make_chunk(item.fourcc, item.data, std::endian::little));
        } else {
            put_value(item.fourcc, *field);
        }
    }
    for (const InfoCode& code : codes_of(media_)) {
        put_value(code.fourcc, code.field);
    }
    return list.size() == 4 ? Bytes() : make_chunk(fourcc::list, list, std::endian::little);
}

} // namespace velmora::portable
