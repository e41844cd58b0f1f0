#include "rewriting.h"

#include "portable/reason.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "taglib/byte_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <map>

namespace velmora::test {

using namespace portable;

namespace {

/** A file on the disk, taken apart. */
class Opened {
public:
    Opened(std::string_view bytes, std::string_view extension)
        : path_(folder_ / ("file." + std::string(extension))) {
        write_file(path_, bytes);
        if (!file_.open(path_.c_str(), O_RDWR)) {
            throw std::runtime_error("can't open " + path_);
        }
        size_ = bytes.size();
    }

    FIOFUNCSTRUCT* handle() { return file_.handle(); }
    [[nodiscard]] std::string bytes() const { return read_file(path_); }
    [[nodiscard]] std::unique_ptr<TaggedFile> taken_apart() {
        return open_tagged_file(file_.handle(), size_, *media_kind(path_));
    }

private:
    ScratchFolder folder_;
    std::string path_;
    ByteFile file_;
    std::uint64_t size_ = 0;
};

std::string put_together(std::string_view bytes, std::string_view extension, const Rewrite& rewrite) {
    std::string made;
    for (const Segment& segment : rewrite.segments) {
        if (const Range* const range = std::get_if<Range>(&segment)) {
            made += bytes.substr(range->begin, range->size());
        } else {
            const auto& own = std::get<std::vector<std::uint8_t>>(segment);
            made.append(own.begin(), own.end());
        }
    }
    if (!rewrite.finish) {
        return made;
    }
    Opened file(made, extension);
    rewrite.finish(file.handle());
    return file.bytes();
}

using Inventory = std::map<std::string, std::vector<std::vector<std::uint8_t>>>;

Inventory items_not_asked_for(const TaggedFile& file, const TagEdits& edits) {
    Inventory inventory;
    for (const TagItem& item : file.items()) {
        if (!item.field || !edits.asks_for(*item.field)) {
            inventory[item.name].push_back(item.bytes);
        }
    }
    return inventory;
}

} // namespace

std::string bytes_of(std::string_view file, const std::vector<Range>& ranges) {
    std::string bytes;
    for (const Range& range : ranges) {
        bytes += file.substr(range.begin, range.size());
    }
    return bytes;
}

TagValues values_in(std::string_view bytes, std::string_view extension) {
    return Opened(bytes, extension).taken_apart()->values();
}

std::string edited(std::string_view bytes, std::string_view extension, const TagEdits& edits) {
    Opened old_file(bytes, extension);
    const auto old = old_file.taken_apart();
    const TagEdits completed = old->completed(edits);
    const std::string made = put_together(bytes, extension, old->with(completed));
    Opened new_file(made, extension);
    const auto now = new_file.taken_apart();
    EXPECT_EQ(old->values_with(completed), now->values());
    EXPECT_EQ(items_not_asked_for(*old, completed), items_not_asked_for(*now, completed));
    EXPECT_TRUE(bytes_of(bytes, old->payload()) == bytes_of(made, now->payload())) << "media differ";
    now->check_against(*old);
    return made;
}

std::string without_tags(std::string_view bytes, std::string_view extension) {
    Opened old_file(bytes, extension);
    const auto old = old_file.taken_apart();
    const std::string made = put_together(bytes, extension, old->without_tags());
    Opened new_file(made, extension);
    const auto now = new_file.taken_apart();
    EXPECT_EQ(TagValues{}, now->values());
    EXPECT_EQ(std::vector<std::string>{}, now->tags());
    EXPECT_TRUE(bytes_of(bytes, old->payload()) == bytes_of(made, now->payload())) << "media differ";
    now->check_against(*old);
    return made;
}

void check_moved(std::string_view old, std::string_view made, std::string_view extension) {
    Opened old_file(old, extension);
    Opened new_file(made, extension);
    new_file.taken_apart()->check_against(*old_file.taken_apart());
}

TagEdits set_text(Field field, std::string text) {
    TagEdits edits;
    edits.text(field) = Edit<std::string>::set(std::move(text));
    return edits;
}

TagEdits remove_text(Field field) {
    TagEdits edits;
    edits.text(field) = Edit<std::string>::remove();
    return edits;
}

std::string refusal_of(const std::function<void()>& action) {
    try {
        action();
    } catch (const Refusal& refusal) {
        return sentence(refusal.reason());
    }
    return {};
}

} // namespace velmora::test
