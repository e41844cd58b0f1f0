#include "allocation_faults.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace velmora::test {

namespace {
thread_local AllocationFaults* watching = nullptr;

bool fails(std::size_t bytes) {
    if (!watching || !watching->request(bytes)) {
        return false;
    }
    errno = ENOMEM;
    return true;
}
} // namespace

AllocationFaults::AllocationFaults(int nth) : nth_(nth) {
    if (watching) {
        throw std::logic_error("this thread's memory requests are watched already");
    }
    watching = this;
}

AllocationFaults::~AllocationFaults() {
    watching = nullptr;
}

bool AllocationFaults::request(std::size_t bytes) {
    largest_ = std::max(largest_, bytes);
    return ++count_ == nth_;
}

} // namespace velmora::test

// The linker's --wrap=NAME leads each call of NAME to __wrap_NAME and gives the system's own as __real_NAME.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {

void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* memory, std::size_t size);
char* __real_strdup(const char* text);

void* __wrap_malloc(std::size_t size) {
    return velmora::test::fails(size) ? nullptr : __real_malloc(size);
}

void* __wrap_calloc(std::size_t count, std::size_t size) {
    return velmora::test::fails(count * size) ? nullptr : __real_calloc(count, size);
}

void* __wrap_realloc(void* memory, std::size_t size) {
    return velmora::test::fails(size) ? nullptr : __real_realloc(memory, size);
}

char* __wrap_strdup(const char* text) {
    return velmora::test::fails(std::strlen(text) + 1) ? nullptr : __real_strdup(text);
}
}
// NOLINTEND(bugprone-reserved-identifier)
