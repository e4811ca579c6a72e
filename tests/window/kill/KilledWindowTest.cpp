#include "tests/support/Chance.h"
#include "tests/till/kill/KillFixture.h"

namespace till {

namespace {

using KilledWindow = KilledTill;

TEST_F(KilledWindow, WhileItIsClickedIn_KeepsEveryAcknowledgedCommandWhole)
{
    killUntilTelling(30 * testEffort()); // fewer: a window takes longer to start than a console
}

} // namespace

} // namespace till
