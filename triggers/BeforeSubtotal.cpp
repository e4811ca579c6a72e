#include "host/ActionArguments.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "plugin/PackagingControl.h"

#include <log4qt/logger.h>

namespace {

//! Asks the cashier. True for yes.
bool askToStornoEmptyTara()
{
    constexpr int kind = 1;
    constexpr int flags = 0;
    const tr::Tr question(
        QStringLiteral("packingControlSaleEmptyTara"),
        QStringLiteral("В чеке есть пустая тара.\nСторнировать тару и перейти к оплате?"));
    const auto dialog = MockFactory<Dialog>::create();
    const tr::Tr ok(QStringLiteral("dialogChoiceOk"), QStringLiteral("ОК"));
    const tr::Tr cancel(QStringLiteral("dialogChoiceCancel"), QStringLiteral("Отмена"));
    return dialog->showQuestion(question, kind, ok, cancel, flags);
}

} // namespace

EContext::Result PackagingControl::beforeSubtotal(const control::Action &action)
{
    return isExistsEmptyTara() ? decideOnEmptyTara(action) : EContext::Continue;
}

EContext::Result PackagingControl::decideOnEmptyTara(const control::Action &action)
{
    const auto receipt = document;
    if (!askToStornoEmptyTara())
        return EContext::Cancel;
    // The answer is about the receipt that was current, not about one that came meanwhile.
    if (document && document != receipt)
        return EContext::Cancel;
    return stornoAllEmptyTara(action) ? EContext::Continue : EContext::Cancel;
}

bool PackagingControl::stornoAllEmptyTara(const control::Action &)
{
    logger->info(QStringLiteral("Сторнирование пустой тары"));
    if (!document)
        return true;
    const control::Action storno(control::StornoPosition, {});
    control::args::Storno arguments(storno);
    arguments.setWithoutDialog(true);

    const auto receipt = document;
    const auto taras = taraList; // a copy: the event of each storno changes the list
    for (const auto &tara : taras) {
        if (!tara->isEmpty())
            continue;
        arguments.setPositionNumber(tara->posnum);
        MockFactory<DocumentLogic>::create()->stornoPosition(storno);
        if (document != receipt) // the host has switched receipts
            return false;
        if (receipt->getPositionByPosnum(tara->posnum))
            return false;
        if (receipt->getPositionList().isEmpty())
            return false;
    }
    return true;
}
