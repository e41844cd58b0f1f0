#include "library_row.h"

#include "platform/file_path.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace velmora {

namespace {

using FilterLength = std::uint32_t;

/** The number of texts in a row's block that have a zero behind them: the fields, and
   which tags there are. */
constexpr std::size_t endedTexts = portable::text_field_count + 1;

/** TEXTS without the first COUNT texts, each of which has a zero behind it. */
std::string_view behind(std::string_view texts, std::size_t count) {
    for (; count > 0; --count) {
        texts.remove_prefix(std::min(texts.find('\0'), texts.size() - 1) + 1);
    }
    return texts;
}

std::string_view textAt(std::string_view texts, std::size_t index) {
    texts = behind(texts, index);
    return texts.substr(0, texts.find('\0'));
}

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray byteCopy(std::string_view text) {
    return {text.data(), static_cast<qsizetype>(text.size())};
}

} // namespace

PackedTexts::PackedTexts(const portable::TagValues& values) : block_() {
    for (const std::optional<std::string>& text : values.texts) {
        block_ += text.value_or("").c_str();
        block_ += '\0';
    }
    block_.squeeze();
}

std::string_view PackedTexts::text(portable::Field field) const {
    return textAt(viewOf(block_), static_cast<std::size_t>(field));
}

LibraryRow::LibraryRow(const QString& path, std::uint64_t fileSize) : size(fileSize) {
    const auto kind = portable::media_kind(pathBytes(path).toStdString());
    media = kind ? kind->media : portable::Media::other;
    setPath(path);
}

std::string_view LibraryRow::packed() const {
    std::string_view rest = viewOf(block_);
    rest.remove_prefix(std::min(rest.size(), sizeof(FilterLength) + filter().folded.size()));
    return rest;
}

std::string_view LibraryRow::nameBytes() const {
    return behind(packed(), endedTexts);
}

QString LibraryRow::name() const {
    return pathFromBytes(byteCopy(nameBytes()));
}

QString LibraryRow::folder() const {
    return pathFolder(pathFromBytes(folder_));
}

QString LibraryRow::path() const {
    return pathFromBytes(folder_ + byteCopy(nameBytes()));
}

bool LibraryRow::isAt(const QByteArray& path) const {
    const std::string_view bytes = viewOf(path);
    const std::string_view name = nameBytes();
    return bytes.size() == viewOf(folder_).size() + name.size() && bytes.starts_with(viewOf(folder_)) &&
           bytes.ends_with(name);
}

std::string_view LibraryRow::text(portable::Field field) const {
    return textAt(packed(), static_cast<std::size_t>(field));
}

QString LibraryRow::tags() const {
    return QString::fromUtf8(byteCopy(textAt(packed(), portable::text_field_count)));
}

FilterView LibraryRow::filter() const {
    FilterLength length = 0;
    if (!block_.isEmpty()) {
        std::memcpy(&length, block_.constData(), sizeof length);
    }
    return {viewOf(block_).substr(std::min(viewOf(block_).size(), sizeof length), length), year, missing};
}

void LibraryRow::setPath(const QString& path) {
    const QByteArray bytes = pathBytes(path);
    const qsizetype nameStart = bytes.lastIndexOf('/') + 1;
    const std::string_view all = packed();
    const std::string texts = all.empty() ? std::string(endedTexts, '\0')
                                          : std::string(all.substr(0, all.size() - nameBytes().size()));
    folder_ = bytes.first(nameStart);
    pack({}, texts, viewOf(bytes).substr(static_cast<std::size_t>(nameStart)));
}

void LibraryRow::setTexts(const PackedTexts& texts, const QString& tags, const FilterText& filter) {
    missing = filter.missing();
    pack(filter.folded(), viewOf(texts.block() + tags.toUtf8() + '\0'), nameBytes());
}

void LibraryRow::setFilter(const FilterText& filter) {
    missing = filter.missing();
    pack(filter.folded(), packed(), {});
}

void LibraryRow::shareFolder(QSet<QByteArray>& folders) {
    folder_ = *folders.insert(folder_);
}

void LibraryRow::pack(std::string_view filter, std::string_view texts, std::string_view name) {
    const auto length = static_cast<FilterLength>(filter.size());
    const std::size_t whole = sizeof length + filter.size() + texts.size() + name.size();
    QByteArray block;
    block.reserve(static_cast<qsizetype>(whole));
    block.append(reinterpret_cast<const char*>(&length), sizeof length);
    for (const std::string_view part : {filter, texts, name}) {
        block.append(part.data(), static_cast<qsizetype>(part.size()));
    }
    block_ = std::move(block);
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
