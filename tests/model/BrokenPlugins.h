#ifndef TESTS_MODEL_BROKENPLUGINS_H
#define TESTS_MODEL_BROKENPLUGINS_H

#include "tests/support/TestPlugin.h"

// Plugins that are wrong on purpose: no comparison may let them pass. The base is a plugin that is
// right.

namespace model {

//! Forgets to save as soon as there are two goods.
template <typename Base>
class Forgetful : public Base
{
public:
    using Base::Base;
    void savePluginData() const override
    {
        if (this->packagingList.size() < 2)
            Base::savePluginData();
    }
};

//! Takes an over-full tara for a full one.
template <typename Base>
class Careless : public Base
{
public:
    using Base::Base;
    void modifyTaraCapacity(const QSharedPointer<PackagingControl::TaraInfo> &tara,
                            double newCapacity) override
    {
        Base::modifyTaraCapacity(tara, newCapacity);
        if (tara->freeCapacity < 0)
            tara->freeCapacity = 0;
    }
};

//! Hides that the goods could not be changed.
template <typename Base>
class Mute : public Base
{
public:
    using Base::Base;
    bool
    modifyPackagingPositionQuantity(const QSharedPointer<PackagingControl::PackagingInfo> &info,
                                    double quantityDelta) override
    {
        Base::modifyPackagingPositionQuantity(info, quantityDelta);
        return true;
    }
};

//! Asks about empty tara and then goes on, also when a storno failed.
template <typename Base>
class Stubborn : public Base
{
public:
    using Base::Base;
    bool stornoAllEmptyTara(const control::Action &action) override
    {
        Base::stornoAllEmptyTara(action);
        return true;
    }
};

} // namespace model

#endif // TESTS_MODEL_BROKENPLUGINS_H
