#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace velmora {

/** Finds a row's number by the hash of its path, in 8 bytes a slot; the paths themselves
   are kept by the rows. */
class PathIndex {
public:
    /** The number with HASH for which IS_MEANT(number) holds; -1 for none. */
    template <typename IsMeant>
    [[nodiscard]] int find(std::uint32_t hash, IsMeant isMeant) const {
        for (std::size_t at = placeOf(hash); !slots_.empty() && slots_[at].number >= 0; at = next(at)) {
            if (slots_[at].hash == hash && isMeant(slots_[at].number)) {
                return slots_[at].number;
            }
        }
        return -1;
    }
    /** NUMBER, which is not negative, can be found by HASH now. */
    void insert(std::uint32_t hash, int number);
    /** NUMBER, which can be found by HASH, can't any more. */
    void remove(std::uint32_t hash, int number);

private:
    /** A number stands in the first slot from its hash's place on that was free: what stands
       between is of others. */
    struct Slot {
        std::uint32_t hash = 0;
        int number = -1; ///< -1: free
    };

    [[nodiscard]] std::size_t placeOf(std::uint32_t hash) const { return hash & (slots_.size() - 1); }
    [[nodiscard]] std::size_t next(std::size_t at) const { return (at + 1) & (slots_.size() - 1); }
    void put(Slot slot);
    void grow();

    std::vector<Slot> slots_; ///< a power of two of them, or none
    std::size_t count_ = 0;
};

} // namespace velmora
