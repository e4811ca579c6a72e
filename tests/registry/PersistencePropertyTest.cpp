#include "tests/registry/Property.h"
#include "tests/support/FakeHost.h"
#include "tests/support/TestPlugin.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

// A save followed by a restore is the identity, to the last bit of every number.

namespace {

//! Any double by its bits, infinities and denormals too, but for NaN, which equals nothing.
rc::Gen<double> anyDouble()
{
    const auto bits = rc::gen::map(rc::gen::arbitrary<std::uint64_t>(), [](std::uint64_t word) {
        double number = 0;
        std::memcpy(&number, &word, sizeof number);
        return std::isnan(number) ? 0.5 : number;
    });
    return rc::gen::oneOf(rc::gen::arbitrary<double>(), bits);
}

//! Any text of 16-bit characters, unpaired surrogates and zeros too.
rc::Gen<std::u16string> anyText()
{
    const auto character =
        rc::gen::map(rc::gen::arbitrary<std::uint16_t>(),
                     [](std::uint16_t code) { return static_cast<char16_t>(code); });
    return rc::gen::scale(0.2, rc::gen::container<std::u16string>(character));
}

void fill(TestPlugin &plugin)
{
    const int taras = *rc::gen::inRange(0, 6);
    for (int i = 0; i < taras; ++i)
        plugin.putTara(*rc::gen::arbitrary<int>(), QString::fromStdU16String(*anyText()),
                       *anyDouble(), *anyDouble());
    const int goods = *rc::gen::inRange(0, 6);
    for (int i = 0; i < goods; ++i) {
        QMap<QString, double> usedTara;
        const auto uses = *rc::gen::scale(
            0.2, rc::gen::container<std::map<std::u16string, double>>(anyText(), anyDouble()));
        for (const auto &[id, used] : uses)
            usedTara.insert(QString::fromStdU16String(id), used);
        plugin.putGoods(*rc::gen::arbitrary<int>(), usedTara);
    }
}

bool sameBits(double left, double right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

bool sameBits(const PackagingControl::TaraInfo &left, const PackagingControl::TaraInfo &right)
{
    return left == right && sameBits(left.capacity, right.capacity)
           && sameBits(left.freeCapacity, right.freeCapacity);
}

bool sameBits(const PackagingControl::PackagingInfo &left,
              const PackagingControl::PackagingInfo &right)
{
    return left == right
           && std::equal(left.usedTara.cbegin(), left.usedTara.cend(), right.usedTara.cbegin(),
                         [](double l, double r) { return sameBits(l, r); });
}

template <typename Record>
bool sameRecords(const QList<QSharedPointer<Record>> &left,
                 const QList<QSharedPointer<Record>> &right)
{
    return std::equal(left.cbegin(), left.cend(), right.cbegin(), right.cend(),
                      [](const auto &l, const auto &r) { return sameBits(*l, *r) && l != r; });
}

TEST(PersistenceProperty, SaveThenRestore_IsTheIdentity)
{
    FakeHost host;
    checkProperty([&host] {
        host.newReceipt();
        TestPlugin plugin;
        plugin.setDocument(host.receipt());
        fill(plugin);
        const auto taras = plugin.taraList;
        const auto goods = plugin.packagingList;

        plugin.savePluginData();
        plugin.restorePluginData();

        RC_ASSERT(sameRecords(plugin.taraList, taras));
        RC_ASSERT(sameRecords(plugin.packagingList, goods));
    });
}

TEST(PersistenceProperty, RestoreThenSave_StoresTheSameAgain)
{
    FakeHost host;
    checkProperty([&host] {
        host.newReceipt();
        TestPlugin writer;
        writer.setDocument(host.receipt());
        fill(writer);
        writer.savePluginData();
        const auto stored = host.receipt()->pluginData();

        TestPlugin reader;
        reader.setDocument(host.receipt());
        reader.savePluginData();

        RC_ASSERT(host.receipt()->pluginData() == stored);
    });
}

} // namespace
