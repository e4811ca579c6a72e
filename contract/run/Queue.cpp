#include "contract/Checks.h"
#include "contract/Stage.h"

#include "host/ActionArguments.h"
#include "host/ActionQueueController.h"
#include "host/Quantity.h"
#include "host/Session.h"

// What the plugin asks of the action queue, nested in an event as the plugin does.

namespace contract {

namespace {

int runOn(control::EActionType type, int posnum)
{
    const control::Action action(type, {});
    control::args::Core(action).setPositionNumber(posnum);
    return Singleton<ActionQueueController>::instance()->runAction(action);
}

int setAmount(int posnum, double amount)
{
    Singleton<Session>::instance()->getModifiers()->set(
        modifiers::Quantity, QVariant::fromValue(Quantity(amount, quantModeRecalculated)));
    return runOn(control::ApplyModifiers, posnum);
}

//! What was seen of an action that was asked for inside the event of a changed tara.
struct Asked
{
    int goods = 0;
    int result = -1;
    double amount = 0.0;  //!< of the goods when the call returned
    bool isThere = false; //!< whether the goods were in the receipt then
    QList<Event> events;  //!< that came between call and return
};

template <class Ask>
Asked askInside(Stage &stage, const Ask &ask)
{
    stage.begin();
    const int tara = stage.tara();
    Asked asked;
    asked.goods = stage.goods();
    const GoodsItemPtr position = stage.position(asked.goods);
    stage.probe.onEvent = [&](const Event &) {
        stage.probe.onEvent = nullptr;
        const qsizetype before = stage.probe.events.size();
        asked.result = ask(asked.goods);
        asked.amount = position->getBquant();
        asked.isThere = !stage.receipt->getPositionByPosnum(asked.goods).isNull();
        asked.events = stage.probe.events.mid(before);
    };
    stage.driver->change(tara, 3.0);
    stage.probe.onEvent = nullptr;
    return asked;
}

Asked askForAmount(Stage &stage)
{
    return askInside(stage, [](int goods) { return setAmount(goods, 3.0); });
}

Asked askForRemoval(Stage &stage)
{
    return askInside(stage, [](int goods) { return runOn(control::RemovePosition, goods); });
}

Row isDone(const Asked &asked)
{
    return {asked.result == 2, QStringLiteral("runAction gives %1").arg(asked.result)};
}

Row cameInside(const Asked &asked, int code)
{
    bool came = false;
    QString codes;
    for (const Event &event : asked.events) {
        const GoodsItemPtr position = positionOf(event);
        came =
            came
            || (int(event.getCode()) == code && position && position->getPosnum() == asked.goods);
        codes += QStringLiteral(" %1").arg(int(event.getCode()));
    }
    return {came, QStringLiteral("events before runAction returned:%1, and no %2 about the goods")
                      .arg(codes.isEmpty() ? QStringLiteral(" none") : codes)
                      .arg(code)};
}

Finding changeIsDone(Stage &stage)
{
    return judge({isDone(askForAmount(stage))});
}

Finding changeIsAbsolute(Stage &stage)
{
    return judge({amount("the amount, which was 4,", askForAmount(stage).amount, 3.0)});
}

Finding changeIsReported(Stage &stage)
{
    return judge({cameInside(askForAmount(stage), 252)});
}

Finding removalIsDone(Stage &stage)
{
    const Asked asked = askForRemoval(stage);
    return judge({isDone(asked), flag(!asked.isThere, "the position is still in the receipt")});
}

Finding removalIsReported(Stage &stage)
{
    return judge({cameInside(askForRemoval(stage), 21)});
}

Finding unknownPosition(Stage &stage)
{
    stage.begin();
    constexpr int nowhere = 9999;
    const int change = setAmount(nowhere, 3.0);
    const int removal = runOn(control::RemovePosition, nowhere);
    return judge({flag(change != 2, "runAction gives 2 for a change of position 9999"),
                  flag(removal != 2, "runAction gives 2 for a removal of position 9999")});
}

Finding passesTriggers(Stage &stage)
{
    QList<int> guarded;
    stage.probe.watch(control::ApplyModifiers, ActionTrigger::Before,
                      [&guarded](const control::Action &action) {
                          guarded.append(control::args::Core(action).positionNumber());
                          return EContext::Continue;
                      });
    const Asked asked = askForAmount(stage);
    return judge(
        {flag(guarded.contains(asked.goods), "the trigger before action 5 was not called")});
}

} // namespace

Checks queueChecks()
{
    return {
        {"Queue.ChangeIsDone", "runAction gives 2 for a change that was made",
         "the change is logged as failed", onStage<changeIsDone>},
        {"Queue.AmountIsAbsolute", "the amount that is set is what the position has afterwards",
         "goods grow or shrink by the wrong amount when their tara changes",
         onStage<changeIsAbsolute>},
        {"Queue.ChangeIsReported",
         "a change through the queue comes as event 252, before runAction returns",
         "tara and goods differ until the next change", onStage<changeIsReported>},
        {"Queue.RemovalIsDone", "runAction gives 2 for a removal, and the position is gone then",
         "goods without tara stay in the receipt", onStage<removalIsDone>},
        {"Queue.RemovalIsReported", "a removal comes as event 21, before runAction returns",
         "records of removed goods go on taking capacity", onStage<removalIsReported>},
        {"Queue.UnknownPosition", "runAction gives another number than 2 for what cannot be done",
         "goods are taken to be removed that are still sold", onStage<unknownPosition>},
        {"Queue.PassesTriggers", "queued actions pass the triggers as the cashier's do",
         "other plugins do not see what this one asks for", onStage<passesTriggers>},
    };
}

} // namespace contract
