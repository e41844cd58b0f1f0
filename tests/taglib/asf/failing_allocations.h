#pragma once

/** Makes allocations of this test program fail; --wrap leads malloc, calloc, realloc and strdup through
    here. */
namespace velmora::test {

/** While an object lives, allocations are counted and the NTH one (1 is the first, 0 is none) fails. */
class FailingAllocation {
public:
    explicit FailingAllocation(int nth = 0);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;

    /** Allocations made so far. */
    [[nodiscard]] int count() const;
    /** The most bytes that one of them asked for. */
    [[nodiscard]] unsigned long largest() const;
};

} // namespace velmora::test
