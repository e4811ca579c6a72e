#ifndef TESTS_MEMORY_SHORTAGE_H
#define TESTS_MEMORY_SHORTAGE_H

#include <functional>

/*!
 * Memory that runs out. In this program `malloc`, `calloc` and `realloc` are the test's own, for
 * every library of the process: `operator new` and Qt's containers take their memory there.
 */
namespace shortage {

enum Duration {
    Momentary, //!< one allocation fails
    Lasting,   //!< that one fails and all after it
};

//! How a call went whose allocations failed from the `k`-th on.
struct Result
{
    bool isReached = false; //!< there was such an allocation
    bool isThrown = false;  //!< the call ended with `std::bad_alloc`
};

/*!
 * Runs \a call with its allocation number \a k, from 1, failing. Other exceptions than
 * `std::bad_alloc` pass.
 */
Result run(int k, Duration duration, const std::function<void()> &call);

} // namespace shortage

#endif // TESTS_MEMORY_SHORTAGE_H
