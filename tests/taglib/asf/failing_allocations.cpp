#include "failing_allocations.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>

namespace {

bool counting = false;
int made = 0;
int failing = 0;
std::size_t most = 0;

/** Whether the allocation of SIZE bytes that comes now fails. */
bool fails(std::size_t size) {
    if (!counting) {
        return false;
    }
    most = std::max(most, size);
    if (++made != failing) {
        return false;
    }
    errno = ENOMEM;
    return true;
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* block, std::size_t size);
char* __real_strdup(const char* text);

void* __wrap_malloc(std::size_t size) {
    return fails(size) ? nullptr : __real_malloc(size);
}
void* __wrap_calloc(std::size_t count, std::size_t size) {
    return fails(count * size) ? nullptr : __real_calloc(count, size);
}
void* __wrap_realloc(void* block, std::size_t size) {
    return fails(size) ? nullptr : __real_realloc(block, size);
}
char* __wrap_strdup(const char* text) {
    return fails(std::strlen(text) + 1) ? nullptr : __real_strdup(text);
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace velmora::test {

FailingAllocation::FailingAllocation(int nth) {
    made = 0;
    most = 0;
    failing = nth;
    counting = true;
}

FailingAllocation::~FailingAllocation() {
    counting = false;
}

int FailingAllocation::count() const {
    return made;
}

unsigned long FailingAllocation::largest() const {
    return most;
}

} // namespace velmora::test
