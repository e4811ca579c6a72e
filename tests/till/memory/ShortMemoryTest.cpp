#include "tests/support/Chance.h"
#include "tests/till/memory/ShortTill.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <iostream>

namespace till {

namespace {

//! The commands in the document's table of them.
QSet<QByteArray> documentedCommands()
{
    QFile document(DOCS_DIR "/till.md");
    EXPECT_TRUE(document.open(QIODevice::ReadOnly));
    const QString text = document.readAll();
    static const QRegularExpression row("^\\| `([a-z]+)", QRegularExpression::MultilineOption);
    auto matches = row.globalMatch(text.left(text.indexOf("\n## Scripts")));
    QSet<QByteArray> commands;
    while (matches.hasNext())
        commands.insert(matches.next().captured(1).toLatin1());
    return commands;
}

TEST_F(ShortTill, Script_HasEveryCommandThatASaleMayNeed)
{
    // "include" is of files alone, and "save" keeps no receipt in which a shortage failed a
    // command.
    EXPECT_EQ(commands() + QSet<QByteArray>({"include", "save"}), documentedCommands());
}

TEST_F(ShortTill, AnyAllocationFails_KeepsEveryAcknowledgedCommandWhole)
{
    const long allocations = countAllocations();
    const long step = std::max(1L, 2 * allocations / (60L * testEffort()));
    int played = 0;
    for (long at = 1; at <= allocations && !HasFailure(); at += step) {
        for (const bool isOver : {true, false}) {
            SCOPED_TRACE(testing::Message()
                         << "allocation " << at << (isOver ? "" : " and all after"));
            playAndLook({at, isOver});
            ++played;
        }
    }
    std::cout << played << " shortages of " << 2 * allocations << ": " << tally().ended
              << " ended the till, " << tally().failed << " failed a command, " << tally().unnoticed
              << " went unnoticed" << std::endl;
    EXPECT_GT(allocations, 1000);
    EXPECT_GT(tally().ended, 0);
}

} // namespace

} // namespace till
