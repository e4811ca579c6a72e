#include "contract/Checks.h"
#include "contract/Stage.h"

#include "host/ActionArguments.h"
#include "host/ActivityNotifier.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "host/LoyaltySystemLayer.h"
#include "host/Tr.h"

namespace contract {

namespace {

Finding messageIsShown(Stage &stage)
{
    stage.begin();
    const QString text = QStringLiteral("Проверка связи");
    Singleton<ActivityNotifier>::instance()->notify(
        Event(EActivityListener::eventError)
            .addArgument(QStringLiteral("errorText"), tr::Tr(QStringLiteral("contractKit"), text))
            .addArgument(QStringLiteral("forCustomer"), false));
    const QString seen = stage.driver->message();
    return judge({{seen == text, QStringLiteral("the cashier reads \"%1\"").arg(seen)}});
}

bool ask()
{
    const tr::Tr question(QStringLiteral("contractKitQuestion"), QStringLiteral("Да?"));
    const tr::Tr confirm(QStringLiteral("dialogChoiceOk"), QStringLiteral("ОК"));
    const tr::Tr cancel(QStringLiteral("dialogChoiceCancel"), QStringLiteral("Отмена"));
    return MockFactory<Dialog>::create()->showQuestion(question, 1, confirm, cancel, 0);
}

Finding questionIsConfirmed(Stage &stage)
{
    stage.begin();
    stage.driver->answer(true);
    return judge({flag(ask(), "false")});
}

Finding questionIsDeclined(Stage &stage)
{
    stage.begin();
    stage.driver->answer(false);
    return judge({flag(!ask(), "true")});
}

//! Has the host storno position \a posnum as the plugin does; how many questions that took.
int stornoSilently(Stage &stage, int posnum)
{
    const control::Action storno(control::StornoPosition, {});
    control::args::Storno arguments(storno);
    arguments.setWithoutDialog(true);
    arguments.setPositionNumber(posnum);
    const int before = stage.driver->questions();
    MockFactory<DocumentLogic>::create()->stornoPosition(storno);
    return stage.driver->questions() - before;
}

Finding stornoIsDone(Stage &stage)
{
    stage.begin();
    const int posnum = stage.tara();
    stage.driver->answer(true);
    stornoSilently(stage, posnum);
    return judge(
        {flag(!stage.receipt->getPositionByPosnum(posnum), "the position is still in the receipt"),
         flag(stage.probe.onlyPosition(21) != nullptr, "no event 21 about the position")});
}

Finding stornoIsSilent(Stage &stage)
{
    stage.begin();
    const int asked = stornoSilently(stage, stage.tara());
    return judge({{asked == 0, QStringLiteral("the cashier was asked %1 times").arg(asked)}});
}

Finding loyaltyIsCalled(Stage &stage)
{
    stage.begin();
    const int posnum = stage.tara();
    Singleton<LoyaltySystemLayer>::instance()->updateDocument(stage.receipt);
    return judge({flag(!stage.receipt->getPositionByPosnum(posnum).isNull(),
                       "a position has left the receipt")});
}

} // namespace

Checks cashierChecks()
{
    return {
        {"Cashier.Message", "the tr::Tr under \"errorText\" of event 29 is shown",
         "the cashier reads an empty text", onStage<messageIsShown>},
        {"Cashier.Confirm", "showQuestion is true when the confirming choice is taken",
         "empty tara stays in the receipt against the cashier's word",
         onStage<questionIsConfirmed>},
        {"Cashier.Decline", "showQuestion is false when the other choice is taken",
         "empty tara is stornoed against the cashier's word", onStage<questionIsDeclined>},
        {"Cashier.StornoIsDone",
         "when stornoPosition returns, the position is gone and event 21 has come",
         "payment is cancelled though the tara was stornoed", onStage<stornoIsDone>},
        {"Cashier.StornoIsSilent", "a storno without dialog asks nobody",
         "the cashier is asked again for each tara", onStage<stornoIsSilent>},
        {"Cashier.Loyalty", "updateDocument may be called for the open receipt",
         "the host crashes when a tara is stornoed", onStage<loyaltyIsCalled>},
    };
}

} // namespace contract
