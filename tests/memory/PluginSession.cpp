#include "host/BaseActivityListener.h"
#include "host/DocumentWatcher.h"
#include "tests/support/Actions.h"
#include "tests/support/FakeHost.h"
#include "till/plugins/PluginLoader.h"

#include <cstdio>
#include <variant>

// Drives the plugin's file through its whole life, twice: load, sell a receipt in which every
// handler and every trigger has something to do, unload, and only then release the receipt.

namespace {

int failures = 0;

void check(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "It does not hold that %s\n", what);
    ++failures;
}

qsizetype records(const FakeHost &host, const char *list)
{
    return host.receipt()->getPluginData("PackagingControl", list, {}).toList().size();
}

void sellTaraWithGoods(FakeHost &host)
{
    host.addTara(1, 5);
    host.addTara(2, 3);
    host.addGoods(3, 7);
    host.addOther(4, 1);
    host.changeQuantity(3, 6);
    host.changeQuantity(2, 2);
    check(records(host, "taraInfo") == 2, "both taras are recorded");
    check(records(host, "packagingInfo") == 1, "the goods are recorded");
}

void splitAndUnite(FakeHost &host, const BasicPlugin &plugin)
{
    const auto source = host.receipt()->getPositionByPosnum(3);
    const auto piece = host.putPosition(5, Tmc::PackagingGoods, {}, 1, 1);
    source->setBquant(5);
    const auto split = actions::split({actions::splitOf(source, {piece}, false)});
    FakeHost::trigger(plugin, ActionTrigger::After, split);
    check(records(host, "packagingInfo") == 2, "both pieces of the split goods are recorded");

    source->setBquant(6);
    FakeHost::trigger(plugin, ActionTrigger::After, actions::unite({piece}, {source}));
    check(records(host, "packagingInfo") == 1, "the united goods are one record");
}

void refuseAndPay(FakeHost &host, const BasicPlugin &plugin)
{
    host.modifiers().set(modifiers::Quantity, 2);
    FakeHost::trigger(plugin, ActionTrigger::Before, actions::on(2, control::ApplyModifiers));
    check(host.errors.size() == 1, "a change of tara in use is refused");

    host.addTara(6, 10);
    host.dialogAnswer = true;
    FakeHost::trigger(plugin, ActionTrigger::Before, control::Action(control::Subtotal, {}));
    check(!host.receipt()->getPositionByPosnum(6), "empty tara is stornoed before the payment");

    host.storno(1);
    check(records(host, "taraInfo") == 1, "the tara that was taken out is forgotten");
}

void reopenAndLeave(FakeHost &host, const till::LoadedPlugin &loaded)
{
    loaded.watcher->setDocument(host.receipt());
    FakeHost::trigger(*loaded.plugin, ActionTrigger::After,
                      control::Action(control::AddSoftCheck, {}));
    loaded.watcher->setDocument(nullptr);
    loaded.watcher->setDocument(host.receipt());
}

void sell(FakeHost &host, const till::LoadedPlugin &loaded)
{
    host.config().set("PackagingControl:allowSaleEmptyTara", false);
    check(loaded.plugin->init(), "the plugin starts");
    loaded.watcher->setDocument(host.receipt());
    sellTaraWithGoods(host);
    splitAndUnite(host, *loaded.plugin);
    refuseAndPay(host, *loaded.plugin);
    reopenAndLeave(host, loaded);
}

void liveOnce()
{
    FakeHost host;
    till::PluginLoader loader;
    if (const auto loaded = loader.load(QStringLiteral(PACKAGINGCONTROL_PLUGIN_FILE))) {
        sell(host, *loaded);
        check(loader.unload(), "the plugin is unloaded");
    } else {
        check(false, "the plugin is loaded");
    }
}

} // namespace

int main()
{
    liveOnce();
    liveOnce();
    return failures == 0 ? 0 : 1;
}
