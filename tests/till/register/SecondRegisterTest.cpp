#include "host/Session.h"
#include "host/Singleton.h"
#include "tests/till/support/TillFixture.h"

// The services of the host are the process's own: they serve one register.

namespace till {

namespace {

class SecondRegister : public TillTest
{
protected:
    till::Setup otherSetup() const
    {
        till::Setup apart = setup();
        apart.database = directory.filePath("other.sqlite");
        return apart;
    }

    Notes otherNotes;
    CashDesk other{otherSetup(), otherNotes};
};

TEST_F(SecondRegister, Start_SaysThatAnotherIsOn)
{
    EXPECT_EQ(faultText(other.start()), QString("another register is on in this process"));
    EXPECT_FALSE(other.isOn());
}

TEST_F(SecondRegister, Attempt_LeavesTheFirstAtWork)
{
    done({"open", "add CAN3"});
    Session *const session = Singleton<Session>::instance();
    EXPECT_FALSE(other.start());
    EXPECT_EQ(Singleton<Session>::instance(), session);
    done({"add BEER 2"});
    expect({"log \"Добавлен товар, отпускаемый в тару\"", "goods 2 in 1 2"});
    done({"answer yes", "storno 1"});
    expect({"question tillStornoPosition", "positions 0"});
}

TEST_F(SecondRegister, StartOfATillThatIsOn_SaysSoAndLeavesItAtWork)
{
    done({"open", "add CAN3"});
    const Register *const before = &till->cashRegister();
    EXPECT_EQ(faultText(till->start()), QString("the till is on"));
    EXPECT_EQ(&till->cashRegister(), before);
    done({"add BEER 2"});
    expect({"goods 2 in 1 2"});
}

TEST_F(SecondRegister, Start_WorksOnceTheFirstIsOff)
{
    EXPECT_FALSE(other.start());
    must(till->stop());
    must(other.start());
    EXPECT_TRUE(other.cashRegister().carryOut(command::Open{}));
    must(other.stop());
    must(till->start());
    done({"open", "add CAN3"});
    expect({"records 1 0"});
}

} // namespace

} // namespace till
