#include "allocation_faults.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>

namespace velmora::test {

namespace {
thread_local AllocationFaults* watching = nullptr;

bool fails(std::size_t bytes, Memory memory = Memory::malloc_family) {
    if (!watching || !watching->request(memory, bytes)) {
        return false;
    }
    errno = ENOMEM;
    return true;
}
} // namespace

AllocationFaults::AllocationFaults(int nth, Memory memory) : memory_(memory), nth_(nth) {
    if (watching) {
        throw std::logic_error("this thread's memory requests are watched already");
    }
    watching = this;
}

AllocationFaults::~AllocationFaults() {
    watching = nullptr;
}

bool AllocationFaults::request(Memory memory, std::size_t bytes) {
    if (memory != memory_) {
        return false;
    }
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

namespace {

void* allocate(std::size_t size) noexcept {
    const bool refused = velmora::test::fails(size, velmora::test::Memory::operator_new);
    return refused ? nullptr : __real_malloc(size > 0 ? size : 1);
}

} // namespace

// Every form for itself: the sanitizers' own array forms do not lead to the plain ones.
void* operator new(std::size_t size) {
    void* const memory = allocate(size);
    if (!memory) {
        throw std::bad_alloc();
    }
    return memory;
}

void* operator new[](std::size_t size) {
    return ::operator new(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete[](void* memory) noexcept {
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
