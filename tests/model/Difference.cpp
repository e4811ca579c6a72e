#include "tests/model/Difference.h"

#include <algorithm>
#include <cstring>
#include <sstream>

namespace model {

namespace {

//! The very same number, to the last bit.
bool isSame(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

bool isSame(const PackagingControl::TaraInfo &real, const Tara &expected)
{
    return real.posnum == expected.posnum && real.id == QLatin1String(expected.id.c_str())
           && isSame(real.capacity, expected.capacity) && isSame(real.freeCapacity, expected.free);
}

bool isSame(const PackagingControl::PackagingInfo &real, const Goods &expected)
{
    if (real.posnum != expected.posnum
        || static_cast<std::size_t>(real.usedTara.size()) != expected.used.size())
        return false;
    auto used = real.usedTara.cbegin();
    for (const auto &[id, amount] : expected.used) {
        if (used.key() != QLatin1String(id.c_str()) || !isSame(used.value(), amount))
            return false;
        ++used;
    }
    return true;
}

template <typename RealList, typename ModelList>
bool areSame(const RealList &real, const ModelList &expected)
{
    return std::equal(real.cbegin(), real.cend(), expected.cbegin(), expected.cend(),
                      [](const auto &a, const auto &b) { return isSame(*a, *b); });
}

bool areSame(const RealReceipt &real, const Receipt &expected)
{
    if (static_cast<std::size_t>(real.lines().size()) != expected.lines.size())
        return false;
    for (const auto &position : real.lines()) {
        const Position &line = *expected.lines[static_cast<std::size_t>(position->getPosnum()) - 1];
        if (!isSame(position->getCquant(), line.count) || !isSame(position->getBquant(), line.base)
            || position->getGroupId() != QLatin1String(line.group.c_str())
            || real.getPositionByPosnum(line.posnum).isNull() != line.isStornoed)
            return false;
    }
    return true;
}

std::string describe(const RealHost &real)
{
    std::string text;
    for (const auto &tara : real.plugin().taraList)
        text += "\n  tara "
                + toText(
                    Tara{tara->posnum, tara->id.toStdString(), tara->capacity, tara->freeCapacity});
    for (const auto &info : real.plugin().packagingList) {
        Goods goods{info->posnum, {}};
        for (auto used = info->usedTara.cbegin(); used != info->usedTara.cend(); ++used)
            goods.used[used.key().toStdString()] = used.value();
        text += "\n  goods" + toText(goods);
    }
    for (const auto &position : real.receipt().lines())
        text += "\n  position " + std::to_string(position->getPosnum()) + " count "
                + toText(position->getCquant()) + " base " + toText(position->getBquant())
                + " group " + position->getGroupId().toStdString();
    return text;
}

std::string describe(const ModelHost &expected)
{
    std::string text;
    for (const auto &tara : expected.rules().taras)
        text += "\n  tara " + toText(*tara);
    for (const auto &info : expected.rules().goods)
        text += "\n  goods" + toText(*info);
    for (const auto &line : expected.receipt().lines)
        text += "\n  position " + std::to_string(line->posnum) + " count " + toText(line->count)
                + " base " + toText(line->base) + " group " + line->group;
    return text;
}

} // namespace

std::string difference(RealHost &real, ModelHost &expected)
{
    const bool areSameRecords = areSame(real.plugin().taraList, expected.rules().taras)
                                && areSame(real.plugin().packagingList, expected.rules().goods);
    if (real.journal == expected.journal() && areSameRecords
        && areSame(real.receipt(), expected.receipt()))
        return {};
    return "the plugin:\n" + real.journal + describe(real) + "\nthe model:\n" + expected.journal()
           + describe(expected) + '\n';
}

std::string firstDifference(const Script &script, const RealHost::MakePlugin &makePlugin,
                            long &commands)
{
    RealHost real(script.salt, script.allowSaleEmptyTara, makePlugin);
    ModelHost expected(script.salt, script.allowSaleEmptyTara);
    std::string found = difference(real, expected);
    for (std::size_t i = 0; i < script.commands.size() && found.empty(); ++i) {
        real.journal.clear();
        expected.journal().clear();
        real.run(script.commands[i]);
        expected.run(script.commands[i]);
        commands += expected.journal().empty() ? 0 : 1;
        found = difference(real, expected);
    }
    return found;
}

} // namespace model
