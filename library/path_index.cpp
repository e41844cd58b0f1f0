#include "path_index.h"

#include <utility>

namespace velmora {

namespace {

constexpr std::size_t fewestSlots = 64;

} // namespace

void PathIndex::put(Slot slot) {
    std::size_t at = placeOf(slot.hash);
    while (slots_[at].number >= 0) {
        at = next(at);
    }
    slots_[at] = slot;
}

/** The hashes are kept, so that no path is looked at again: it would stall the window when there are many. */
void PathIndex::grow() {
    const std::vector<Slot> before =
        std::exchange(slots_, std::vector<Slot>(slots_.empty() ? fewestSlots : slots_.size() * 2));
    for (const Slot& slot : before) {
        if (slot.number >= 0) {
            put(slot);
        }
    }
}

void PathIndex::insert(std::uint32_t hash, int number) {
    if (slots_.size() * 4 <= count_ * 5) {
        grow();
    }
    put({hash, number});
    ++count_;
}

void PathIndex::remove(std::uint32_t hash, int number) {
    std::size_t at = placeOf(hash);
    while (slots_[at].number != number) {
        at = next(at);
    }
    slots_[at] = {};
    --count_;
    // What stood behind it may have been pushed there by it.
    for (at = next(at); slots_[at].number >= 0; at = next(at)) {
        put(std::exchange(slots_[at], {}));
    }
}

} // namespace velmora
