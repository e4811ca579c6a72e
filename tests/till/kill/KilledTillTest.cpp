#include "tests/support/Chance.h"
#include "tests/till/kill/KillFixture.h"

#include <iostream>

namespace till {

namespace {

TEST_F(KilledTill, WhilePlayingRandomReceipts_KeepsEveryAcknowledgedCommandWhole)
{
    // When a kill finds the till at what is up to the machine: there are more of them until they
    // have proved something, within reason.
    const int kills = 60 * testEffort();
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

TEST_F(KilledTill, WhileItMakesItsDatabase_CanBeStartedAgain)
{
    measure();
    for (int round = 0; round < 40 && !HasFailure(); ++round) {
        SCOPED_TRACE(testing::Message() << "seed " << testSeed() << " round " << round);
        const QString name = QStringLiteral("%1.db").arg(round);
        killWhileItMakes(name);
        checkUsable(name);
    }
}

} // namespace

} // namespace till
