#pragma once

#include <cstddef>

namespace velmora::test {

/** Which requests an object watches. */
enum class Memory {
    malloc_family, ///< malloc, calloc, realloc and strdup, by the program's own objects and static libraries
    operator_new,  ///< new, by whatever code; one that fails throws std::bad_alloc
};

/** Makes chosen memory requests of one kind fail while an object lives, for the requests of its own thread;
   at most one lives in a thread. A test program gets this by linking velmora_allocation_faults. The C
   library's own requests always succeed. */
class AllocationFaults {
public:
    /** The NTH request from now on (1 is the first) fails; 0: none does, they are only counted. */
    explicit AllocationFaults(int nth = 0, Memory memory = Memory::malloc_family);
    ~AllocationFaults();
    AllocationFaults(const AllocationFaults&) = delete;
    AllocationFaults& operator=(const AllocationFaults&) = delete;

    /** Requests so far, the failed one included. */
    [[nodiscard]] int count() const { return count_; }
    /** The largest request, in bytes: shows memory taken only because a file says so. */
    [[nodiscard]] std::size_t largest() const { return largest_; }

    /* For the wrapped calls, not for tests. */

    /** Counts a request and tells whether it fails. */
    [[nodiscard]] bool request(Memory memory, std::size_t bytes);

private:
    Memory memory_;
    int nth_;
    int count_ = 0;
    std::size_t largest_ = 0;
};

} // namespace velmora::test
