#ifndef TESTS_MEMORY_SCENE_H
#define TESTS_MEMORY_SCENE_H

#include "host/ActionArguments.h"
#include "host/Quantity.h"
#include "tests/support/FakeHost.h"
#include "tests/support/TestPlugin.h"

#include <functional>

//! A receipt in hand and the plugin at work on it, anew for every attempt.
class Shop
{
public:
    Shop()
    {
        host.config().set("PackagingControl:allowSaleEmptyTara", false);
        plugin.init();
        plugin.setDocument(host.receipt());
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
    TestPlugin plugin;
};

/*!
 * One call of the host's into the plugin. `prepare` makes the receipt ready, with memory enough,
 * and returns the call itself.
 */
struct Scene
{
    const char *name;
    std::function<std::function<void()>(Shop &)> prepare;
};

inline void PrintTo(const Scene &scene, std::ostream *out)
{
    *out << scene.name;
}

#endif // TESTS_MEMORY_SCENE_H
