#ifndef TESTS_EVENTS_PLACEMENTFIXTURE_H
#define TESTS_EVENTS_PLACEMENTFIXTURE_H

#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtCore/QLocale>

//! Tara are numbered from 2 and named {a}, {b} …; the goods are position 9.
class Placement : public testing::Test
{
protected:
    using Used = QMap<QString, double>;

    Placement()
    {
        plugin.setDocument(host.receipt());
        host.journal.clear();
    }

    ~Placement() override { QLocale::setDefault(QLocale::c()); }

    //! Tara of these free capacities, each of capacity 10.
    void taraWithFree(const QList<double> &freeCapacities)
    {
        for (const double free : freeCapacities) {
            const auto index = static_cast<int>(plugin.taraList.size());
            plugin.putTara(2 + index, QString("{%1}").arg(QChar('a' + index)), 10.0, free);
        }
    }

    QList<double> freeCapacities() const
    {
        QList<double> result;
        for (const auto &tara : plugin.taraList)
            result << tara->freeCapacity;
        return result;
    }

    Used place(const Used &usedBefore, double newUsedCapacity)
    {
        const auto info = plugin.putGoods(9, usedBefore);
        plugin.modifyPackagingUsedCapacity(info, newUsedCapacity);
        return info->usedTara;
    }

    FakeHost host;
    LogCapture log;
    TestPlugin plugin;
};

#endif // TESTS_EVENTS_PLACEMENTFIXTURE_H
