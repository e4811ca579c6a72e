#include "tests/model/Rules.h"

#include <algorithm>

// What the rules say to documents, events and triggers.

namespace model {

// Documents

void Rules::setDocument(const ReceiptPtr &receipt)
{
    if (!receipt || !receipt->isSale) {
        suspend();
        return;
    }
    if (receipt->hasOrder) {
        say("INFO Обрабатываемый документ содержит заказ, работа плагина приостановлена");
        return;
    }
    m_world.setListening(true);
    m_receipt = receipt;
    taras.clear();
    goods.clear();
    say("load taraInfo");
    for (const Tara &tara : receipt->savedTara)
        taras.push_back(std::make_shared<Tara>(tara));
    say("load packagingInfo");
    for (const Goods &info : receipt->savedGoods)
        goods.push_back(std::make_shared<Goods>(info));
}

void Rules::suspend()
{
    m_receipt = nullptr;
    m_world.setListening(false);
}

void Rules::afterSoftCheck()
{
    say("INFO Добавлен софт-чек или заказ, работа плагина приостановлена");
    suspend();
}

void Rules::save()
{
    if (!m_receipt)
        return;
    std::string line = "save taraInfo";
    m_receipt->savedTara.clear();
    for (const auto &tara : taras) {
        m_receipt->savedTara.push_back(*tara);
        line += toText(*tara);
    }
    say(line);
    line = "save packagingInfo";
    m_receipt->savedGoods.clear();
    for (const auto &info : goods) {
        m_receipt->savedGoods.push_back(*info);
        line += toText(*info);
    }
    say(line);
}

// Events

void Rules::positionAdded(const PositionPtr &added)
{
    const PositionPtr position = added ? positionAt(added->posnum) : nullptr;
    if (!position)
        return;
    if (position->article->taraMode == 1) {
        say("INFO Добавлена тара");
        const double capacity = position->article->capacity * position->count;
        if (const auto known = taraAt(position->posnum)) {
            resize(*known, capacity);
        } else {
            taras.push_back(std::make_shared<Tara>(
                Tara{position->posnum, m_world.newIdentifier(), capacity, capacity}));
        }
        save();
    } else if (position->article->taraMode == 2) {
        say("INFO Добавлен товар, отпускаемый в тару");
        recordGoods(*position);
        save();
    }
}

void Rules::positionStornoed(const PositionPtr &position)
{
    if (!position)
        return;
    say("INFO При удалении позиции: " + std::to_string(position->posnum));
    if (position->article->taraMode == 2)
        forgetGoods(position->posnum);
    if (position->article->taraMode == 1) {
        if (const auto tara = taraAt(position->posnum))
            dropTara(tara);
    }
    save();
}

void Rules::dropTara(const std::shared_ptr<Tara> &tara)
{
    taras.erase(std::remove(taras.begin(), taras.end(), tara), taras.end());
    // The receipt that is switched off is the one that is switched on again.
    const ReceiptPtr receipt = m_receipt;
    if (receipt)
        say("switch off " + std::to_string(receipt->number));
    const auto snapshot = goods;
    for (const auto &info : snapshot) {
        const auto used = info->used.find(tara->id);
        if (used != info->used.end() && changeGoods(*info, -used->second))
            info->used.erase(tara->id);
        if (m_receipt != receipt)
            break; // the rest of the goods are those of a receipt that is no longer current
    }
    if (receipt) {
        say("switch on " + std::to_string(receipt->number));
        say("loyalty " + std::to_string(receipt->number));
    }
}

void Rules::modifiersApplied(const PositionPtr &position)
{
    if (!position)
        return;
    if (position->article->taraMode == 1)
        followTara(*position);
    else if (position->article->taraMode == 2)
        place(*goodsAt(position->posnum), position->base);
    save();
}

void Rules::followTara(const Position &position)
{
    const auto tara = taraAt(position.posnum);
    if (!tara)
        return;
    const double before = tara->capacity;
    const double capacity = position.article->capacity * position.base;
    resize(*tara, capacity);
    if (tara->isEmpty())
        return;
    for (const auto &info : goods) {
        if (info->used.count(tara->id) == 0)
            continue;
        const auto user = info;
        changeGoods(*user, capacity - before);
        return;
    }
}

// Triggers

Answer Rules::beforeModifiers(int posnum)
{
    const PositionPtr position = positionAt(posnum);
    if (!position || position->article->taraMode != 1 || !m_world.modifiers.hasQuantity)
        return Continue;
    const auto tara = taraAt(posnum);
    if (!tara)
        return Continue;
    const bool isSharedTara = isShared(*tara);
    if (!isSharedTara && (tara->isEmpty() || tara->isFull()))
        return Continue;
    m_world.modifiers = {};
    if (isSharedTara)
        say("error packingControlTaraUsedDiffGoods|Тара используется разными товарами.\n"
            "Изменение количества запрещено|2|false");
    else
        say("error packingControlTaraAlmostFull|Тара частично заполнена.\n"
            "Изменение количества запрещено|2|false");
    return Error;
}

void Rules::afterSplit(const std::vector<SplitPosition> &splits)
{
    say("INFO Обработка разбиения позиции");
    for (const SplitPosition &split : splits) {
        if (!split.source)
            continue;
        forgetGoods(split.source->posnum);
        const std::string group =
            split.source->group.empty() ? m_world.newIdentifier() : split.source->group;
        std::vector<PositionPtr> all = split.pieces;
        if (!split.isSourceGone)
            all.insert(all.begin(), split.source);
        for (const PositionPtr &piece : all) {
            piece->group = group;
            recordGoods(*piece);
        }
    }
    save();
}

void Rules::afterUnion(const std::vector<PositionPtr> &deleted,
                       const std::vector<PositionPtr> &changed)
{
    say("INFO Обработка объединения позиций");
    for (const PositionPtr &position : deleted)
        forgetGoods(position->posnum);
    for (const PositionPtr &position : changed)
        place(*goodsAt(position->posnum), position->base);
    save();
}

Answer Rules::beforeSubtotal()
{
    const auto isEmptyTara = [](const auto &tara) { return tara->isEmpty(); };
    if (std::none_of(taras.begin(), taras.end(), isEmptyTara))
        return Continue;
    const ReceiptPtr receipt = m_receipt;
    if (!m_world.askAboutEmptyTara())
        return Cancel;
    if (m_receipt && m_receipt != receipt)
        return Cancel; // the answer was about another receipt
    return stornoEmptyTara() ? Continue : Cancel;
}

bool Rules::stornoEmptyTara()
{
    say("INFO Сторнирование пустой тары");
    const ReceiptPtr receipt = m_receipt;
    if (!receipt)
        return true;
    const auto snapshot = taras;
    for (const auto &tara : snapshot) {
        if (!tara->isEmpty())
            continue;
        m_world.storno(tara->posnum);
        if (m_receipt != receipt)
            return false; // what happened to the receipt cannot be seen any more
        if (receipt->find(tara->posnum) || receipt->isEmpty())
            return false;
    }
    return true;
}

} // namespace model
