#include "tests/support/Chance.h"
#include "tests/till/kill/KillFixture.h"

namespace till {

namespace {

TEST_F(KilledTill, WhilePlayingRandomReceipts_KeepsEveryAcknowledgedCommandWhole)
{
    killUntilTelling(60 * testEffort());
}

TEST_F(KilledTill, WhileItMakesItsDatabase_CanBeStartedAgain)
{
    measure();
    for (int round = 0; round < 40 && !HasFailure(); ++round) {
        SCOPED_TRACE(testing::Message() << repeatedBy(testSeed()) << " round " << round);
        const QString name = QStringLiteral("%1.db").arg(round);
        killWhileItMakes(name);
        checkUsable(name);
    }
}

} // namespace

} // namespace till
