#ifndef TESTS_MODEL_BROKENPLUGINS_H
#define TESTS_MODEL_BROKENPLUGINS_H

#include "tests/model/RealHost.h"

// Plugins that are wrong on purpose: no comparison may let them pass.

namespace model {

//! Forgets to save as soon as there are two goods.
class Forgetful : public RealPlugin
{
public:
    using RealPlugin::RealPlugin;
    void savePluginData() const override
    {
        if (packagingList.size() < 2)
            RealPlugin::savePluginData();
    }
};

//! Takes an over-full tara for a full one.
class Careless : public RealPlugin
{
public:
    using RealPlugin::RealPlugin;
    void modifyTaraCapacity(const QSharedPointer<TaraInfo> &tara, double newCapacity) override
    {
        RealPlugin::modifyTaraCapacity(tara, newCapacity);
        if (tara->freeCapacity < 0)
            tara->freeCapacity = 0;
    }
};

//! Hides that the goods could not be changed.
class Mute : public RealPlugin
{
public:
    using RealPlugin::RealPlugin;
    bool modifyPackagingPositionQuantity(const QSharedPointer<PackagingInfo> &info,
                                         double quantityDelta) override
    {
        RealPlugin::modifyPackagingPositionQuantity(info, quantityDelta);
        return true;
    }
};

//! Asks about empty tara and then goes on, also when a storno failed.
class Stubborn : public RealPlugin
{
public:
    using RealPlugin::RealPlugin;
    bool stornoAllEmptyTara(const control::Action &action) override
    {
        RealPlugin::stornoAllEmptyTara(action);
        return true;
    }
};

//! A host's way to \a Plugin.
template <typename Plugin>
std::unique_ptr<RealPlugin> make(RealHost &host)
{
    return std::make_unique<Plugin>(host);
}

} // namespace model

#endif // TESTS_MODEL_BROKENPLUGINS_H
