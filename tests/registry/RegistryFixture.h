#ifndef TESTS_REGISTRY_REGISTRYFIXTURE_H
#define TESTS_REGISTRY_REGISTRYFIXTURE_H

#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"
#include "tests/support/TestPlugin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

//! A plugin that holds an empty sale receipt. Positions are put into it without events, so that
//! nothing happens but what a test asks for.
class Registry : public testing::Test
{
protected:
    Registry()
    {
        plugin.setDocument(host.receipt());
        host.journal.clear();
    }

    //! A tara position of \a count pieces; its base quantity is something else.
    QSharedPointer<GoodsItem> tara(int posnum, const QVariant &capacity, double count = 1)
    {
        return host.putPosition(posnum, Tmc::Tara, capacity, count, 1000);
    }

    //! A goods position of \a quantity base units; its count of pieces is something else.
    QSharedPointer<GoodsItem> goods(int posnum, double quantity)
    {
        return host.putPosition(posnum, Tmc::PackagingGoods, QVariant(), 1000, quantity);
    }

    QVariant stored(const QString &key) const
    {
        return host.receipt()->getPluginData("PackagingControl", key, QVariant());
    }

    //! Stores \a value under \a key and lets the plugin rebuild its records.
    void restoreFrom(const QString &key, const QVariant &value)
    {
        host.receipt()->setPluginData("PackagingControl", key, value);
        plugin.restorePluginData();
    }

    FakeHost host;
    LogCapture log;
    TestPlugin plugin;
};

#endif // TESTS_REGISTRY_REGISTRYFIXTURE_H
