#ifndef TILL_LANGUAGE_TILLMESSAGES_H
#define TILL_LANGUAGE_TILLMESSAGES_H

#include "host/Tr.h"

#include <QtCore/QList>

// Everything that the register itself says to a cashier: a key, which is also the name of the
// function that gives the message, and the Russian text. In patterns "%1" and "%2" stand for the
// values. A message added here needs a text in each .ini file beside this one.
#define TILL_MESSAGES(MESSAGE)                                                                     \
    /* Questions and refusals */                                                                   \
    MESSAGE(tillStornoPosition, "Сторнировать позицию?")                                           \
    MESSAGE(tillCancelReceipt, "Отменить чек?")                                                    \
    MESSAGE(tillNotEnoughMoney, "Недостаточно денег для оплаты")                                   \
    MESSAGE(tillReceiptEmpty, "В чеке нет позиций")                                                \
    MESSAGE(tillYes, "Да")                                                                         \
    MESSAGE(tillNo, "Нет")                                                                         \
    MESSAGE(tillChange, "Сдача %1")                                                                \
    /* Above the table */                                                                          \
    MESSAGE(tillSale, "Чек")                                                                       \
    MESSAGE(tillReturn, "Возврат")                                                                 \
    MESSAGE(tillDocument, "Документ")                                                              \
    MESSAGE(tillOpen, "открыт")                                                                    \
    MESSAGE(tillSubtotal, "подытог")                                                               \
    MESSAGE(tillClosed, "закрыт")                                                                  \
    MESSAGE(tillCancelled, "отменён")                                                              \
    MESSAGE(tillOrder, "заказ %1")                                                                 \
    MESSAGE(tillSoftCheck, "софт-чек %1")                                                          \
    MESSAGE(tillTaraSuspended, "контроль тары приостановлен")                                      \
    MESSAGE(tillTaraAbsent, "без контроля тары")                                                   \
    /* The table */                                                                                \
    MESSAGE(tillNumber, "№")                                                                       \
    MESSAGE(tillArticle, "Товар")                                                                  \
    MESSAGE(tillQuantity, "Кол-во")                                                                \
    MESSAGE(tillPrice, "Цена")                                                                     \
    MESSAGE(tillSum, "Сумма")                                                                      \
    MESSAGE(tillTotal, "ИТОГО")                                                                    \
    MESSAGE(tillNoLines, "нет позиций")                                                            \
    MESSAGE(tillPieces, "шт")                                                                      \
    /* Below a tara and below goods */                                                             \
    MESSAGE(tillTaraEmpty, "пусто")                                                                \
    MESSAGE(tillTaraFree, "свободно %1")                                                           \
    MESSAGE(tillTaraFull, "полна")                                                                 \
    MESSAGE(tillTaraOverfull, "переполнена на %1")                                                 \
    MESSAGE(tillInTara, "в таре")                                                                  \
    MESSAGE(tillShare, "поз. %1 — %2")                                                             \
    MESSAGE(tillShareOfGone, "удалённая тара — %1")                                                \
    MESSAGE(tillUnplaced, "не размещено %1")                                                       \
    MESSAGE(tillOverplaced, "записано лишнее %1")

namespace till::messages {

#define TILL_MESSAGE_FUNCTION(key, text)                                                           \
    inline tr::Tr key()                                                                            \
    {                                                                                              \
        return {QStringLiteral(#key), QStringLiteral(text)};                                       \
    }
TILL_MESSAGES(TILL_MESSAGE_FUNCTION)
#undef TILL_MESSAGE_FUNCTION

//! Every message above, in its order.
inline QList<tr::Tr> all()
{
#define TILL_MESSAGE_CALL(key, text) key(),
    return {TILL_MESSAGES(TILL_MESSAGE_CALL)};
#undef TILL_MESSAGE_CALL
}

} // namespace till::messages

#endif // TILL_LANGUAGE_TILLMESSAGES_H
