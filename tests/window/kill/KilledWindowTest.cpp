#include "tests/support/Chance.h"
#include "tests/till/kill/KillFixture.h"

#include <iostream>

namespace till {

namespace {

using KilledWindow = KilledTill;

TEST_F(KilledWindow, WhileItIsClickedIn_KeepsEveryAcknowledgedCommandWhole)
{
    // A window takes longer to start than a console: fewer kills, until they proved something.
    const int kills = 30 * testEffort();
    const int most = 20 * kills;
    measure();
    while ((tally().all() < kills || !tally().isTelling()) && tally().all() < most
           && !HasFailure()) {
        SCOPED_TRACE(testing::Message() << "seed " << testSeed() << " round " << tally().all());
        playAndKill();
        checkStored();
    }
    checkEveryReceipt();
    std::cout << tally().all() << " kills, seed " << testSeed() << '\n'
              << tally() << "receipts: " << receipts() << std::endl;
    EXPECT_TRUE(tally().isTelling());
}

} // namespace

} // namespace till
