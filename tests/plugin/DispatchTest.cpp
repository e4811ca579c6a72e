#include "tests/plugin/RecordingHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/*
 * A tara of 5 with a record; the receipt says three pieces in two base units. Which handler ran is
 * seen in the record: added tara has the capacity of its pieces (15), changed tara that of its base
 * units (10), stornoed tara none.
 */
class Dispatch : public testing::Test
{
protected:
    Dispatch()
    {
        plugin.init();
        plugin.setDocument(host.receipt());
        tara = host.putPosition(2, Tmc::Tara, 5.0, 3, 2);
        plugin.putTara(2, "{a}", 5.0, 5.0);
        host.journal.clear();
    }

    void handle(int code)
    {
        plugin.handleEvent(Event(EActivityListener::Event(code))
                               .addArgument("position", QVariant::fromValue(tara)));
    }

    QList<double> capacities() const
    {
        QList<double> capacities;
        for (const auto &record : plugin.taraList)
            capacities << record->capacity;
        return capacities;
    }

    FakeHost host;
    LogCapture log;
    TestPlugin plugin;
    QSharedPointer<GoodsItem> tara;
};

TEST_F(Dispatch, Code19_IsPositionAdded)
{
    handle(19);

    EXPECT_THAT(capacities(), ElementsAre(15.0));
}

TEST_F(Dispatch, Code21_IsPositionStorno)
{
    handle(21);

    EXPECT_THAT(capacities(), IsEmpty());
}

TEST_F(Dispatch, Code26_IsModifierApply)
{
    handle(26);

    EXPECT_THAT(capacities(), ElementsAre(10.0));
}

TEST_F(Dispatch, Code252_IsModifierApplyToo)
{
    handle(252);

    EXPECT_THAT(capacities(), ElementsAre(10.0));
}

TEST_F(Dispatch, Code252_DoesExactlyWhat26Does)
{
    handle(26);
    const QStringList lines = log.lines();
    const QStringList asked = host.journal;
    *plugin.taraList[0] = {2, "{a}", 5.0, 5.0};
    log.clear();
    host.journal.clear();

    handle(252);

    EXPECT_FALSE(asked.isEmpty());
    EXPECT_EQ(host.journal, asked);
    EXPECT_EQ(log.lines(), lines);
}

TEST_F(Dispatch, ThroughTheListenerInterface_ReachesThePlugin)
{
    BaseActivityListener &listener = plugin;

    listener.handleEvent(Event(EActivityListener::eventPositionStorno)
                             .addArgument("position", QVariant::fromValue(tara)));

    EXPECT_THAT(capacities(), IsEmpty());
}

class IgnoredCode : public Dispatch, public testing::WithParamInterface<int>
{
};

TEST_P(IgnoredCode, Always_DoesNothing)
{
    handle(GetParam());

    EXPECT_THAT(capacities(), ElementsAre(5.0));
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, QStringList());
}

INSTANTIATE_TEST_SUITE_P(Codes, IgnoredCode,
                         testing::Values(20, 27, 0, -1, 18, 22, 25, 28, 29, 251, 253, 275, 65555),
                         [](const auto &code) {
                             return code.param < 0 ? "Negative" : std::to_string(code.param);
                         });

} // namespace
