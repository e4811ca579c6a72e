#include "tests/memory/Shortage.h"

#include <cstddef>
#include <cstdlib>
#include <new>

extern "C" {
// The C library's own, under the names by which it can be reached when the usual ones are taken.
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
}

namespace {

bool armed = false;
bool lasting = false;
int countdown = 0; //!< allocations to go until one fails; 0 once it did

bool fails()
{
    if (!armed)
        return false;
    if (countdown > 0)
        return --countdown == 0;
    return lasting;
}

//! Memory runs out only while one of these lives.
class Arming
{
public:
    Arming(int k, bool lasts)
    {
        countdown = k;
        lasting = lasts;
        armed = true;
    }
    ~Arming() { armed = false; }
    Arming(const Arming &) = delete;
    Arming &operator=(const Arming &) = delete;
};

} // namespace

extern "C" {

void *malloc(std::size_t size)
{
    return fails() ? nullptr : __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size)
{
    return fails() ? nullptr : __libc_calloc(count, size);
}

void *realloc(void *block, std::size_t size)
{
    return fails() ? nullptr : __libc_realloc(block, size);
}

} // extern "C"

shortage::Result shortage::run(int k, Duration duration, const std::function<void()> &call)
{
    Result result;
    {
        const Arming arming(k, duration == Lasting);
        try {
            call();
        } catch (const std::bad_alloc &) {
            result.isThrown = true;
        }
    }
    result.isReached = countdown == 0;
    return result;
}
