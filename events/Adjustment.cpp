#include "host/ActionArguments.h"
#include "host/ActionQueueController.h"
#include "host/Quantity.h"
#include "host/Session.h"
#include "plugin/PackagingControl.h"
#include "registry/Tolerance.h"

#include <log4qt/logger.h>

#include <cmath>
#include <utility>

using packaging::isNegative;
using packaging::isPositive;
using packaging::isZero;

namespace {

//! \a value as the log shows it: three decimals and a point, whatever the locale.
QString toLogText(double value)
{
    return QString::number(value, 'f', 3);
}

//! Asks the host to run an action of \a type on position \a posnum now. True when it was carried
//! out.
bool runOnPosition(control::EActionType type, int posnum)
{
    const control::Action action(type, {});
    control::args::Core(action).setPositionNumber(posnum);
    return Singleton<ActionQueueController>::instance()->runAction(action) == EContext::Continue;
}

bool removePosition(GoodsItem &position, Log4Qt::Logger &logger)
{
    logger.info(
        QStringLiteral("Удаление позиции %1, размещенной в таре, в связи с изменением тары"),
        position.getPosnum());
    position.setGroupId(QString());
    if (runOnPosition(control::RemovePosition, position.getPosnum()))
        return true;
    logger.error(QStringLiteral("Не удалось удалить позицию, размещенную в тару"));
    return false;
}

bool changeQuantity(GoodsItem &position, double newQuantity, double delta, Log4Qt::Logger &logger)
{
    logger.info(
        QStringLiteral("Изменение количества позиции %1, размещенной в таре, на %2, в связи с "
                       "изменением тары"),
        position.getPosnum(), toLogText(delta));
    Singleton<Session>::instance()->getModifiers()->set(
        modifiers::Quantity, QVariant::fromValue(Quantity(newQuantity, quantModeRecalculated)));
    if (runOnPosition(control::ApplyModifiers, position.getPosnum()))
        return true;
    logger.error(QStringLiteral("Не удалось изменить количество позиции, размещенной в тару"));
    return false;
}

} // namespace

void PackagingControl::modifyTaraCapacity(const QSharedPointer<TaraInfo> &tara, double newCapacity)
{
    const double delta = newCapacity - tara->capacity;
    if (isZero(delta))
        return;
    logger->info(QStringLiteral("Изменение ёмкости тары %1 -> %2"), toLogText(tara->capacity),
                 toLogText(newCapacity));
    tara->capacity = newCapacity;
    tara->freeCapacity += delta;
}

void PackagingControl::modifyPackagingUsedCapacity(const QSharedPointer<PackagingInfo> &info,
                                                   double newUsedCapacity)
{
    double delta = newUsedCapacity; // above 0: to be filled in; below 0: to be released
    for (const double used : std::as_const(info->usedTara))
        delta -= used;

    for (const auto &tara : std::as_const(taraList)) {
        const double free = tara->freeCapacity;
        // Only over-full taras release: one with free capacity keeps its share when the goods
        // shrink.
        const bool takesPart = isPositive(delta) ? isPositive(free)
                                                 : isNegative(free) && isNegative(delta)
                                                       && info->usedTara.contains(tara->id);
        if (!takesPart)
            continue;
        const double amount = std::abs(free) < std::abs(delta) ? free : delta;
        logger->info(QStringLiteral("Изменение использованной позицией %1 ёмкости тары %2 на %3"),
                     info->posnum, tara->posnum, toLogText(amount));
        tara->freeCapacity -= amount;
        info->usedTara[tara->id] += amount;
        delta -= amount;
        if (isZero(delta)) // and no other tara takes part
            break;
    }
}

bool PackagingControl::modifyPackagingPositionQuantity(const QSharedPointer<PackagingInfo> &info,
                                                       double quantityDelta)
{
    const auto position = findPosition(info->posnum);
    if (!position)
        return false;
    if (isZero(quantityDelta))
        return true;
    const double newQuantity = position->getBquant() + quantityDelta;
    return isPositive(newQuantity) ? changeQuantity(*position, newQuantity, quantityDelta, *logger)
                                   : removePosition(*position, *logger);
}
