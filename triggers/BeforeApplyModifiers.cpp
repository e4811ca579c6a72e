#include "host/ActionArguments.h"
#include "host/ActivityNotifier.h"
#include "host/Event.h"
#include "host/Session.h"
#include "host/Tr.h"
#include "plugin/PackagingControl.h"

namespace {

tr::Tr sharedTaraMessage()
{
    return {QStringLiteral("packingControlTaraUsedDiffGoods"),
            QStringLiteral("Тара используется разными товарами.\nИзменение количества запрещено")};
}

tr::Tr partlyFilledTaraMessage()
{
    return {QStringLiteral("packingControlTaraAlmostFull"),
            QStringLiteral("Тара частично заполнена.\nИзменение количества запрещено")};
}

} // namespace

EContext::Result PackagingControl::beforeApplyModifiers(const control::Action &action)
{
    const auto position = findPosition(control::args::Core(action).positionNumber());
    return position && isTara(position) ? decideOnTara(position) : EContext::Continue;
}

EContext::Result PackagingControl::decideOnTara(const QSharedPointer<GoodsItem> &position)
{
    ModifiersContainer *const pending = Singleton<Session>::instance()->getModifiers();
    if (!pending->isSet(modifiers::Quantity))
        return EContext::Continue;
    if (!isTaraSplitted(position) && !isTaraPartialFilled(position))
        return EContext::Continue;

    pending->clearAll();
    ActivityNotifier *const notifier = Singleton<ActivityNotifier>::instance();
    // Asked anew on purpose: the answer at this moment chooses the text.
    const tr::Tr message =
        isTaraSplitted(position) ? sharedTaraMessage() : partlyFilledTaraMessage();
    notifier->notify(Event(EActivityListener::eventError)
                         .addArgument(QStringLiteral("errorText"), message)
                         .addArgument(QStringLiteral("forCustomer"), false));
    return EContext::Error;
}
