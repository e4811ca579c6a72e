#ifndef BENCH_PAIRS_H
#define BENCH_PAIRS_H

#include "bench/Allocations.h"

#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace bench {

/*!
 * What is measured, beside its floor: the same work done by hand. A pair is a class with
 *
 *   explicit Pair(int n);  // makes everything ready, for n records, taras or positions
 *   void measured();       // one call of what is measured
 *   void byHand();         // one call of the floor
 *   bool same();           // does both and compares what they made
 *   void rearm();          // optional: puts things back between two calls, unmeasured
 */
template <class Pair>
constexpr bool rearms = requires(Pair pair)
{
    pair.rearm();
};

//! One side of a pair, to be measured under a name such as "save/100/measured".
struct Side
{
    std::string name;
    std::function<void(benchmark::State &)> time;
    std::function<void()> count;
};

struct Comparison
{
    std::string name;
    std::function<bool()> same;
};

struct Pairs
{
    std::vector<Side> sides;
    std::vector<Comparison> comparisons;
};

template <class Pair, void (Pair::*Work)()>
void time(benchmark::State &state, int n)
{
    Pair pair(n);
    for (auto step : state) {
        (pair.*Work)();
        if constexpr (rearms<Pair>) {
            state.PauseTiming();
            pair.rearm();
            state.ResumeTiming();
        }
    }
}

//! Leaves one profile of \a calls calls, and prints how much memory they asked for.
template <class Pair, void (Pair::*Work)()>
void count(const std::string &name, int n, int calls)
{
    Pair pair(n);
    const auto rearm = [&pair] {
        if constexpr (rearms<Pair>)
            pair.rearm();
    };
    // Symbols are looked up, and caches filled, by the first calls.
    for (int call = 0; call < 4; ++call) {
        (pair.*Work)();
        rearm();
    }
    long allocated = 0;
    if constexpr (rearms<Pair>) {
        for (int call = 0; call < calls; ++call) {
            const long before = allocations();
            CALLGRIND_START_INSTRUMENTATION;
            (pair.*Work)();
            CALLGRIND_STOP_INSTRUMENTATION;
            allocated += allocations() - before;
            pair.rearm();
        }
    } else {
        const long before = allocations();
        CALLGRIND_START_INSTRUMENTATION;
        for (int call = 0; call < calls; ++call)
            (pair.*Work)();
        CALLGRIND_STOP_INSTRUMENTATION;
        allocated = allocations() - before;
    }
    CALLGRIND_DUMP_STATS_AT(name.c_str());
    std::printf("%s %d %ld\n", name.c_str(), calls, allocated);
    std::fflush(stdout);
}

//! Adds \a Pair for \a n; \a calls, an even number, are counted, so that calls may alternate.
template <class Pair>
void addPair(Pairs &pairs, const std::string &room, int n, int calls)
{
    const std::string name = room + "/" + std::to_string(n);
    const auto addSide = [&]<void (Pair::*Work)()>(const std::string &side) {
        pairs.sides.push_back({side, [n](benchmark::State &state) { time<Pair, Work>(state, n); },
                               [side, n, calls] { count<Pair, Work>(side, n, calls); }});
    };
    addSide.template operator()<&Pair::measured>(name + "/measured");
    addSide.template operator()<&Pair::byHand>(name + "/floor");
    pairs.comparisons.push_back({name, [n] { return Pair(n).same(); }});
}

// The pairs of each subject.
void addSaves(Pairs &pairs);
void addCalls(Pairs &pairs);
void addRestores(Pairs &pairs);
void addFills(Pairs &pairs);
void addLoads(Pairs &pairs);
void addTillCommands(Pairs &pairs);

} // namespace bench

#endif // BENCH_PAIRS_H
