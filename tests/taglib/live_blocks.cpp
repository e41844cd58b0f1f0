#include "live_blocks.h"

#include <cstddef>

namespace {
long count = 0;

template <typename Block>
Block* taken(Block* block) {
    count += block != nullptr;
    return block;
}
} // namespace

namespace velmora::test {
long live_blocks() {
    return count;
}
} // namespace velmora::test

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {

void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t amount, std::size_t size);
void* __real_realloc(void* block, std::size_t size);
char* __real_strdup(const char* text);
void __real_free(void* block);

void* __wrap_malloc(std::size_t size) {
    return taken(__real_malloc(size));
}

void* __wrap_calloc(std::size_t amount, std::size_t size) {
    return taken(__real_calloc(amount, size));
}

void* __wrap_realloc(void* block, std::size_t size) {
    const bool is_new = block == nullptr;
    void* const resized = __real_realloc(block, size);
    return is_new ? taken(resized) : resized;
}

char* __wrap_strdup(const char* text) {
    return taken(__real_strdup(text));
}

void __wrap_free(void* block) {
    count -= block != nullptr;
    __real_free(block);
}
}
// NOLINTEND(bugprone-reserved-identifier)
