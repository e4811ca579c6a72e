#include "tests/triggers/TriggerTest.h"

#include "host/DocumentLogic.h"

#include <gmock/gmock.h>

#include <functional>

namespace {

using testing::_;

class MockDocumentLogic : public DocumentLogic
{
public:
    MOCK_METHOD(bool, stornoPosition, (const control::Action &), (override));
};

class StornoAllEmptyTara : public TriggerTest<TestPlugin>
{
protected:
    StornoAllEmptyTara() { host.addOther(90, 1); }

    QStringList stornoes() const { return host.journal.filter("storno"); }

    void addEmptyTaras(const QList<int> &posnums)
    {
        for (const int posnum : posnums)
            host.addTara(posnum, 10);
        host.journal.clear();
        log.clear();
    }

    //! From now on each storno runs \a run, and then what the host does.
    void onStorno(const std::function<void(const control::Action &)> &run)
    {
        const auto logic = QSharedPointer<testing::NiceMock<MockDocumentLogic>>::create();
        const auto real = MockFactory<DocumentLogic>::mocked;
        ON_CALL(*logic, stornoPosition(_)).WillByDefault([=](const control::Action &action) {
            run(action);
            return real->stornoPosition(action);
        });
        MockFactory<DocumentLogic>::mocked = logic;
    }
};

TEST_F(StornoAllEmptyTara, NoTara_LogsAndSucceeds)
{
    host.journal.clear();
    EXPECT_TRUE(storno());
    EXPECT_EQ(log.lines(), QStringList{"INFO Сторнирование пустой тары"});
    EXPECT_EQ(host.journal, QStringList());
}

TEST_F(StornoAllEmptyTara, ThreeEmpty_GoInTheOrderOfTheRecords)
{
    addEmptyTaras({3, 1, 2});
    EXPECT_TRUE(storno());
    EXPECT_EQ(stornoes(), (QStringList{"storno 3", "storno 1", "storno 2"}));
    EXPECT_EQ(plugin.taraList.size(), 0);
    EXPECT_EQ(log.lines().constFirst(), "INFO Сторнирование пустой тары");
}

TEST_F(StornoAllEmptyTara, TaraWithGoods_Stays)
{
    host.addTara(1, 4);
    host.addGoods(2, 4);
    addEmptyTaras({3, 4});
    EXPECT_TRUE(storno());
    EXPECT_EQ(stornoes(), (QStringList{"storno 3", "storno 4"}));
    EXPECT_EQ(posnumsOf(plugin.taraList), QList<int>{1});
}

TEST_F(StornoAllEmptyTara, EventsComeLate_TheReceiptDecides)
{
    addEmptyTaras({1, 2});
    host.late = true;
    EXPECT_TRUE(storno());
    EXPECT_EQ(stornoes(), (QStringList{"storno 1", "storno 2"}));
    EXPECT_EQ(plugin.taraList.size(), 2);
    host.deliverLate();
    EXPECT_EQ(plugin.taraList.size(), 0);
}

TEST_F(StornoAllEmptyTara, TaraAddedMeanwhile_IsNotStornoed)
{
    addEmptyTaras({1, 2});
    onStorno([this](const control::Action &action) {
        host.addTara(10 + control::args::Core(action).positionNumber(), 5);
    });
    EXPECT_TRUE(storno());
    EXPECT_EQ(stornoes(), (QStringList{"storno 1", "storno 2"}));
    EXPECT_EQ(posnumsOf(plugin.taraList), (QList<int>{11, 12}));
}

TEST_F(StornoAllEmptyTara, TaraFilledMeanwhile_Stays)
{
    addEmptyTaras({1, 2, 3});
    onStorno([this](const control::Action &action) {
        if (control::args::Core(action).positionNumber() == 1)
            plugin.getTaraByPosnum(2)->freeCapacity = 4;
    });
    EXPECT_TRUE(storno());
    EXPECT_EQ(stornoes(), (QStringList{"storno 1", "storno 3"}));
}

TEST_F(StornoAllEmptyTara, ListIsClearedMeanwhile_GoesOnWithTheCopy)
{
    addEmptyTaras({1, 2, 3});
    onStorno([this](const control::Action &) { plugin.taraList.clear(); });
    EXPECT_TRUE(storno());
    EXPECT_EQ(stornoes(), (QStringList{"storno 1", "storno 2", "storno 3"}));
}

TEST_F(StornoAllEmptyTara, FirstIsRefused_TheOthersAreNotTouched)
{
    addEmptyTaras({1, 2, 3});
    host.refusedPositions = {1};
    EXPECT_FALSE(storno());
    EXPECT_EQ(stornoes(), QStringList{"storno 1"});
    EXPECT_EQ(posnumsOf(plugin.taraList), (QList<int>{1, 2, 3}));
}

TEST_F(StornoAllEmptyTara, SecondIsRefused_TheFirstStaysStornoed)
{
    addEmptyTaras({1, 2, 3});
    host.refusedPositions = {2};
    EXPECT_FALSE(storno());
    EXPECT_EQ(stornoes(), (QStringList{"storno 1", "storno 2"}));
    EXPECT_EQ(posnumsOf(plugin.taraList), (QList<int>{2, 3}));
}

TEST_F(StornoAllEmptyTara, LastIsRefused_Fails)
{
    addEmptyTaras({1, 2, 3});
    host.refusedPositions = {3};
    EXPECT_FALSE(storno());
    EXPECT_EQ(posnumsOf(plugin.taraList), QList<int>{3});
}

TEST_F(StornoAllEmptyTara, HostWithoutADocumentLogicOfItsOwn_Fails)
{
    addEmptyTaras({1, 2});
    MockFactory<DocumentLogic>::mocked.reset();
    EXPECT_FALSE(storno());
    EXPECT_EQ(posnumsOf(plugin.taraList), (QList<int>{1, 2}));
}

TEST_F(StornoAllEmptyTara, ReceiptIsLeftEmptyByTheLast_Fails)
{
    addEmptyTaras({1, 2});
    host.storno(90);
    EXPECT_FALSE(storno());
    EXPECT_EQ(stornoes(), (QStringList{"storno 1", "storno 2"}));
}

TEST_F(StornoAllEmptyTara, ReceiptIsEmptyAfterTheFirst_TheOthersAreNotTouched)
{
    addEmptyTaras({1, 2});
    onStorno([this](const control::Action &) {
        host.receipt()->removePosition(2);
        host.receipt()->removePosition(90);
    });
    EXPECT_FALSE(storno());
    EXPECT_EQ(stornoes(), QStringList{"storno 1"});
}

TEST_F(StornoAllEmptyTara, WritesNothingItself)
{
    addEmptyTaras({1});
    host.late = true; // no event, so no handler saves
    EXPECT_TRUE(storno());
    EXPECT_EQ(host.journal, QStringList{"storno 1"});
}

// What the host is handed.

TEST_F(StornoAllEmptyTara, EachStorno_IsAnActionWithoutDialogOnTheTara)
{
    addEmptyTaras({7, 5});
    QStringList handed;
    onStorno([&](const control::Action &action) {
        const control::args::Storno arguments(action);
        handed << QString("%1 on %2, %3 arguments, without dialog: %4")
                      .arg(action.getType())
                      .arg(arguments.positionNumber())
                      .arg(action.getArguments().size())
                      .arg(arguments.withoutDialog());
    });
    storno();
    EXPECT_EQ(handed, (QStringList{"132 on 7, 2 arguments, without dialog: 1",
                                   "132 on 5, 2 arguments, without dialog: 1"}));
}

TEST_F(StornoAllEmptyTara, AllStornoes_AreOneActionWithARewrittenNumber)
{
    addEmptyTaras({7, 5});
    QList<control::Action> handed;
    onStorno([&](const control::Action &action) { handed << action; });

    storno();

    ASSERT_EQ(handed.size(), 2);
    handed[1].setArgument("mark", 1);
    EXPECT_EQ(handed[0].getArguments().value("mark"), QVariant(1));
    EXPECT_EQ(control::args::Core(handed[0]).positionNumber(), 5);
}

TEST_F(StornoAllEmptyTara, CalledAgain_BuildsAnotherAction)
{
    addEmptyTaras({7});
    QList<control::Action> handed;
    onStorno([&](const control::Action &action) { handed << action; });
    storno();
    host.addTara(8, 1);
    storno();
    ASSERT_EQ(handed.size(), 2);
    EXPECT_EQ(control::args::Core(handed[0]).positionNumber(), 7);
}

TEST_F(StornoAllEmptyTara, GivenAction_IsNeitherReadNorWritten)
{
    addEmptyTaras({1});
    const auto given = actions::on(90, control::Payment);
    const auto arguments = given.getArguments();

    EXPECT_TRUE(plugin.stornoAllEmptyTara(given));

    EXPECT_EQ(given.getArguments(), arguments);
    EXPECT_EQ(stornoes(), QStringList{"storno 1"});
}

// What counts as empty.

struct Filling
{
    double capacity;
    double freeCapacity;
    bool empty;
};

void PrintTo(const Filling &filling, std::ostream *out)
{
    *out << filling.freeCapacity << " free of " << filling.capacity;
}

class StornoAllEmptyTaraByFilling : public StornoAllEmptyTara,
                                    public testing::WithParamInterface<Filling>
{
};

TEST_P(StornoAllEmptyTaraByFilling, TakesOnlyTheEmpty)
{
    host.putPosition(1, Tmc::Tara, 1.0, 1, 1);
    plugin.putTara(1, "A", GetParam().capacity, GetParam().freeCapacity);
    EXPECT_TRUE(storno());
    EXPECT_EQ(stornoes(), GetParam().empty ? QStringList{"storno 1"} : QStringList());
}

INSTANTIATE_TEST_SUITE_P(Tolerance, StornoAllEmptyTaraByFilling,
                         testing::Values(Filling{10, 10, true}, Filling{0, 0, true},
                                         Filling{1, 0.9996, true}, Filling{0.9996, 1, true},
                                         Filling{0.0005, 0.0001, true}, Filling{0.0005, 0, false},
                                         Filling{0, 0.0005, false}, Filling{1, 0.9994, false},
                                         Filling{1, 0, false}, Filling{1, -1, false}));

} // namespace
