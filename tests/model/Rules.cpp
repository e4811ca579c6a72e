#include "tests/model/Rules.h"

#include "tests/model/Command.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <set>

namespace model {

namespace {

constexpr double tolerance = 0.0005;

bool same(double a, double b)
{
    return std::fabs(a - b) < tolerance;
}

//! Three decimals as the log has them: halves go away from zero, and zero has no sign.
std::string threeDecimals(double value)
{
    char text[400];
    const double whole = std::trunc(value);
    const double thousandths = (value - whole) * 1000;
    const bool isExact = std::fma(value - whole, 1000.0, -thousandths) == 0;
    if (isExact && std::fabs(thousandths - std::trunc(thousandths)) == 0.5) {
        // Only sixteenths are halves of thousandths, so that nothing is carried.
        std::snprintf(text, sizeof text, "%s%.0f.%03.0f", value < 0 ? "-" : "", std::fabs(whole),
                      std::fabs(thousandths) + 0.5);
        return text;
    }
    constexpr auto fixed = std::chars_format::fixed;
    return {text, std::to_chars(text, text + sizeof text, value == 0 ? 0 : value, fixed, 3).ptr};
}

} // namespace

void Position::setCount(double pieces)
{
    count = pieces;
    base = pieces * article->pack;
}

void Position::setBase(double baseUnits)
{
    count = baseUnits / article->pack;
    base = baseUnits;
}

bool Tara::isEmpty() const
{
    return same(free, capacity);
}

bool Tara::isFull() const
{
    return same(free, 0);
}

PositionPtr Receipt::find(int posnum) const
{
    for (const PositionPtr &line : lines) {
        if (line->posnum == posnum && !line->isStornoed)
            return line;
    }
    return nullptr;
}

bool Receipt::isEmpty() const
{
    return std::all_of(lines.begin(), lines.end(), [](const auto &l) { return l->isStornoed; });
}

// Looking up

std::shared_ptr<Tara> Rules::taraAt(int posnum) const
{
    for (const auto &tara : taras) {
        if (tara->posnum == posnum)
            return tara;
    }
    return nullptr;
}

std::shared_ptr<Goods> Rules::goodsAt(int posnum) const
{
    for (const auto &info : goods) {
        if (info->posnum == posnum)
            return info;
    }
    return std::make_shared<Goods>();
}

PositionPtr Rules::positionAt(int posnum) const
{
    return m_receipt ? m_receipt->find(posnum) : nullptr;
}

bool Rules::isShared(const Tara &tara) const
{
    std::set<int> users;
    for (const auto &info : goods) {
        if (info->used.count(tara.id) != 0)
            users.insert(info->posnum);
    }
    return users.size() > 1;
}

// Capacities

void Rules::resize(Tara &tara, double capacity)
{
    const double change = capacity - tara.capacity;
    if (std::fabs(change) < tolerance)
        return;
    say("INFO Изменение ёмкости тары " + threeDecimals(tara.capacity) + " -> "
        + threeDecimals(capacity));
    tara.capacity = capacity;
    tara.free = tara.free + change;
}

void Rules::place(Goods &info, double quantity)
{
    double rest = quantity;
    for (const auto &[id, amount] : info.used)
        rest = rest - amount;

    for (const auto &tara : taras) {
        if (std::fabs(rest) < tolerance)
            return;
        const double free = tara->free;
        const bool hasRoom = free > tolerance;
        const bool isOverFull = free < -tolerance;
        const bool isUsed = info.used.count(tara->id) != 0;
        if (!(hasRoom && rest > tolerance) && !(isOverFull && 0 - rest > tolerance && isUsed))
            continue;
        const double amount = std::fabs(free) < std::fabs(rest) ? free : rest;
        say("INFO Изменение использованной позицией " + std::to_string(info.posnum)
            + " ёмкости тары " + std::to_string(tara->posnum) + " на " + threeDecimals(amount));
        tara->free = free - amount;
        info.used[tara->id] = (isUsed ? info.used[tara->id] : 0.0) + amount;
        rest = rest - amount;
    }
}

bool Rules::changeGoods(const Goods &info, double delta)
{
    const PositionPtr position = positionAt(info.posnum);
    if (!position)
        return false;
    if (std::fabs(delta) < tolerance)
        return true;
    const std::string number = std::to_string(position->posnum);
    const double quantity = position->base + delta;
    if (quantity <= tolerance) {
        say("INFO Удаление позиции " + number + ", размещенной в таре, в связи с изменением тары");
        position->group.clear();
        if (m_world.run(202, position->posnum))
            return true;
        say("ERROR Не удалось удалить позицию, размещенную в тару");
        return false;
    }
    say("INFO Изменение количества позиции " + number + ", размещенной в таре, на "
        + threeDecimals(delta) + ", в связи с изменением тары");
    m_world.modifiers.hasQuantity = true;
    m_world.modifiers.quantity = quantity;
    m_world.modifiers.mode = 7;
    if (m_world.run(5, position->posnum))
        return true;
    say("ERROR Не удалось изменить количество позиции, размещенной в тару");
    return false;
}

void Rules::recordGoods(const Position &position)
{
    const auto info = goodsAt(position.posnum);
    info->posnum = position.posnum;
    place(*info, position.base);
    if (std::find(goods.begin(), goods.end(), info) == goods.end())
        goods.push_back(info);
}

void Rules::forgetGoods(int posnum)
{
    const auto info = goodsAt(posnum);
    for (const auto &tara : taras) {
        const auto used = info->used.find(tara->id);
        if (used != info->used.end())
            tara->free = tara->free + used->second;
    }
    goods.erase(std::remove(goods.begin(), goods.end(), info), goods.end());
}

// Texts

std::string toText(const Tara &tara)
{
    return " [" + std::to_string(tara.posnum) + ' ' + tara.id + ' ' + toText(tara.capacity)
           + " free " + toText(tara.free) + ']';
}

std::string toText(const Goods &goods)
{
    std::string text = " [" + std::to_string(goods.posnum);
    for (const auto &[id, amount] : goods.used)
        text += ' ' + id + ": " + toText(amount);
    return text + ']';
}

} // namespace model
