#include "row_list.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace velmora {
namespace {

/** The most rows of one chunk: an insertion moves at most as many pointers. */
constexpr std::size_t chunkCapacity = 256;

} // namespace

const ColdataPointer& RowList::at(std::size_t index) const {
    auto chunk = chunks_.begin();
    while (index >= chunk->size()) {
        index -= chunk->size();
        ++chunk;
    }
    return (*chunk)[index];
}

void RowList::append(ColdataPointer row) {
    if (chunks_.empty() || chunks_.back().size() == chunkCapacity) {
        chunks_.emplace_back().reserve(chunkCapacity);
    }
    chunks_.back().push_back(std::move(row));
    ++count_;
}

void RowList::insertBeforeFirst(const RowTest& isBehind, ColdataPointer row) {
    const auto chunk = std::partition_point(chunks_.begin(), chunks_.end(),
                                            [&](const Chunk& rows) { return !isBehind(*rows.back()); });
    if (chunk == chunks_.end()) {
        append(std::move(row));
        return;
    }
    const auto place = std::partition_point(
        chunk->begin(), chunk->end(), [&](const ColdataPointer& existing) { return !isBehind(*existing); });
    chunk->insert(place, std::move(row));
    ++count_;
    if (chunk->size() > chunkCapacity) {
        const auto middle = chunk->begin() + static_cast<std::ptrdiff_t>(chunk->size() / 2);
        Chunk upperHalf(std::make_move_iterator(middle), std::make_move_iterator(chunk->end()));
        chunk->erase(middle, chunk->end());
        chunks_.insert(std::next(chunk), std::move(upperHalf));
    }
}

std::vector<RowList::Chunk>::iterator RowList::chunkOf(std::size_t& index) {
    auto chunk = chunks_.begin();
    while (index >= chunk->size()) {
        index -= chunk->size();
        ++chunk;
    }
    return chunk;
}

void RowList::remove(std::size_t index) {
    const auto chunk = chunkOf(index);
    chunk->erase(chunk->begin() + static_cast<std::ptrdiff_t>(index));
    if (chunk->empty()) {
        chunks_.erase(chunk);
    }
    --count_;
}

void RowList::replace(std::size_t index, ColdataPointer row) {
    const auto chunk = chunkOf(index);
    (*chunk)[index] = std::move(row);
}

void RowList::stableSort(const std::function<bool(const coldata&, const coldata&)>& isBefore) {
    std::vector<ColdataPointer> rows;
    rows.reserve(count_);
    for (Chunk& chunk : chunks_) {
        std::move(chunk.begin(), chunk.end(), std::back_inserter(rows));
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [&](const ColdataPointer& a, const ColdataPointer& b) { return isBefore(*a, *b); });
    chunks_.clear();
    count_ = 0;
    for (ColdataPointer& row : rows) {
        append(std::move(row));
    }
}

} // namespace velmora
