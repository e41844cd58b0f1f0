#pragma once

#include "browser/media_row.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace velmora {

/** A list of rows that takes a new one at any place at the same small cost, also when it is very long. */
class RowList {
public:
    using RowTest = std::function<bool(const coldata&)>;

    [[nodiscard]] std::size_t count() const { return count_; }
    /** The row at INDEX, which is less than count(). */
    [[nodiscard]] const ColdataPointer& at(std::size_t index) const;

    void append(ColdataPointer row);
    /** Inserts ROW before the first row that ISBEHIND says yes to, at the end when there is none. The rows
       must be in such an order that none says no behind one that says yes. */
    void insertBeforeFirst(const RowTest& isBehind, ColdataPointer row);
    /** Takes the row at INDEX, which is less than count(), off the list. */
    void remove(std::size_t index);
    /** Puts ROW into the place of the one at INDEX, which is less than count(). */
    void replace(std::size_t index, ColdataPointer row);
    /** Puts the rows in order; those that compare equal stay as they are. ISBEFORE is a strict
       weak ordering. */
    void stableSort(const std::function<bool(const coldata&, const coldata&)>& isBefore);

private:
    using Chunk = std::vector<ColdataPointer>;

    /** The chunk with the row at INDEX, which becomes the row's index in it. */
    [[nodiscard]] std::vector<Chunk>::iterator chunkOf(std::size_t& index);

    /** None is empty. */
    std::vector<Chunk> chunks_;
    std::size_t count_ = 0;
};

} // namespace velmora
