#include "tests/till/support/TillFixture.h"

// What can be expected holds when it is so and fails when it is not, and then says both.

namespace till {

namespace {

struct Expectation
{
    const char *name;
    const char *holds; //!< empty when no such expectation can hold
    const char *fails;
    const char *text; //!< what is said of the failing one
};

void PrintTo(const Expectation &expectation, std::ostream *out)
{
    *out << '"' << expectation.fails << '"';
}

//! After a can, two litres of beer, a bottle's storno, and a refused change of the can.
class Expect : public TillTest, public testing::WithParamInterface<Expectation>
{
protected:
    Expect()
    {
        done({"open", "add CAN3", "add PET1", "add BEER 2", "add CHIPS 2", "answer yes",
              "storno 2"});
        refused("qty 1 2");
    }
};

TEST_P(Expect, WhatIsSo_Holds)
{
    if (*GetParam().holds != '\0')
        expect({GetParam().holds});
}

TEST_P(Expect, WhatIsNotSo_FailsAndSaysWhy)
{
    const QString line = QString("expect ") + GetParam().fails;
    const bool isOtherwise = QString(GetParam().text).contains(": expected ");
    EXPECT_EQ((isOtherwise ? unexpected(line) : mistake(line)).toStdString(), GetParam().text);
}

constexpr const char *usageOfPosition = "usage: expect position N none|stornoed|live|quantity "
                                        "Q|base Q|sum MONEY|article CODE|group none|FIRST...";
constexpr const char *usageOfTara = "usage: expect tara N none|capacity C|free F...";
constexpr const char *usageOfGoods =
    "usage: expect goods N none|in TARA AMOUNT...|unplaced AMOUNT...";

std::string nameOf(const testing::TestParamInfo<Expectation> &info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    Positions, Expect,
    testing::Values(
        Expectation{"Quantity", "position 3 quantity 2", "position 3 quantity 2.001",
                    "position 3 quantity: expected 2.001, found 2"},
        Expectation{"Base", "position 3 base 2,0", "position 3 base 1",
                    "position 3 base: expected 1, found 2"},
        Expectation{"Sum", "position 3 sum 280", "position 3 sum 280.01",
                    "position 3 sum: expected 280.01, found 280.00"},
        Expectation{"Article", "position 3 article BEER", "position 3 article DARK",
                    "position 3 article: expected DARK, found BEER"},
        Expectation{"Second", "position 3 live sum 280", "position 3 sum 280 live quantity 3",
                    "position 3 quantity: expected 3, found 2"},
        Expectation{"Stornoed", "position 2 stornoed", "position 3 stornoed",
                    "position 3: expected stornoed, found live"},
        Expectation{"Live", "position 3 live", "position 2 live",
                    "position 2: expected live, found stornoed"},
        Expectation{"NoPosition", "position 9 none", "position 3 none",
                    "position 3: expected none, found BEER"},
        Expectation{"Position", "position 1 live", "position 9 live",
                    "position 9: expected live, found none"},
        Expectation{"Count", "positions 3", "positions 4", "positions: expected 4, found 3"},
        Expectation{"Total", "total 599.80", "total 599.8100",
                    "\"599.8100\" is not an amount of money (12.50 or 12,50)"},
        Expectation{"OtherTotal", "total 599,8", "total 599.81",
                    "total: expected 599.81, found 599.80"},
        Expectation{"State", "state open", "state closed", "state: expected closed, found open"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Tara, Expect,
    testing::Values(Expectation{"Capacity", "tara 1 capacity 3", "tara 1 capacity 4",
                                "tara 1 capacity: expected 4, found 3"},
                    Expectation{"Free", "tara 1 capacity 3 free 1", "tara 1 capacity 3 free 2",
                                "tara 1 free: expected 2, found 1"},
                    Expectation{"NoTara", "tara 2 none", "tara 1 none",
                                "tara 1: expected none, found capacity 3 free 1"},
                    Expectation{"Record", "tara 1 free 1", "tara 2 free 1",
                                "tara 2: expected free 1, found none"},
                    Expectation{"In", "goods 3 in 1 2", "goods 3 in 1 1.5",
                                "goods 3 in 1: expected 1.5, found 2"},
                    Expectation{"InOther", "goods 3 in 4 0", "goods 3 in 4 1",
                                "goods 3 in 4: expected 1, found 0"},
                    Expectation{"Unplaced", "goods 3 unplaced 0", "goods 3 in 1 2 unplaced 1",
                                "goods 3 unplaced: expected 1, found 0"},
                    Expectation{"NoGoods", "goods 4 none", "goods 3 none",
                                "goods 3: expected none, found in 1 2"},
                    Expectation{"Goods", "goods 3 unplaced 0", "goods 4 unplaced 0",
                                "goods 4: expected unplaced 0, found none"},
                    Expectation{"Records", "records 1 1", "records 2 1",
                                "records: expected 2 1, found 1 1"},
                    Expectation{"Control", "control active", "control suspended",
                                "control: expected suspended, found active"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Said, Expect,
    testing::Values(
        Expectation{"Message", "message packingControlTaraAlmostFull", "message tillReceiptEmpty",
                    "message: expected \"tillReceiptEmpty\", found packingControlTaraAlmostFull"},
        Expectation{"MessageText",
                    "message Тара частично заполнена. Изменение количества запрещено",
                    "message Тара частично заполнена.",
                    "message: expected \"Тара частично заполнена.\", found "
                    "packingControlTaraAlmostFull"},
        Expectation{"NoMessage", "", "message none",
                    "message: expected none, found packingControlTaraAlmostFull"},
        Expectation{"Question", "question none", "question tillCancelReceipt",
                    "question: expected \"tillCancelReceipt\", found none"},
        Expectation{"Loyalty", "loyalty 0", "loyalty 1", "loyalty: expected 1, found 0"},
        Expectation{"Log", "log none", "log \"Добавлена тара\"",
                    "log: expected \"Добавлена тара\", found none"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Commands, Expect,
    testing::Values(Expectation{"Accepted", "accepted add CHIPS", "accepted qty 1 2",
                                "qty 1 2: expected accepted, found отказано: Тара частично "
                                "заполнена. Изменение количества запрещено"},
                    Expectation{"Refused", "refused qty 1 2", "refused add CHIPS",
                                "add CHIPS: expected refused, found accepted"},
                    Expectation{"Mistake", "mistake add CHOPS", "mistake qty 1 2",
                                "qty 1 2: expected mistake, found отказано: Тара частично "
                                "заполнена. Изменение количества запрещено"},
                    Expectation{"MistakeNotRefusal", "mistake qty 9 1", "refused qty 9 1",
                                "qty 9 1: expected refused, found mistake: В чеке нет позиции 9"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Words, Expect,
    testing::Values(
        Expectation{"What", "", "positon 1 live",
                    "\"positon\" cannot be expected; did you mean 'position'?"},
        Expectation{"Nested", "", "accepted expect total 1", "an expectation cannot be expected"},
        Expectation{"WhichCommand", "", "accepted", "which command?"},
        Expectation{"Part", "", "position 3 amount 2",
                    "\"amount\" is none of: none, stornoed, live, quantity, base, sum, article, "
                    "group"},
        Expectation{"PositionNumber", "", "position x live", "\"x\" is not a position number"},
        Expectation{"TaraPart", "", "tara 1 size 3", "\"size\" is none of: none, capacity, free"},
        Expectation{"TaraNumber", "", "tara x free 1", "\"x\" is not a position number"},
        Expectation{"GoodsPart", "", "goods 3 at 1 2", "\"at\" is none of: none, in, unplaced"},
        Expectation{"GoodsTara", "", "goods 3 in x 0", "\"x\" is not a position number"},
        Expectation{"Missing", "", "total", "usage: expect total MONEY"},
        Expectation{"TooMany", "", "positions 3 4", "usage: expect positions COUNT"},
        Expectation{"TooManyStates", "", "state open closed",
                    "usage: expect state none|open|subtotal|closed|cancelled"},
        Expectation{"NoCount", "", "positions -1", "usage: expect positions COUNT"},
        Expectation{"NoCounts", "", "records 1 one", "usage: expect records TARAS GOODS"},
        Expectation{"NoState", "", "state opened",
                    "\"opened\" is none of: none, open, subtotal, closed, cancelled"},
        Expectation{"NoControl", "", "control off", "\"off\" is none of: none, active, suspended"}),
    nameOf);

//! Of what there is no record too: the words are wrong whatever the receipt is like.
INSTANTIATE_TEST_SUITE_P(
    Forms, Expect,
    testing::Values(
        Expectation{"PositionWithoutValue", "", "position 9 live quantity", usageOfPosition},
        Expectation{"PositionNoneAndMore", "", "position 3 none live", usageOfPosition},
        Expectation{"PositionMoreAndNone", "", "position 3 live none",
                    "\"none\" is none of: stornoed, live, quantity, base, sum, article, group"},
        Expectation{"TaraWithoutNumber", "", "tara 1 free", usageOfTara},
        Expectation{"TaraNoneAndMore", "", "tara 9 none free 1", usageOfTara},
        Expectation{"GoodsWithoutAmount", "", "goods 9 in 2", usageOfGoods},
        Expectation{"GoodsWithoutTara", "", "goods 3 in 1 2 in", usageOfGoods},
        Expectation{"GoodsNoneAndMore", "", "goods 9 none in 2 1", usageOfGoods},
        Expectation{"GoodsNumber", "", "goods 9 unplaced many",
                    "\"many\" is not a number with at most three decimals (1.5 or 1,5)"},
        Expectation{"Money", "", "position 9 sum much",
                    "\"much\" is not an amount of money (12.50 or 12,50)"}),
    nameOf);

class ExpectHeard : public TillTest
{
};

TEST_F(ExpectHeard, Question_IsFoundByKeyAndText)
{
    done({"open", "add CHIPS", "answer yes", "storno 1"});
    expect({"question tillStornoPosition", "question Сторнировать позицию?"});
    EXPECT_EQ(unexpected("expect question none"),
              QString("question: expected none, found tillStornoPosition"));
}

TEST_F(ExpectHeard, Loyalty_CountsTheLastCommand)
{
    done({"open", "add CAN3", "answer yes", "storno 1"});
    expect({"loyalty 1"});
    EXPECT_EQ(unexpected("expect loyalty 0"), QString("loyalty: expected 0, found 1"));
}

TEST_F(ExpectHeard, PiecesOfASplitPosition_AreInOneGroup)
{
    done({"open", "add CHIPS", "add CAN3 2", "add BEER 2", "split 3 1"});
    expect({"position 3 group 3", "position 4 group 3 live", "position 1 group none"});
    EXPECT_EQ(unexpected("expect position 4 group none"),
              QString("position 4 group: expected none, found 3"));
    EXPECT_EQ(unexpected("expect position 1 group 3"),
              QString("position 1 group: expected 3, found none"));
    mistake("expect position 1 group one");
}

TEST_F(ExpectHeard, Log_FindsALineOfTheLastCommand)
{
    done({"open", "add CAN3", "add BEER"});
    expect({"log Добавлен товар, отпускаемый в тару"});
    EXPECT_THAT(unexpected("expect log Добавлена тара").toStdString(),
                testing::HasSubstr("found Добавлен товар, отпускаемый в тару | Изменение"));
    EXPECT_THAT(unexpected("expect log none").toStdString(), testing::HasSubstr("expected none"));
}

TEST_F(ExpectHeard, WatchingCommands_LeaveWhatWasSaid)
{
    done({"open", "add CAN3", "show", "log", "say hm", "articles", "help", "answer yes"});
    expect({"log \"Добавлена тара\"", "log \"Добавлена тара\""});
}

TEST_F(ExpectHeard, EmptyReceipts_AreExpectedWithoutOne)
{
    expect({"state none", "positions 0", "records 0 0", "total 0", "position 1 none", "tara 1 none",
            "goods 1 none", "message none", "question none", "log none"});
}

TEST_F(ExpectHeard, MistakeThatWasExpected_IsDoneWithItsReasonInEveryLanguage)
{
    done({"open"});
    const Outcome outcome = run("expect mistake storno 7");
    EXPECT_EQ(outcome.kind, Outcome::Done);
    EXPECT_EQ(outcome.reason.key(), "tillNoPosition");
    EXPECT_EQ(outcome.text(Translator("en")), "the receipt has no position 7");
    EXPECT_EQ(outcome.text(Translator("ru")), "В чеке нет позиции 7");
}

TEST_F(ExpectHeard, CommandWithQuotedWords_IsToldAsItIsTyped)
{
    done({"open", "add CHIPS", "expect mistake qty \"1 2\""});
    EXPECT_EQ(noted("command", "text").constLast(), "qty \"1 2\"");
}

} // namespace

} // namespace till
