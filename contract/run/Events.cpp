#include "contract/Checks.h"
#include "contract/Stage.h"

namespace contract {

namespace {

//! Whether one event of \a code came, about the position \a posnum.
Finding cameAbout(const Stage &stage, int code, int posnum)
{
    const GoodsItemPtr position = stage.probe.onlyPosition(code);
    if (!position) {
        return broken(
            QStringLiteral("events %1, and no single %2 with a position under \"position\"")
                .arg(stage.probe.codes())
                .arg(code));
    }
    return judge({{position->getPosnum() == posnum,
                   QStringLiteral("event %1 is about position %2 and not %3")
                       .arg(code)
                       .arg(position->getPosnum())
                       .arg(posnum)}});
}

//! Runs \a look inside the next event of \a code.
template <class Look>
void insideEvent(Stage &stage, int code, const Look &look)
{
    stage.probe.onEvent = [code, look](const Event &event) {
        if (int(event.getCode()) == code)
            look();
    };
}

Finding added(Stage &stage)
{
    stage.begin();
    const int posnum = stage.driver->addTara(5.0, 2.0);
    return cameAbout(stage, 19, posnum);
}

Finding addedIsThere(Stage &stage)
{
    stage.begin();
    bool isEmpty = true;
    insideEvent(stage, 19, [&] { isEmpty = stage.receipt->getPositionList().isEmpty(); });
    stage.tara();
    return judge({flag(!isEmpty, "the receipt has no positions yet")});
}

Finding stornoed(Stage &stage)
{
    stage.begin();
    const int posnum = stage.tara();
    stage.driver->storno(posnum);
    return cameAbout(stage, 21, posnum);
}

Finding stornoedIsGone(Stage &stage)
{
    stage.begin();
    const int posnum = stage.tara();
    bool isThere = false;
    insideEvent(stage, 21, [&] { isThere = !stage.receipt->getPositionByPosnum(posnum).isNull(); });
    stage.driver->storno(posnum);
    return judge({flag(!isThere, "the receipt still has the position")});
}

Finding heldOutlives(Stage &stage)
{
    stage.begin();
    const int posnum = stage.tara();
    const GoodsItemPtr position = stage.position(posnum);
    stage.driver->storno(posnum);
    return judge({flag(position->getPosnum() == posnum, "another number"),
                  flag(position->getTmc() && position->getTmc()->getTaraMode() == Tmc::Tara,
                       "another article")});
}

Finding changed(Stage &stage)
{
    stage.begin();
    const int posnum = stage.tara();
    stage.driver->change(posnum, 3.0);
    return cameAbout(stage, 26, posnum);
}

Finding changeIsApplied(Stage &stage)
{
    stage.begin();
    const int posnum = stage.goods();
    double seen = 0.0;
    stage.probe.onEvent = [&](const Event &) { seen = stage.position(posnum)->getBquant(); };
    stage.driver->change(posnum, 3.0);
    return judge({amount("the amount", seen, 3.0)});
}

} // namespace

Checks eventChecks()
{
    return {
        {"Events.Added", "an added position comes as event 19 with the handle under \"position\"",
         "no record is made of the position", onStage<added>},
        {"Events.AddedIsThere", "the added position is in the receipt when event 19 comes",
         "no record is made of the position", onStage<addedIsThere>},
        {"Events.Storno",
         "a stornoed position comes as event 21 with the handle under \"position\"",
         "stornoed tara goes on taking goods", onStage<stornoed>},
        {"Events.StornoIsGone", "the stornoed position has left the receipt when event 21 comes",
         "the plugin asks for changes of what is no longer sold", onStage<stornoedIsGone>},
        {"Events.HeldPosition", "a handle of a position that left the receipt still tells of it",
         "the host crashes at a storno", onStage<heldOutlives>},
        {"Events.Change", "a change by the cashier comes as event 26, handle under \"position\"",
         "goods do not follow their tara", onStage<changed>},
        {"Events.ChangeIsApplied", "the position has its new amount when its event comes",
         "the tara keeps the capacity of before", onStage<changeIsApplied>},
    };
}

} // namespace contract
