#include "host/ActionArguments.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "plugin/PackagingControl.h"

#include <log4qt/logger.h>

#include <vector>

namespace {

bool confirmsStorno()
{
    const tr::Tr question(
        QStringLiteral("packingControlSaleEmptyTara"),
        QStringLiteral("В чеке есть пустая тара.\nСторнировать тару и перейти к оплате?"));
    const auto dialog = MockFactory<Dialog>::create();
    const tr::Tr ok(QStringLiteral("dialogChoiceOk"), QStringLiteral("ОК"));
    const tr::Tr cancel(QStringLiteral("dialogChoiceCancel"), QStringLiteral("Отмена"));
    return dialog->showQuestion(question, 1, ok, cancel, 0);
}

} // namespace

EContext::Result PackagingControl::beforeSubtotal(const control::Action &action)
{
    // While suspended the records are those of an earlier receipt, about which nobody may be asked.
    if (!document || !isExistsEmptyTara())
        return EContext::Continue;
    const auto receipt = document; // the host may turn to another one during the question
    if (!confirmsStorno())
        return EContext::Cancel;
    // An answer about this receipt is none about another that the host turned to meanwhile.
    const bool isStillAbout = !document || document == receipt;
    return isStillAbout && stornoAllEmptyTara(action) ? EContext::Continue : EContext::Cancel;
}

bool PackagingControl::stornoAllEmptyTara(const control::Action &action)
{
    Q_UNUSED(action)
    logger->info(QStringLiteral("Сторнирование пустой тары"));
    const auto receipt = document; // the host may take it away during a storno
    if (!receipt)
        return true;
    const control::Action storno(control::StornoPosition, {});
    control::args::Storno arguments(storno);
    arguments.setWithoutDialog(true);

    // Each storno comes back as an event, which shortens the live list. Handles of its own: in
    // Qt 6.4 a list that shares its elements crashes when there is no memory to detach.
    const std::vector<QSharedPointer<TaraInfo>> taras(taraList.cbegin(), taraList.cend());
    for (const auto &tara : taras) {
        if (!tara->isEmpty())
            continue;
        if (document != receipt)
            return false; // the host turned to another receipt, whose positions are not these
        arguments.setPositionNumber(tara->posnum);
        MockFactory<DocumentLogic>::create()->stornoPosition(storno);
        if (receipt->getPositionByPosnum(tara->posnum))
            return false;
        if (receipt->getPositionList().isEmpty())
            return false;
    }
    return true;
}
