#pragma once

#include <cstddef>

namespace velmora::test {

/** Makes chosen memory requests of the malloc family fail while an object lives, for the requests of its own
   thread; at most one lives in a thread. A test program gets this by linking velmora_allocation_faults. It
   reaches the malloc, calloc, realloc and strdup calls of the program's own objects and static libraries; new
   and the C library's own requests always succeed. */
class AllocationFaults {
public:
    /** The NTH request from now on (1 is the first) fails; 0: none does, they are only counted. */
    explicit AllocationFaults(int nth = 0);
    ~AllocationFaults();
    AllocationFaults(const AllocationFaults&) = delete;
    AllocationFaults& operator=(const AllocationFaults&) = delete;

    /** Requests so far, the failed one included. */
    [[nodiscard]] int count() const { return count_; }
    /** The largest request, in bytes: shows memory taken only because a file says so. */
    [[nodiscard]] std::size_t largest() const { return largest_; }

    /* For the wrapped calls, not for tests. */

    /** Counts a request and tells whether it fails. */
    [[nodiscard]] bool request(std::size_t bytes);

private:
    int nth_;
    int count_ = 0;
    std::size_t largest_ = 0;
};

} // namespace velmora::test
