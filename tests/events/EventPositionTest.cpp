#include "events/EventPosition.h"
#include "tests/events/ReceiptEvents.h"

namespace {

using testing::ElementsAre;

//! Something of a host's that stands for a position and that the meta-type system can turn into it.
struct Slip
{
    QSharedPointer<GoodsItem> position;
};

//! Something that says nothing of positions.
struct Weather
{
    int degrees = 0;
};

Event eventWith(const QVariant &position,
                EActivityListener::Event code = EActivityListener::eventPositionAdded)
{
    return Event(code).addArgument("position", position);
}

class EventPosition : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        if (!QMetaType::hasRegisteredConverterFunction<Slip, QSharedPointer<GoodsItem>>()) {
            QMetaType::registerConverter<Slip, QSharedPointer<GoodsItem>>(
                [](const Slip &slip) { return slip.position; });
        }
    }

    QSharedPointer<GoodsItem> goods =
        QSharedPointer<GoodsItem>::create(3, QSharedPointer<Tmc>::create(Tmc::PackagingGoods));
};

TEST_F(EventPosition, Pointer_IsTheSamePosition)
{
    EXPECT_EQ(packaging::eventPosition(eventWith(QVariant::fromValue(goods))), goods);
}

TEST_F(EventPosition, Pointer_IsSharedWithTheEvent)
{
    const QWeakPointer<GoodsItem> watched = goods;
    QSharedPointer<GoodsItem> read;
    {
        const Event event = eventWith(QVariant::fromValue(std::exchange(goods, nullptr)));
        read = packaging::eventPosition(event);
    }

    EXPECT_FALSE(watched.isNull());
    read.reset();
    EXPECT_TRUE(watched.isNull());
}

TEST_F(EventPosition, WhatTheMetaTypeSystemConverts_IsConverted)
{
    EXPECT_EQ(packaging::eventPosition(eventWith(QVariant::fromValue(Slip{goods}))), goods);
}

TEST_F(EventPosition, AnotherKey_IsNotRead)
{
    const Event event = Event(EActivityListener::eventPositionAdded)
                            .addArgument("Position", QVariant::fromValue(goods))
                            .addArgument("positions", QVariant::fromValue(goods));

    EXPECT_EQ(packaging::eventPosition(event), nullptr);
}

TEST_F(EventPosition, NoArgument_IsNull)
{
    EXPECT_EQ(packaging::eventPosition(Event(EActivityListener::eventPositionAdded)), nullptr);
}

struct UnusableArgument
{
    const char *name;
    QVariant value;
};

void PrintTo(const UnusableArgument &argument, std::ostream *out)
{
    *out << argument.name;
}

std::vector<UnusableArgument> unusableArguments()
{
    static QObject object;
    return {
        {"InvalidVariant", QVariant()},
        {"NullPointer", QVariant::fromValue(QSharedPointer<GoodsItem>())},
        {"Number", 3},
        {"Text", QString("3")},
        {"UnrelatedRecord", QVariant::fromValue(Weather{20})},
        {"UnrelatedObject", QVariant::fromValue(&object)},
        {"UnrelatedPointer", QVariant::fromValue(QSharedPointer<QObject>::create())},
        {"List", QVariantList{3}},
    };
}

QString argumentName(const UnusableArgument &argument)
{
    return argument.name;
}

class UnusablePosition : public testing::TestWithParam<UnusableArgument>
{
};

TEST_P(UnusablePosition, IsNull)
{
    EXPECT_EQ(packaging::eventPosition(eventWith(GetParam().value)), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Arguments, UnusablePosition, testing::ValuesIn(unusableArguments()),
                         [](const auto &test) { return argumentName(test.param).toStdString(); });

// What the handlers make of it.

class EventWithoutPosition
    : public ReceiptEvents,
      public testing::WithParamInterface<std::tuple<EActivityListener::Event, UnusableArgument>>
{
};

TEST_P(EventWithoutPosition, ChangesLogsAndSavesNothing)
{
    standsTara(2, "A", 5.0, 4.0);
    standsGoods(3, 1.0, {{"A", 1.0}});
    const auto &[code, argument] = GetParam();

    host.notifier().notify(eventWith(argument.value, code));

    EXPECT_THAT(valuesOf(plugin.taraList), ElementsAre(TaraInfo{2, "A", 5.0, 4.0}));
    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{3, {{"A", 1.0}}}));
    EXPECT_EQ(log.lines(), QStringList());
    EXPECT_EQ(host.journal, QStringList());
}

INSTANTIATE_TEST_SUITE_P(CodesAndArguments, EventWithoutPosition,
                         testing::Combine(testing::Values(EActivityListener::eventPositionAdded,
                                                          EActivityListener::eventPositionStorno,
                                                          EActivityListener::eventModifierApplied,
                                                          EActivityListener::eventModifierApplied2),
                                          testing::ValuesIn(unusableArguments())),
                         [](const auto &test) {
                             return QString("%1_%2")
                                 .arg(int(std::get<0>(test.param)))
                                 .arg(argumentName(std::get<1>(test.param)))
                                 .toStdString();
                         });

class ConvertedPosition : public EventPosition
{
protected:
    ConvertedPosition()
    {
        plugin.init();
        plugin.setDocument(host.receipt());
        goods = host.putPosition(3, Tmc::PackagingGoods, QVariant(), 2, 2);
        plugin.putTara(2, "A", 5.0, 5.0);
    }

    void notify(EActivityListener::Event code)
    {
        host.notifier().notify(eventWith(QVariant::fromValue(Slip{goods}), code));
    }

    FakeHost host;
    TestPlugin plugin;
};

TEST_F(ConvertedPosition, Added_IsRecorded)
{
    notify(EActivityListener::eventPositionAdded);

    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{3, {{"A", 2.0}}}));
}

TEST_F(ConvertedPosition, Changed_IsFollowed)
{
    plugin.putGoods(3);

    notify(EActivityListener::eventModifierApplied);

    EXPECT_THAT(valuesOf(plugin.packagingList), ElementsAre(PackagingInfo{3, {{"A", 2.0}}}));
}

TEST_F(ConvertedPosition, Stornoed_IsForgotten)
{
    plugin.putGoods(3);

    notify(EActivityListener::eventPositionStorno);

    EXPECT_TRUE(plugin.packagingList.isEmpty());
}

} // namespace
