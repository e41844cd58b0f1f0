#include "allocation_faults.h"

#include <cerrno>
#include <cstddef>

namespace {
constexpr std::size_t nothing_fails = ~std::size_t{0};
std::size_t smallest_failing = nothing_fails;
} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __real_malloc(std::size_t size);
void* __real_realloc(void* block, std::size_t size);

void* __wrap_malloc(std::size_t size) {
    if (size >= smallest_failing) {
        errno = ENOMEM;
        return nullptr;
    }
    return __real_malloc(size);
}

void* __wrap_realloc(void* block, std::size_t size) {
    if (size >= smallest_failing) {
        errno = ENOMEM;
        return nullptr;
    }
    return __real_realloc(block, size);
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace velmora::test {

AllocationFaults::AllocationFaults(unsigned long smallest) {
    smallest_failing = smallest;
}

AllocationFaults::~AllocationFaults() {
    smallest_failing = nothing_fails;
}

} // namespace velmora::test
