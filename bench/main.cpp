// Measures each pair of bench/Pairs.h. Without "--count" it times, with Google Benchmark and its
// arguments; with it, under callgrind, it counts. Either way the pairs are compared first.

#include "bench/Pairs.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>

using namespace bench;

namespace {

bool compare(const Pairs &pairs)
{
    bool same = true;
    for (const Comparison &comparison : pairs.comparisons) {
        if (comparison.same())
            continue;
        std::fprintf(stderr, "%s: the work by hand gives another result\n",
                     comparison.name.c_str());
        same = false;
    }
    return same;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    // As the till has it: nothing is printed.
    QLoggingCategory::setFilterRules(QStringLiteral("packaging=false"));

    Pairs pairs;
    for (const auto add : {addSaves, addCalls, addRestores, addFills, addLoads, addTillCommands})
        add(pairs);
    if (!compare(pairs))
        return 1;
    if (argc == 2 && qstrcmp(argv[1], "--count") == 0) {
        for (const Side &side : pairs.sides)
            side.count();
        return 0;
    }
    for (const Side &side : pairs.sides)
        benchmark::RegisterBenchmark(side.name.c_str(), side.time)->UseRealTime();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
