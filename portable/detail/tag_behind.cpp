#include "tag_behind.h"

#include "in_place_tag.h"

#include "portable/reason.h"

#include <numeric>

namespace velmora::portable {

namespace {

std::uint64_t size_of(const std::vector<Segment>& segments) {
    return std::accumulate(segments.begin(), segments.end(), std::uint64_t{0},
                           [](std::uint64_t sum, const Segment& segment) {
                               const auto* const range = std::get_if<Range>(&segment);
                               return sum + (range ? range->size() : std::get<0>(segment).size());
                           });
}

/** EDITS of FIELD alone. */
TagEdits only(const TagEdits& edits, Field field) {
    TagEdits one;
    if (field == Field::year) {
        one.year = edits.year;
    } else if (field == Field::cover) {
        one.cover = edits.cover;
    } else {
        one.text(field) = edits.text(field);
    }
    return one;
}

TagEdits removal_of_all() {
    TagEdits all;
    all.texts.fill(Edit<std::string>::remove());
    all.year = Edit<int>::remove();
    all.cover = Edit<Cover>::remove();
    return all;
}

bool has(const TagValues& values, Field field) {
    return field == Field::year    ? values.year.has_value()
           : field == Field::cover ? values.cover.has_value()
                                   : values.text(field).has_value();
}

class FileBeforeTag : public TaggedFile {
public:
    FileBeforeTag(OpenFormat open, FIOFUNCSTRUCT* file, std::uint64_t size, Media media)
        : window_(file, 0), media_(media), tag_range_{size, size} {
        if (auto found = InPlaceTag::find(window_, size)) {
            tag_ = std::move(found->tag);
            tag_range_.begin = found->begin;
        }
        format_ = open(file, tag_range_.begin, media);
    }

    [[nodiscard]] std::vector<std::string> tags() const override {
        std::vector<std::string> tags = format_->tags();
        if (tag_) {
            tags.push_back("ID3v2." + std::to_string(tag_->version()) + " at the end");
        }
        return tags;
    }
    [[nodiscard]] TagValues values() const override { return format_->values(); }
    [[nodiscard]] std::vector<TagItem> items() const override;
    [[nodiscard]] std::vector<Range> payload() const override { return format_->payload(); }
    void check_against(const TaggedFile& original) const override {
        format_->check_against(*dynamic_cast<const FileBeforeTag&>(original).format_);
    }
    [[nodiscard]] TagEdits completed(const TagEdits& edits) const override {
        return format_->completed(edits);
    }
    [[nodiscard]] TagValues values_with(const TagEdits& edits) const override {
        return format_->values_with(edits);
    }
    [[nodiscard]] Rewrite with(const TagEdits& edits) const override;
    [[nodiscard]] Rewrite without_tags() const override { return format_->without_tags(); }

private:
    [[nodiscard]] InPlaceTag tag_with(const TagEdits& edits) const;

    ReadWindow window_;
    Media media_;
    Range tag_range_; ///< empty where there is none
    std::optional<InPlaceTag> tag_;
    std::unique_ptr<TaggedFile> format_;
};

std::vector<TagItem> FileBeforeTag::items() const {
    std::vector<TagItem> items = format_->items();
    for (TagItem& item : tag_ ? tag_->items(media_) : std::vector<TagItem>()) {
        item.name += " at the end";
        items.push_back(std::move(item));
    }
    return items;
}

/** The tag with those EDITS whose fields it has. What it can't hold it does not say any more. */
InPlaceTag FileBeforeTag::tag_with(const TagEdits& edits) const {
    InPlaceTag tag = *tag_;
    for (std::size_t i = 0; i < field_count; ++i) {
        const auto field = static_cast<Field>(i);
        if (!edits.asks_for(field) || !has(tag.values(media_), field)) {
            continue;
        }
        try {
            tag.apply(only(edits, field), media_);
        } catch (const Refusal&) {
            tag.apply(only(removal_of_all(), field), media_);
        }
    }
    return tag;
}

Rewrite FileBeforeTag::with(const TagEdits& edits) const {
    Rewrite rewrite = format_->with(edits);
    if (!tag_) {
        return rewrite;
    }
    const InPlaceTag tag = tag_with(edits);
    if (tag == *tag_) {
        rewrite.segments.emplace_back(tag_range_);
    } else if (!tag.empty()) {
        rewrite.finish = [finish = rewrite.finish, tag,
                          end = size_of(rewrite.segments)](FIOFUNCSTRUCT* file) {
            if (finish) {
                finish(file);
            }
            tag.store(file, end);
        };
    }
    return rewrite;
}

} // namespace

std::unique_ptr<TaggedFile> open_before_tag(OpenFormat open, FIOFUNCSTRUCT* file, std::uint64_t size,
                                            Media media) {
    return std::make_unique<FileBeforeTag>(open, file, size, media);
}

} // namespace velmora::portable
