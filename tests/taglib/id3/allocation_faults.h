#pragma once

/** Makes allocations of this test program fail; --wrap leads malloc and realloc through here. */
namespace velmora::test {

/** While an object lives, every malloc and realloc of at least SMALLEST bytes fails. */
class AllocationFaults {
public:
    explicit AllocationFaults(unsigned long smallest = 0);
    ~AllocationFaults();
    AllocationFaults(const AllocationFaults&) = delete;
    AllocationFaults& operator=(const AllocationFaults&) = delete;
};

} // namespace velmora::test
