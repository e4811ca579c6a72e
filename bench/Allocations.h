#ifndef BENCH_ALLOCATIONS_H
#define BENCH_ALLOCATIONS_H

namespace bench {

/*!
 * How many blocks of memory this process has asked for so far, by `new`, `malloc`, `calloc` or
 * `realloc`. Counted for one thread only.
 */
long allocations();

} // namespace bench

#endif // BENCH_ALLOCATIONS_H
