#include "tests/registry/RegistryFixture.h"

#include <cmath>
#include <functional>
#include <limits>

namespace {

// A save that follows another one: what is stored is the records as they are by then.
class SaveAgain : public Registry
{
protected:
    SaveAgain()
    {
        for (int number = 0; number < 3; ++number) {
            const QString id = QStringLiteral("{%1}").arg(number);
            plugin.putTara(number, id, 10.0, 0.0);
            plugin.putGoods(number + 10, {{id, 4.0}, {"{x}", 6.0}});
        }
        plugin.savePluginData();
    }

    QVariantMap element(const QString &key, int index) const
    {
        return stored(key).toList()[index].toMap();
    }

    //! What is stored by a plugin that saves for the first time what this one has; none of what it
    //! stores is kept from before, as its records are others in between.
    QVariantMap storedAnew()
    {
        TestPlugin other;
        other.setDocument(host.receipt());
        other.taraList = {QSharedPointer<PackagingControl::TaraInfo>::create()};
        other.packagingList = {QSharedPointer<PackagingControl::PackagingInfo>::create()};
        other.savePluginData();
        other.taraList = plugin.taraList;
        other.packagingList = plugin.packagingList;
        other.savePluginData();
        return host.receipt()->pluginData().value("PackagingControl");
    }
};

TEST_F(SaveAgain, ChangeOfATara_IsStoredWhicheverFieldItIs)
{
    const std::function<void(PackagingControl::TaraInfo &)> changes[] = {
        [](auto &tara) { tara.posnum = 7; },
        [](auto &tara) { tara.id = "{7}"; },
        [](auto &tara) { tara.capacity = std::nextafter(tara.capacity, 0.0); },
        [](auto &tara) { tara.freeCapacity = std::numeric_limits<double>::denorm_min(); },
    };
    const QString keys[] = {"posnum", "id", "capacity", "freeCapacity"};
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        const QVariantMap before = element("taraInfo", 1);
        changes[i](*plugin.taraList[1]);

        plugin.savePluginData();

        const QVariantMap after = element("taraInfo", 1);
        for (const QString &key : keys)
            EXPECT_EQ(after.value(key) != before.value(key), key == keys[i]) << key.toStdString();
    }
}

TEST_F(SaveAgain, ChangeOfGoods_IsStoredWhicheverItIs)
{
    PackagingControl::PackagingInfo &goods = *plugin.packagingList[2];
    goods.posnum = 7;
    plugin.savePluginData();
    EXPECT_EQ(element("packagingInfo", 2).value("posnum"), 7);

    for (const QMap<QString, double> &used : {QMap<QString, double>{{"{2}", 4.5}, {"{x}", 6.0}},
                                              {{"{1}", 4.5}, {"{x}", 6.0}},
                                              {},
                                              {{"{1}", 1}}}) {
        goods.usedTara = used;
        plugin.savePluginData();

        QVariantMap expected;
        for (auto entry = used.begin(); entry != used.end(); ++entry)
            expected.insert(entry.key(), entry.value());
        EXPECT_EQ(element("packagingInfo", 2).value("usedTara").toMap(), expected);
    }
}

TEST_F(SaveAgain, SignOfZero_IsStored)
{
    plugin.taraList[0]->freeCapacity = -0.0;
    plugin.packagingList[0]->usedTara["{x}"] = 0.0;
    plugin.savePluginData();
    plugin.packagingList[0]->usedTara["{x}"] = -0.0;

    plugin.savePluginData();

    const QVariantMap used = element("packagingInfo", 0).value("usedTara").toMap();
    EXPECT_TRUE(std::signbit(element("taraInfo", 0).value("freeCapacity").toDouble()));
    EXPECT_TRUE(std::signbit(used.value("{x}").toDouble()));
}

TEST_F(SaveAgain, RecordThatLeftTheMiddle_LeavesTheOthersInOrder)
{
    plugin.taraList.removeAt(1);
    plugin.packagingList.removeAt(0);

    plugin.savePluginData();

    EXPECT_EQ(stored("taraInfo").toList().size(), 2);
    EXPECT_EQ(element("taraInfo", 1).value("posnum"), 2);
    EXPECT_EQ(stored("packagingInfo").toList().size(), 2);
    EXPECT_EQ(element("packagingInfo", 0).value("posnum"), 11);
}

TEST_F(SaveAgain, AnotherPluginThatSavedInBetween_LeavesNoTrace)
{
    const auto before = host.receipt()->pluginData().value("PackagingControl");

    EXPECT_EQ(storedAnew(), before);
    plugin.savePluginData();
    EXPECT_EQ(host.receipt()->pluginData().value("PackagingControl"), before);
}

TEST_F(SaveAgain, WhatTheHostMakesOfItsCopy_IsReplaced)
{
    const QVariant before = stored("taraInfo");
    QVariantList altered = before.toList();
    altered[0] = 5;
    host.receipt()->setPluginData("PackagingControl", "taraInfo", altered);

    plugin.savePluginData();

    EXPECT_EQ(stored("taraInfo"), before);
}

TEST_F(SaveAgain, RecordThatDidNotChange_IsNotMadeAnew)
{
    const QVariantMap kept = element("taraInfo", 0);
    const QVariantMap changed = element("taraInfo", 1);
    const QVariantMap goods = element("packagingInfo", 1);
    plugin.taraList[1]->freeCapacity = 5.0;

    plugin.savePluginData();

    EXPECT_TRUE(element("taraInfo", 0).isSharedWith(kept));
    EXPECT_FALSE(element("taraInfo", 1).isSharedWith(changed));
    EXPECT_TRUE(element("packagingInfo", 1).isSharedWith(goods));
}

} // namespace
