#include "tests/model/RandomRun.h"

#include "tests/model/Difference.h"
#include "tests/model/Generate.h"
#include "tests/support/Chance.h"

#include <sstream>

namespace model {

namespace {

std::string reportOf(const rc::detail::TestResult &result, std::uint64_t seed)
{
    std::ostringstream out;
    rc::detail::printResultMessage(result, out);
    out << "\nto find it again: " << repeatedBy(seed) << '\n';
    return out.str();
}

} // namespace

std::string compareAtRandom(const RealHost::MakePlugin &makePlugin, std::uint64_t seed, long wanted,
                            Tally &tally)
{
    const auto property = [&] {
        const Script script = *scripts();
        const std::string found = firstDifference(script, makePlugin, tally.commands);
        ++tally.receipts;
        if (!found.empty())
            RC_FAIL(found);
    };
    rc::detail::TestParams params = rc::detail::configuration().testParams;
    for (params.seed = seed; tally.commands < wanted; ++params.seed) {
        const auto result = rc::detail::checkTestable(property, rc::detail::TestMetadata(), params);
        if (!result.is<rc::detail::SuccessResult>())
            return reportOf(result, params.seed);
    }
    return {};
}

} // namespace model
