#include "tests/registry/PlacementModel.h"
#include "tests/registry/Property.h"
#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestPlugin.h"

#include <cmath>
#include <set>

// The plugin against the model. Amounts are multiples of 1/4096: doubles hold them and their sums
// exactly, and 2/4096 lies below the tolerance where 3/4096 lies above it.

namespace {

using model::Move;
using model::Shares;
using model::Store;
using model::Tara;
using model::Units;

constexpr double unitsInOne = 4096;
constexpr Units noticeable = 3;

double toAmount(Units units)
{
    return static_cast<double>(units) / unitsInOne;
}

//! Mostly some whole pieces, give or take a few units; sometimes next to nothing; below 0 too.
rc::Gen<Units> anyUnits()
{
    const auto few = rc::gen::inRange<Units>(-4, 5);
    const auto pieces = rc::gen::map(rc::gen::inRange<Units>(-6, 12),
                                     [](Units n) { return n * static_cast<Units>(unitsInOne); });
    return rc::gen::oneOf(
        few, pieces, rc::gen::inRange<Units>(-40000, 80000),
        rc::gen::map(rc::gen::pair(pieces, few), [](const auto &p) { return p.first + p.second; }));
}

//! As a tara's name; few, so that tara and shares meet.
rc::Gen<std::string> anyName()
{
    return rc::gen::element<std::string>("{a}", "{b}", "{c}", "{d}", "{B}", "");
}

rc::Gen<Tara> anyTara()
{
    return rc::gen::build<Tara>(
        rc::gen::set(&Tara::number, rc::gen::inRange(1, 9)), rc::gen::set(&Tara::name, anyName()),
        rc::gen::set(&Tara::capacity, anyUnits()), rc::gen::set(&Tara::room, anyUnits()));
}

rc::Gen<std::vector<Tara>> anyShelf()
{
    return rc::gen::scale(0.2, rc::gen::container<std::vector<Tara>>(anyTara()));
}

rc::Gen<Shares> anyShares()
{
    const auto entries = rc::gen::container<std::vector<std::pair<std::string, Units>>>(
        rc::gen::pair(anyName(), anyUnits()));
    return rc::gen::map(rc::gen::scale(0.2, entries),
                        [](const auto &list) { return Shares(list.cbegin(), list.cend()); });
}

QMap<QString, double> toUsedTara(const Shares &shares)
{
    QMap<QString, double> usedTara;
    for (const auto &[name, units] : shares)
        usedTara.insert(QString::fromStdString(name), toAmount(units));
    return usedTara;
}

PackagingControl::TaraInfo toRecord(const Tara &tara)
{
    return {tara.number, QString::fromStdString(tara.name), toAmount(tara.capacity),
            toAmount(tara.room)};
}

//! Plugin and model side by side.
class SideBySide
{
public:
    explicit SideBySide(const std::vector<Tara> &shelf = {})
    {
        store.shelf = shelf;
        for (const Tara &tara : shelf)
            plugin.taraList.append(
                QSharedPointer<PackagingControl::TaraInfo>::create(toRecord(tara)));
    }

    bool agreeOnTara() const
    {
        return std::equal(plugin.taraList.cbegin(), plugin.taraList.cend(), store.shelf.cbegin(),
                          store.shelf.cend(), [](const auto &record, const Tara &tara) {
                              return *record == toRecord(tara);
                          });
    }

    TestPlugin plugin;
    Store store{noticeable};
};

//! As the plugin logs them, but for the amount.
bool isLogOf(const QStringList &lines, int goods, const std::vector<Move> &moves)
{
    return std::equal(
        lines.cbegin(), lines.cend(), moves.cbegin(), moves.cend(),
        [goods](const QString &line, const Move &move) {
            return line.startsWith(
                QString("INFO Изменение использованной позицией %1 ёмкости тары %2 на %3")
                    .arg(goods)
                    .arg(move.tara)
                    .arg(move.amount < 0 ? "-" : ""));
        });
}

TEST(PlacementProperty, AnyRegistry_IsPlacedAsTheModelSays)
{
    LogCapture log;
    checkProperty([&log] {
        log.clear();
        SideBySide both(*anyShelf());
        auto shares = *anyShares();
        const auto wanted = *anyUnits();
        const auto info = both.plugin.putGoods(9, toUsedTara(shares));

        both.plugin.modifyPackagingUsedCapacity(info, toAmount(wanted));
        const auto moves = both.store.place(shares, wanted);

        RC_ASSERT(both.agreeOnTara());
        RC_ASSERT(*info == (PackagingControl::PackagingInfo{9, toUsedTara(shares)}));
        RC_ASSERT(isLogOf(log.lines(), 9, moves));
    });
}

TEST(PlacementProperty, ReleaseFromOverFullTara_IsPlacedAsTheModelSays)
{
    checkProperty([] {
        auto shelf = *rc::gen::nonEmpty(anyShelf());
        Shares shares;
        for (Tara &tara : shelf) {
            tara.room = *rc::gen::inRange<Units>(-20000, 3);
            shares[tara.name] = *rc::gen::inRange<Units>(0, 20000);
        }
        Units placed = 0;
        for (const auto &share : shares)
            placed += share.second;
        SideBySide both(shelf);
        const auto wanted = *rc::gen::inRange<Units>(0, placed + 1);
        const auto info = both.plugin.putGoods(9, toUsedTara(shares));

        both.plugin.modifyPackagingUsedCapacity(info, toAmount(wanted));
        both.store.place(shares, wanted);

        RC_ASSERT(both.agreeOnTara());
        RC_ASSERT(info->usedTara == toUsedTara(shares));
    });
}

TEST(PlacementProperty, FreeCapacity_MovesByExactlyWhatTheEntryMoves)
{
    checkProperty([] {
        auto shelf = *anyShelf();
        std::set<std::string> names; // unique here, for tara of one name share an entry
        std::erase_if(shelf, [&names](const Tara &t) { return !names.insert(t.name).second; });
        SideBySide both(shelf);
        const auto before = toUsedTara(*anyShares());
        const auto info = both.plugin.putGoods(9, before);
        const auto other = both.plugin.putGoods(8, toUsedTara(*anyShares()));
        const auto otherBefore = *other;
        const auto records = both.plugin.taraList;

        both.plugin.modifyPackagingUsedCapacity(info, toAmount(*anyUnits()));

        RC_ASSERT(both.plugin.taraList == records);
        RC_ASSERT(*other == otherBefore);
        auto expectedUse = before;
        for (std::size_t i = 0; i < shelf.size(); ++i) {
            const auto was = toRecord(shelf[i]);
            const auto &now = *records[static_cast<int>(i)];
            const double moved = info->usedTara.value(was.id) - before.value(was.id);
            RC_ASSERT(now.freeCapacity == was.freeCapacity - moved);
            // Only the free capacity moves, and only of a tara that had room or was over-full.
            RC_ASSERT((now
                       == PackagingControl::TaraInfo{was.posnum, was.id, was.capacity,
                                                     was.freeCapacity - moved}));
            RC_ASSERT(moved == 0 || std::abs(was.freeCapacity) > 0.0005);
            RC_ASSERT(std::abs(now.freeCapacity) <= std::abs(was.freeCapacity));
            RC_ASSERT(moved >= 0 || before.contains(was.id));
            if (moved != 0)
                expectedUse[was.id] += moved;
        }
        RC_ASSERT(info->usedTara == expectedUse); // entries of no tara on the shelf stay
    });
}

TEST(PlacementProperty, AnyResize_IsAsTheModelSays)
{
    checkProperty([] {
        const auto shelf = *rc::gen::nonEmpty(anyShelf());
        SideBySide both(shelf);
        const auto index = *rc::gen::inRange<std::size_t>(0, shelf.size());
        const auto change = *anyUnits();
        const auto capacity = shelf[index].capacity + change;
        const auto record = both.plugin.taraList[static_cast<int>(index)];
        const double used = record->getUsedCapacity();

        both.plugin.modifyTaraCapacity(record, toAmount(capacity));
        both.store.resize(both.store.shelf[index], capacity);

        RC_ASSERT(both.agreeOnTara());
        RC_ASSERT(record->getUsedCapacity() == used);
    });
}

TEST(PlacementProperty, AnyHistory_EndsAsTheModelSays)
{
    FakeHost host;
    checkProperty([&host] {
        host.newReceipt();
        SideBySide both;
        std::map<int, Shares> goods;
        const auto amount = rc::gen::inRange<Units>(0, 40000);
        const int steps = *rc::gen::inRange(0, 25);
        for (int step = 0; step < steps; ++step) {
            const int posnum = *rc::gen::inRange(1, 5);
            const Units units = *amount;
            if (*rc::gen::arbitrary<bool>()) { // a tara, new or resized
                const auto position = QSharedPointer<GoodsItem>::create(
                    posnum, QSharedPointer<Tmc>::create(Tmc::Tara, toAmount(1)));
                position->setCquant(static_cast<double>(units));
                const auto record = both.plugin.createTara(position);
                auto &shelf = both.store.shelf;
                const auto known = std::find_if(shelf.begin(), shelf.end(), [posnum](auto &tara) {
                    return tara.number == posnum;
                });
                if (known == shelf.end())
                    shelf.push_back({posnum, record->id.toStdString(), units, units});
                else
                    both.store.resize(*known, units);
            } else { // goods, new or changed
                const auto position = QSharedPointer<GoodsItem>::create(
                    10 + posnum, QSharedPointer<Tmc>::create(Tmc::PackagingGoods));
                position->setBquant(toAmount(units));
                const auto record = both.plugin.createPackagingInfo(position);
                both.store.place(goods[posnum], units);
                RC_ASSERT(record->usedTara == toUsedTara(goods[posnum]));
            }
            RC_ASSERT(both.agreeOnTara());
        }
        RC_ASSERT(static_cast<std::size_t>(both.plugin.packagingList.size()) == goods.size());
    });
}

TEST(PlacementProperty, ThreeDecimals_AreKeptAsIfExact)
{
    // Decimals are no doubles. Within the tolerance, each step still decides as whole thousandths
    // would.
    checkProperty([] {
        const auto thousandths = rc::gen::inRange<Units>(0, 20000);
        TestPlugin plugin;
        Store store(1);
        const int count = *rc::gen::inRange(1, 6);
        for (int i = 0; i < count; ++i) {
            const Units capacity = *thousandths;
            const std::string name(1, static_cast<char>('a' + i));
            store.shelf.push_back({i, name, capacity, capacity});
            const auto amount = static_cast<double>(capacity) / 1000;
            plugin.putTara(i, QString::fromStdString(name), amount, amount);
        }
        const auto info = plugin.putGoods(9);
        Shares shares;
        for (int step = 0; step < 20; ++step) {
            const Units wanted = *thousandths;
            if (*rc::gen::arbitrary<bool>()) {
                const int index = *rc::gen::inRange(0, count);
                store.resize(store.shelf[static_cast<std::size_t>(index)], wanted);
                plugin.modifyTaraCapacity(plugin.taraList[index],
                                          static_cast<double>(wanted) / 1000);
            } else {
                store.place(shares, wanted);
                plugin.modifyPackagingUsedCapacity(info, static_cast<double>(wanted) / 1000);
            }
            for (int i = 0; i < count; ++i) {
                const auto room = store.shelf[static_cast<std::size_t>(i)].room;
                const double exact = static_cast<double>(room) / 1000;
                RC_ASSERT(std::abs(plugin.taraList[i]->freeCapacity - exact) < 1e-9);
            }
            RC_ASSERT(static_cast<std::size_t>(info->usedTara.size()) == shares.size());
        }
    });
}

} // namespace
