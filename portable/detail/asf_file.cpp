#include "asf_edits.h"
#include "asf_header.h"
#include "formats.h"
#include "splices.h"

#include "portable/reason.h"

#include <algorithm>
#include <array>

namespace velmora::portable {

namespace {

constexpr std::uint64_t size_offset = 16; ///< of an object, in its header
constexpr std::uint64_t largest_padding = std::uint64_t{64} << 10;
constexpr std::int64_t block_size = 4096; ///< of file systems
/** Files of so many bytes get padding that keeps their media at the blocks' bounds. */
constexpr std::uint64_t smallest_aligned = std::uint64_t{1} << 20;

Bytes le32(std::uint32_t value) {
    Bytes bytes;
    append_le32(bytes, value);
    return bytes;
}

Bytes le64(std::uint64_t value) {
    Bytes bytes;
    append_le64(bytes, value);
    return bytes;
}

std::uint64_t grown(std::uint64_t size, std::int64_t growth) {
    return size + static_cast<std::uint64_t>(growth);
}

/** A header extension object with OBJECTS in it. */
Bytes extension_with(const Bytes& objects) {
    constexpr std::uint16_t constant_number = 6;
    Bytes object = asf_object_header(ASF_HeaderExtension, asf_extension_fixed_size + objects.size());
    append(object, ASF_Reserved1.bytes);
    append_le16(object, constant_number);
    append_le32(object, static_cast<std::uint32_t>(objects.size()));
    append(object, objects);
    return object;
}

/** The field that the text NAME is a place of. */
std::optional<Field> field_of(const std::string& name) {
    for (std::size_t i = 0; i < field_count; ++i) {
        const auto field = static_cast<Field>(i);
        const AsfFieldNames& names = asf_field_names(field);
        const bool other = std::any_of(names.other_names.begin(), names.other_names.end(),
                                       [&](const char* candidate) { return is_asf_name(name, candidate); });
        if (field != Field::cover && (other || is_asf_name(name, names.name))) {
            return field;
        }
    }
    return std::nullopt;
}

/** The file with the lists that were changed, put together from its parts. */
class AsfRewriter {
public:
    AsfRewriter(const AsfHeader& header, std::uint64_t size)
        : header_(header), size_(size),
          insertion_(header.padding ? header.padding->begin : header.objects_end), count_(header.count) {}

    [[nodiscard]] Rewrite with(const AsfLists& lists) {
        for (const AsfAttributeList& list : lists) {
            if (list.changed) {
                put(list);
            }
        }
        put_extension();
        fit_padding();
        put_sizes();
        return {splices_.segments(size_), {}};
    }

private:
    void put(const AsfAttributeList& list) {
        const Bytes object = list.attributes.empty() ? Bytes() : list.object();
        const auto growth =
            static_cast<std::int64_t>(object.size()) - static_cast<std::int64_t>(list.range.size());
        if (list.in_extension) {
            extension_growth_ += growth;
        } else {
            count_ += (list.range.size() == 0 ? 1 : 0);
            count_ -= (object.empty() ? 1 : 0);
        }
        if (list.range.size() > 0) {
            splices_.replace(list.range, object);
        } else if (!list.in_extension) {
            splices_.replace({insertion_, insertion_}, object);
        } else if (header_.extension) {
            const std::uint64_t end = header_.extension->objects_end;
            splices_.replace({end, end}, object);
        } else {
            append(new_extension_, object);
        }
    }

    void put_extension() {
        if (!new_extension_.empty()) {
            splices_.replace({insertion_, insertion_}, extension_with(new_extension_));
            ++count_;
        } else if (extension_growth_ != 0) {
            const std::uint64_t begin = header_.extension->range.begin;
            const std::uint64_t objects = begin + asf_extension_fixed_size;
            const std::uint64_t objects_size = header_.extension->objects_end - objects;
            splices_.replace({begin + size_offset, begin + size_offset + 8},
                             le64(grown(header_.extension->range.size(), extension_growth_)));
            splices_.replace({objects - 4, objects},
                             le32(static_cast<std::uint32_t>(grown(objects_size, extension_growth_))));
        }
    }

    /** Keeps the header's size where the padding can take up the difference, so that the media stays where it
       was and file systems that share blocks can share them. */
    void fit_padding() {
        const std::int64_t growth = splices_.growth();
        const std::uint64_t old_size = header_.padding ? header_.padding->size() : 0;
        if (growth == 0 || old_size > largest_padding) {
            return;
        }
        const std::uint64_t size = grown(old_size, -growth);
        if (header_.padding && size >= asf_object_header_size && size <= largest_padding) {
            put_padding(size);
        } else if (size_ >= smallest_aligned) {
            // Whole blocks are half the work for the system, or none where files share them.
            const auto missing = static_cast<std::uint64_t>((block_size - growth % block_size) % block_size);
            const bool fits = old_size + missing >= asf_object_header_size;
            put_padding(old_size + missing + (fits ? 0 : block_size));
        }
    }

    void put_padding(std::uint64_t size) {
        Bytes padding = asf_object_header(ASF_PaddingObject, size);
        padding.resize(size);
        count_ += header_.padding ? 0 : 1;
        splices_.replace(header_.padding.value_or(Range{header_.objects_end, header_.objects_end}),
                         std::move(padding));
    }

    void put_sizes() {
        Bytes fields = le64(grown(header_.size, splices_.growth()));
        append_le32(fields, count_);
        const std::uint64_t file_size = grown(size_, splices_.growth());
        splices_.replace({size_offset, size_offset + fields.size()}, fields);
        for (const Range& object : header_.file_properties) {
            const std::uint64_t begin = object.begin + asf_file_size_offset;
            splices_.replace({begin, begin + 8}, le64(file_size));
        }
    }

    const AsfHeader& header_;
    std::uint64_t size_;
    std::uint64_t insertion_; ///< where new objects go
    std::uint32_t count_;
    Bytes new_extension_; ///< objects for a header extension that is not there yet
    std::int64_t extension_growth_ = 0;
    Splices splices_;
};

class AsfFile : public TaggedFile {
public:
    AsfFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) : size_(size), media_(media) {
        ReadWindow window(file);
        header_ = read_asf_header(window, size);
    }

    [[nodiscard]] std::vector<std::string> tags() const override {
        return items().empty() ? std::vector<std::string>() : std::vector<std::string>{"ASF"};
    }

    [[nodiscard]] TagValues values() const override { return asf_values(header_.lists, media_); }

    [[nodiscard]] std::vector<TagItem> items() const override {
        std::vector<TagItem> items;
        const std::vector<AsfPlace> covers = asf_cover_places(header_.lists);
        for (std::size_t list = 0; list < header_.lists.size(); ++list) {
            const std::vector<AsfAttribute>& attributes = header_.lists[list].attributes;
            for (std::size_t i = 0; i < attributes.size(); ++i) {
                const AsfAttribute& attribute = attributes[i];
                if (attribute.stream != 0 || attribute.record.empty()) {
                    continue;
                }
                const bool is_cover =
                    std::find(covers.begin(), covers.end(), AsfPlace{list, i}) != covers.end();
                items.push_back({"ASF " + attribute.name, attribute.record,
                                 is_cover ? std::optional(Field::cover) : field_of(attribute.name)});
            }
        }
        return items;
    }

    /** Everything but what a save may change: also the attributes of streams, by which these are played. */
    [[nodiscard]] std::vector<Range> payload() const override {
        std::vector<Range> left_out = {{size_offset, size_offset + 12}};
        if (header_.padding) {
            left_out.push_back(*header_.padding);
        }
        for (const Range& object : header_.file_properties) {
            const std::uint64_t begin = object.begin + asf_file_size_offset;
            left_out.push_back({begin, begin + 8});
        }
        if (header_.extension) {
            const std::uint64_t begin = header_.extension->range.begin;
            left_out.push_back({begin, begin + asf_extension_fixed_size});
        }
        for (const AsfAttributeList& list : header_.lists) {
            leave_out(list, left_out);
        }
        return ranges_without(std::move(left_out), size_);
    }

    void check_against(const TaggedFile& original) const override {
        static_cast<void>(original);
        // The size that the file says of itself is no item, and not among the bytes that stay.
        if (header_.file_size && *header_.file_size != size_) {
            throw Refusal({ReasonCode::would_lose, 0, "the size in the file properties"});
        }
    }

    [[nodiscard]] TagValues values_with(const TagEdits& edits) const override {
        TagValues values = edits.applied_to(this->values());
        if (edits.cover.deletes()) {
            values.cover = picture_behind_the_cover();
        }
        return values;
    }

    [[nodiscard]] Rewrite with(const TagEdits& edits) const override {
        AsfLists lists = header_.lists;
        apply_asf_edits(lists, edits);
        return AsfRewriter(header_, size_).with(lists);
    }

    [[nodiscard]] Rewrite without_tags() const override {
        AsfLists lists = header_.lists;
        remove_asf_attributes(lists);
        return AsfRewriter(header_, size_).with(lists);
    }

private:
    /** Adds what of LIST may change to LEFT_OUT. */
    static void leave_out(const AsfAttributeList& list, std::vector<Range>& left_out) {
        std::uint64_t begin = list.range.begin;
        for (const AsfAttribute& attribute : list.attributes) {
            if (attribute.stream != 0) {
                left_out.push_back({begin, attribute.range.begin});
                begin = attribute.range.end;
            }
        }
        left_out.push_back({begin, list.range.end});
    }

    /** What shows as the cover when the cover was taken out. */
    [[nodiscard]] std::optional<Cover> picture_behind_the_cover() const {
        const std::vector<AsfPlace> covers = asf_cover_places(header_.lists);
        for (const AsfPlace& place : asf_places(header_.lists, asf_field_names(Field::cover).name)) {
            const auto picture = read_asf_picture(place.in(header_.lists).value());
            if (picture && picture->type == 0 && !(place == covers.front())) {
                return picture->cover;
            }
        }
        return std::nullopt;
    }

    std::uint64_t size_;
    Media media_;
    AsfHeader header_;
};

} // namespace

std::unique_ptr<TaggedFile> open_asf(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) {
    return std::make_unique<AsfFile>(file, size, media);
}

} // namespace velmora::portable
