#ifndef TESTS_MEMORY_SCENE_H
#define TESTS_MEMORY_SCENE_H

#include "host/ActionArguments.h"
#include "host/Quantity.h"
#include "tests/memory/Shortage.h"
#include "tests/memory/WatchedReceipt.h"
#include "tests/support/FakeHost.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestPlugin.h"

#include <functional>

//! The plugin whose tara is named alike in every attempt, so that attempts can be compared.
class NamingPlugin : public TestPlugin
{
public:
    QString getId() const override
    {
        const QString id = TestPlugin::getId(); // for the memory that it takes
        return QString("{%1}").arg(++m_named, id.size() - 2);
    }

private:
    mutable int m_named = 0;
};

//! A receipt in hand and the plugin at work on it, anew for every attempt.
class Shop
{
public:
    Shop()
    {
        host.config().set("PackagingControl:allowSaleEmptyTara", false);
        plugin.init();
        plugin.setDocument(receipt);
    }

    //! Puts another receipt in the place of the one in hand; the plugin is not told.
    void newReceipt()
    {
        host.newReceipt();
        receipt.reset(new WatchedReceipt(host.receipt()));
    }

    //! Tara 1 and 2 of 5 each, goods 3 and 4 of 4 and 2: tara 1 is full and shared, 2 is not full.
    void fill()
    {
        host.addTara(1, 5.0);
        host.addTara(2, 5.0);
        host.addGoods(3, 4.0);
        host.addGoods(4, 2.0);
    }

    QSharedPointer<GoodsItem> position(int posnum) const
    {
        return host.receipt()->getPositionByPosnum(posnum);
    }

    static Event event(EActivityListener::Event code, const QSharedPointer<GoodsItem> &position)
    {
        return Event(code).addArgument("position", QVariant::fromValue(position));
    }

    FakeHost host;
    LogCapture log; //!< receives the log, so that its lines are put together
    QSharedPointer<WatchedReceipt> receipt{new WatchedReceipt(host.receipt())};
    NamingPlugin plugin;
};

/*!
 * One call of the host's into the plugin. `prepare` makes the receipt ready, with memory enough,
 * and returns the call itself. `expectAfter`, if there is one, looks at what this call in
 * particular left behind.
 */
struct Scene
{
    const char *name;
    std::function<std::function<void()>(Shop &)> prepare;
    std::function<void(const Shop &, const shortage::Result &)> expectAfter = {};
    //! Saves what it got done when memory runs out on its way, which an undisturbed call never
    //! does.
    bool savesOnEveryExit = false;
};

inline void PrintTo(const Scene &scene, std::ostream *out)
{
    *out << scene.name;
}

#endif // TESTS_MEMORY_SCENE_H
