#ifndef TILL_LANGUAGE_TILLMESSAGES_H
#define TILL_LANGUAGE_TILLMESSAGES_H

#include "host/Tr.h"

#include <QtCore/QList>

// Everything that the register itself says to a cashier: a key, which is also the name of the
// function that gives the message, and the Russian text. In patterns "%1" and "%2" stand for the
// values, "%Q" for what is quoted. A message added here needs a text in each .ts file beside this
// one.
#define TILL_MESSAGES(MESSAGE)                                                                     \
    /* Questions and refusals */                                                                   \
    MESSAGE(tillStornoPosition, "Сторнировать позицию?")                                           \
    MESSAGE(tillCancelReceipt, "Отменить чек?")                                                    \
    MESSAGE(tillNotEnoughMoney, "Недостаточно денег для оплаты")                                   \
    MESSAGE(tillCannotFollow, "Товар в таре не изменён: предел количества или суммы")              \
    MESSAGE(tillReceiptEmpty, "В чеке нет позиций")                                                \
    MESSAGE(tillDeclined, "На вопрос \"%Q\" ответили \"нет\"")                                     \
    MESSAGE(tillYes, "Да")                                                                         \
    MESSAGE(tillNo, "Нет")                                                                         \
    MESSAGE(tillChange, "Сдача %1")                                                                \
    /* Mistakes and failures */                                                                    \
    MESSAGE(tillBusy, "Выполняется другая команда")                                                \
    MESSAGE(tillReceiptIsOpen, "Чек уже открыт: оплатите или отмените его")                        \
    MESSAGE(tillNoReceipt, "Нет открытого чека")                                                   \
    MESSAGE(tillNoArticle, "В каталоге нет товара \"%1\"")                                         \
    MESSAGE(tillNoArticleButNear, "В каталоге нет товара \"%1\"; может быть, %2?")                 \
    MESSAGE(tillNoPosition, "В чеке нет позиции %1")                                               \
    MESSAGE(tillPositionStornoed, "Позиция %1 сторнирована")                                       \
    MESSAGE(tillCountTooSmall, "Количество должно быть больше 0")                                  \
    MESSAGE(tillCountNegative, "Количество не может быть меньше 0")                                \
    MESSAGE(tillCountTooGreat, "Количество не может быть больше %1")                               \
    MESSAGE(tillSumTooGreat, "Сумма чека не может быть больше %1")                                 \
    MESSAGE(tillNoParts, "Не названо ни одной части")                                              \
    MESSAGE(tillPartTooSmall, "Каждая часть должна быть больше 0")                                 \
    MESSAGE(tillPartsTooGreat, "В позиции %1 меньше, чем в частях")                                \
    MESSAGE(tillTooFewPositions, "Нужно назвать хотя бы две позиции")                              \
    MESSAGE(tillPositionTwice, "Позиция %1 названа дважды")                                        \
    MESSAGE(tillOtherArticles, "В позициях %1 и %2 разные товары")                                 \
    MESSAGE(tillOrderNumberless, "У заказа нет номера")                                            \
    MESSAGE(tillSoftCheckNumberless, "У софт-чека нет номера")                                     \
    MESSAGE(tillHasOrder, "В чеке уже есть заказ %1")                                              \
    MESSAGE(tillHasSoftCheck, "В чеке уже есть софт-чек %1")                                       \
    MESSAGE(tillNotStored, "Не удалось сохранить")                                                 \
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
