// Preloaded into a till, this lets its allocations fail: the one whose number is in
// TILL_MEMORY_FAILS_AT, or with TILL_MEMORY_FAILS_ON set that one and all that follow. How many
// there were in all is written to the file that TILL_MEMORY_COUNT names.

#include <cstddef>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

#define EXPORTED __attribute__((visibility("default")))

extern "C" {
// The C library's own, under the names by which it can be reached when the usual ones are taken.
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
}

namespace {

long allocations = 0;
long failsAt = 0; //!< 0: never
bool failsOn = false;

bool fails()
{
    ++allocations;
    return failsAt != 0 && (failsOn ? allocations >= failsAt : allocations == failsAt);
}

__attribute__((constructor)) void begin()
{
    const char *const at = std::getenv("TILL_MEMORY_FAILS_AT");
    failsAt = at ? std::atol(at) : 0;
    failsOn = std::getenv("TILL_MEMORY_FAILS_ON") != nullptr;
}

__attribute__((destructor)) void end()
{
    const char *const path = std::getenv("TILL_MEMORY_COUNT");
    const int file = path ? open(path, O_WRONLY | O_CREAT | O_TRUNC, 0600) : -1;
    if (file == -1)
        return;
    dprintf(file, "%ld", allocations);
    close(file);
}

} // namespace

extern "C" {

EXPORTED void *malloc(std::size_t size)
{
    return fails() ? nullptr : __libc_malloc(size);
}

EXPORTED void *calloc(std::size_t count, std::size_t size)
{
    return fails() ? nullptr : __libc_calloc(count, size);
}

EXPORTED void *realloc(void *block, std::size_t size)
{
    return fails() ? nullptr : __libc_realloc(block, size);
}

} // extern "C"
