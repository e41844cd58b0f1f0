#include "library_row.h"

#include "platform/file_path.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>

namespace velmora {

namespace {

using Ends = std::array<std::uint32_t, portable::text_field_count>;

} // namespace

PackedTexts::PackedTexts(const portable::TagValues& values) {
    Ends ends{};
    std::string all;
    for (std::size_t i = 0; i < ends.size(); ++i) {
        all += values.texts[i].value_or("");
        ends[i] = static_cast<std::uint32_t>(all.size());
    }
    if (!all.empty()) {
        block_.reserve(static_cast<qsizetype>(sizeof ends + all.size()));
        block_.append(reinterpret_cast<const char*>(ends.data()), sizeof ends);
        block_.append(all.data(), static_cast<qsizetype>(all.size()));
    }
}

std::string_view PackedTexts::text(portable::Field field) const {
    if (block_.isEmpty()) {
        return {};
    }
    Ends ends{};
    std::memcpy(ends.data(), block_.constData(), sizeof ends);
    const auto index = static_cast<std::size_t>(field);
    const std::uint32_t begin = index == 0 ? 0 : ends[index - 1];
    return {block_.constData() + sizeof ends + begin, ends[index] - begin};
}

QString LibraryRow::name() const {
    return lastPathComponent(path);
}

QString LibraryRow::folder() const {
    return pathFolder(path);
}

std::uint64_t coverHash(const portable::Cover& cover) {
    const std::string_view bytes(reinterpret_cast<const char*>(cover.bytes.data()), cover.bytes.size());
    const std::uint64_t hash = std::hash<std::string_view>()(bytes);
    return hash == 0 ? 1 : hash;
}

bool RowEdits::changesTags() const {
    const auto asks = [](const auto& edit) { return !edit.leaves_alone(); };
    return asks(year) || asks(cover) || std::any_of(texts.begin(), texts.end(), asks);
}

portable::TagEdits RowEdits::tagEdits() const {
    portable::TagEdits edits;
    edits.texts = texts;
    edits.year = year;
    if (cover.sets()) {
        edits.cover = portable::Edit<portable::Cover>::set(**cover.value());
    } else if (cover.deletes()) {
        edits.cover = portable::Edit<portable::Cover>::remove();
    }
    return edits;
}

} // namespace velmora
