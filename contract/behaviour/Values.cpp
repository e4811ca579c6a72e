#include "contract/Checks.h"

#include "host/Event.h"
#include "host/Finally.h"
#include "host/Quantity.h"
#include "host/Tr.h"

#include <QtCore/QMetaType>

namespace contract {

namespace {

template <class Value>
Row comesBack(const char *name, const Value &value)
{
    const QVariant carried = QVariant::fromValue(value);
    return {carried.template value<Value>() == value,
            QStringLiteral("%1 comes back as another").arg(QString::fromLatin1(name))};
}

Finding eventTravels()
{
    return judge({comesBack(
        "an event", Event(EActivityListener::eventError).addArgument(QStringLiteral("key"), 1))});
}

Finding quantityTravels()
{
    return judge({comesBack("a quantity", Quantity(1.25, quantModeRecalculated))});
}

Finding quantitiesCompare()
{
    const Quantity one(1.25, quantModeRecalculated);
    return judge(
        {{one == Quantity(1.25, quantModeRecalculated), QStringLiteral("equal quantities differ")},
         {!(one == Quantity(1.5, quantModeRecalculated)),
          QStringLiteral("other amounts are equal")}});
}

//! How often the clean-up ran when the scope was left.
template <class Leave>
int runsOn(const Leave &leave)
{
    int runs = 0;
    try {
        const Finally cleanUp([&runs] { ++runs; });
        leave();
    } catch (int) {
    }
    return runs;
}

Row ranOnce(const char *way, int runs)
{
    return {runs == 1, QStringLiteral("%1: run %2 times").arg(QString::fromLatin1(way)).arg(runs)};
}

Finding finallyOnReturn()
{
    return judge({ranOnce("end of scope", runsOn([] {}))});
}

Finding finallyOnException()
{
    return judge({ranOnce("exception", runsOn([] { throw 1; }))});
}

Finding finallyInTime()
{
    bool ran = false;
    bool ranInside = false;
    {
        const Finally cleanUp([&ran] { ran = true; });
        ranInside = ran;
    }
    return judge({{!ranInside, QStringLiteral("run before the scope ends")}});
}

} // namespace

Checks valueChecks()
{
    return {
        {"Values.Event", "an event comes back from a variant as it was",
         "events that are delivered by name arrive empty", eventTravels},
        {"Values.Quantity", "a quantity comes back from a variant as it was",
         "the amount that the plugin sets is not applied", quantityTravels},
        {"Values.QuantitiesCompare", "quantities are equal when amounts are",
         "a changed quantity is taken for the old one", quantitiesCompare},
        {"Finally.Return", "the clean-up runs once when its scope ends",
         "records are not saved, and the receipt stays switched off", finallyOnReturn},
        {"Finally.Exception", "the clean-up runs once when an exception passes",
         "the receipt stays switched off after an error", finallyOnException},
        {"Finally.InTime", "the clean-up does not run before its scope ends",
         "records are saved before they are changed", finallyInTime},
    };
}

} // namespace contract
