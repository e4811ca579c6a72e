#include "bench/Allocations.h"

#include <cstddef>

// The program's own allocation functions come before those of the C library, which these call.
// `new` comes here too.

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
}

namespace {

long counted = 0;

} // namespace

long bench::allocations()
{
    return counted;
}

extern "C" __attribute__((visibility("default"))) void *malloc(std::size_t size)
{
    ++counted;
    return __libc_malloc(size);
}

extern "C" __attribute__((visibility("default"))) void *calloc(std::size_t count, std::size_t size)
{
    ++counted;
    return __libc_calloc(count, size);
}

extern "C" __attribute__((visibility("default"))) void *realloc(void *block, std::size_t size)
{
    ++counted;
    return __libc_realloc(block, size);
}
