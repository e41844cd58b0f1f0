#include "formats.h"
#include "in_place_tag.h"

namespace velmora::portable {

namespace {

/** Media of a kind that has no tag that others read, or none at all (a side file): the program's own
   tag stands behind it. */
class OwnTagFile : public TaggedFile {
public:
    OwnTagFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media)
        : window_(file, 0), media_(media), end_(size) {
        if (auto found = InPlaceTag::find(window_, size)) {
            tag_ = std::move(found->tag);
            end_ = found->begin;
        }
        size_ = size;
    }

    [[nodiscard]] std::vector<std::string> tags() const override {
        return tag_ ? std::vector<std::string>{"ID3v2." + std::to_string(tag_->version()) + " at the end"}
                    : std::vector<std::string>();
    }
    [[nodiscard]] TagValues values() const override { return tag_ ? tag_->values(media_) : TagValues(); }
    [[nodiscard]] std::vector<TagItem> items() const override {
        return tag_ ? tag_->items(media_) : std::vector<TagItem>();
    }
    [[nodiscard]] std::vector<Range> payload() const override { return {{0, end_}}; }

    [[nodiscard]] Rewrite with(const TagEdits& edits) const override {
        InPlaceTag tag = tag_.value_or(InPlaceTag());
        tag.apply(edits, media_);
        if (tag == tag_.value_or(InPlaceTag())) {
            return {{Range{0, size_}}, {}};
        }
        if (tag.empty()) {
            return without_tags();
        }
        const std::uint64_t end = end_;
        return {{Range{0, end}}, [tag, end](FIOFUNCSTRUCT* file) { tag.store(file, end); }};
    }
    [[nodiscard]] Rewrite without_tags() const override { return {{Range{0, end_}}, {}}; }

private:
    ReadWindow window_;
    Media media_;
    std::uint64_t end_; ///< of the media
    std::uint64_t size_ = 0;
    std::optional<InPlaceTag> tag_;
};

} // namespace

std::unique_ptr<TaggedFile> open_own_tag(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) {
    return std::make_unique<OwnTagFile>(file, size, media);
}

} // namespace velmora::portable
