#include "tests/till/kill/KillFixture.h"

#include <iostream>

namespace till {

namespace {

TEST_F(KilledTill, WhilePlayingRandomReceipts_KeepsEveryAcknowledgedCommandWhole)
{
    const int kills = setting("TILL_KILLS", 300);
    std::cout << kills << " kills, seed " << seed()
              << " (set TILL_KILLS and TILL_KILL_SEED for others)" << std::endl;
    measure();
    for (int round = 0; round < kills && !HasFailure(); ++round) {
        SCOPED_TRACE(testing::Message() << "seed " << seed() << " round " << round);
        playAndKill();
        checkStored();
    }
    checkEveryReceipt();
    std::cout << tally() << "receipts: " << receipts() << std::endl;
    // Otherwise the kills would have proved little.
    EXPECT_EQ(tally().all(), kills);
    EXPECT_GT(tally().during(), kills / 3);
    EXPECT_GT(tally().stored, 0);
    EXPECT_GT(tally().notStored, 0);
    EXPECT_GT(tally().restored, kills / 10);
}

TEST_F(KilledTill, WhileItMakesItsDatabase_CanBeStartedAgain)
{
    measure();
    for (int round = 0; round < 40 && !HasFailure(); ++round) {
        SCOPED_TRACE(testing::Message() << "seed " << seed() << " round " << round);
        const QString name = QStringLiteral("%1.db").arg(round);
        killWhileItMakes(name);
        checkUsable(name);
    }
}

} // namespace

} // namespace till
