#include "tests/till/support/TillFixture.h"

// A front draws the receipt again after lines that may have changed it, and after no others.

namespace till {

namespace {

class Touch : public TillTest
{
protected:
    bool touches(const QString &line)
    {
        run(line);
        return commands->hasTouchedReceipt();
    }
};

TEST_F(Touch, LinesThatAct_TouchTheReceipt)
{
    for (const char *line : {"open", "add PET1", "qty 1 2", "subtotal", "restart", "pay"})
        EXPECT_TRUE(touches(line)) << line;
}

TEST_F(Touch, LinesThatOnlyLook_DoNot)
{
    done({"open", "add PET1"});
    for (const char *line : {"", "# nothing", "show", "help", "articles", "log", "answer no",
                             "cancel", "expect state open", "add NOTHING", "qty 7 1", "open"})
        EXPECT_FALSE(touches(line)) << line;
}

} // namespace

} // namespace till
