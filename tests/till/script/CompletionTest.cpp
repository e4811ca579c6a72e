#include "tests/till/support/TillFixture.h"

// What TAB offers is what can stand where a person types.

namespace till {

namespace {

class Completion : public TillTest
{
protected:
    Completion() { done({"open", "add CAN3", "add BEER 2", "add CHIPS"}); }

    //! What is offered behind \a line, for the word that begins there.
    std::string offered(const QString &line) const
    {
        return commands->completions(line.split(' ')).join(' ').toStdString();
    }
};

TEST_F(Completion, ExpectedWords_GoOnUpToTheLast)
{
    EXPECT_EQ(offered("expect position "), "1 2 3");
    EXPECT_EQ(offered("expect position 1 "), "none stornoed live quantity base sum article group");
    EXPECT_EQ(offered("expect position 1 live "), "stornoed live quantity base sum article group");
    EXPECT_EQ(offered("expect position 1 article BEER"), "BEER BEER3");
    EXPECT_EQ(offered("expect position 1 group "), "1 2 3 none");
    EXPECT_EQ(offered("expect goods 2 "), "none in unplaced");
    EXPECT_EQ(offered("EXPECT Goods 2 in "), "1 2 3");
    EXPECT_EQ(offered("expect goods 2 in 1 2 u"), "unplaced");
    EXPECT_EQ(offered("expect tara 1 "), "none capacity free");
    EXPECT_EQ(offered("expect state "), "none open subtotal closed cancelled");
    EXPECT_EQ(offered("expect control "), "none active suspended");
    EXPECT_EQ(offered("expect question "), "none");
}

TEST_F(Completion, WhereNothingCanStandOrAnything_NothingIsOffered)
{
    for (const char *line :
         {"expect position 1 quantity ", "expect position 1 none ", "expect position x ",
          "expect goods 2 in 1 ", "expect positions ", "expect positions 1 ", "expect state open ",
          "expect message none ", "expect nothing ", "expect accepted add CHIPS "})
        EXPECT_EQ(offered(line), "") << line;
}

TEST_F(Completion, ExpectedCommand_IsNoExpectation)
{
    EXPECT_EQ(offered("expect accepted s"), "storno split softcheck subtotal show say set save");
    EXPECT_EQ(offered("expect accepted e"), "");
    EXPECT_EQ(offered("expect refused storno "), "1 2 3");
}

TEST_F(Completion, UnitedPositions_AreOfferedOnce)
{
    EXPECT_EQ(offered("unite "), "1 2 3");
    EXPECT_EQ(offered("unite 2 "), "1 3");
    EXPECT_EQ(offered("unite 2 3 "), "1");
}

} // namespace

} // namespace till
