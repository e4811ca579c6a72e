#include "host/BaseActivityListener.h"
#include "tests/plugin/RecordingHost.h"

#include <gtest/gtest.h>

#include <QtCore/QPointer>

#include <cstddef>
#include <cstring>
#include <new>
#include <ostream>
#include <string>

// Slots as callers that were built earlier use them, read from the compiled code: a pointer to a
// virtual member holds one more than the offset of its slot in the table.

namespace {

constexpr int notVirtual = -1;

template <class Member>
int slotOf(Member member)
{
    struct Representation
    {
        std::ptrdiff_t pointer;
        std::ptrdiff_t adjustment;
    } representation;
    static_assert(sizeof member == sizeof representation);
    std::memcpy(&representation, &member, sizeof representation);
    EXPECT_EQ(representation.adjustment, 0);
    if (representation.pointer % 2 == 0)
        return notVirtual;
    return int((representation.pointer - 1) / std::ptrdiff_t(sizeof(void *)));
}

//! Brings what QObject protects into reach, and adds an operation behind the plugin's last.
class Extended : public TestPlugin
{
public:
    using QObject::childEvent;
    using QObject::connectNotify;
    using QObject::customEvent;
    using QObject::disconnectNotify;
    using QObject::timerEvent;
    using TestPlugin::removePackagingInfo;
    virtual void next() {}
};

class ExtendedListener : public BaseActivityListener
{
public:
    ExtendedListener()
        : BaseActivityListener(nullptr)
    {
    }
    void handleEvent(const Event &) override {}
    virtual void next() {}
};

class ExtendedPlugin : public BasicPlugin
{
public:
    virtual void next() {}
};

class ExtendedWatcher : public DocumentWatcher
{
public:
    virtual void next() {}
};

struct Row
{
    const char *operation;
    int slot;
    int read;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.operation << " in slot " << row.slot;
}

class Slot : public testing::TestWithParam<Row>
{
};

std::string nameOf(const testing::TestParamInfo<Row> &row)
{
    return row.param.operation;
}

TEST_P(Slot, InTheTable_IsTheContracts)
{
    EXPECT_EQ(GetParam().read, GetParam().slot);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(QObject, Slot, testing::Values(
    Row{"metaObject", 0, slotOf(&Extended::metaObject)},
    Row{"qt_metacast", 1, slotOf(&Extended::qt_metacast)},
    Row{"qt_metacall", 2, slotOf(&Extended::qt_metacall)},
    // 3 and 4 are the destructors
    Row{"event", 5, slotOf(&Extended::event)},
    Row{"eventFilter", 6, slotOf(&Extended::eventFilter)},
    Row{"timerEvent", 7, slotOf(&Extended::timerEvent)},
    Row{"childEvent", 8, slotOf(&Extended::childEvent)},
    Row{"customEvent", 9, slotOf(&Extended::customEvent)},
    Row{"connectNotify", 10, slotOf(&Extended::connectNotify)},
    Row{"disconnectNotify", 11, slotOf(&Extended::disconnectNotify)}), nameOf);

INSTANTIATE_TEST_SUITE_P(PackagingControl, Slot, testing::Values(
    Row{"handleEvent", 12, slotOf(&Extended::handleEvent)},
    Row{"init", 13, slotOf(&Extended::init)},
    Row{"setDocument", 14, slotOf(&Extended::setDocument)},
    Row{"isTaraSplitted", 15, slotOf(&Extended::isTaraSplitted)},
    Row{"isTaraPartialFilled", 16, slotOf(&Extended::isTaraPartialFilled)},
    Row{"getId", 17, slotOf(&Extended::getId)},
    Row{"createTara", 18, slotOf(&Extended::createTara)},
    Row{"createPackagingInfo", 19, slotOf(&Extended::createPackagingInfo)},
    Row{"savePluginData", 20, slotOf(&Extended::savePluginData)},
    Row{"restorePluginData", 21, slotOf(&Extended::restorePluginData)},
    Row{"getTaraByPosnum", 22, slotOf(&Extended::getTaraByPosnum)},
    Row{"getPackagingInfoByPosnum", 23, slotOf(&Extended::getPackagingInfoByPosnum)},
    Row{"modifyTaraCapacity", 24, slotOf(&Extended::modifyTaraCapacity)},
    Row{"modifyPackagingUsedCapacity", 25, slotOf(&Extended::modifyPackagingUsedCapacity)},
    Row{"modifyPackagingPositionQuantity", 26, slotOf(&Extended::modifyPackagingPositionQuantity)},
    Row{"stornoAllEmptyTara", 27, slotOf(&Extended::stornoAllEmptyTara)},
    Row{"isExistsEmptyTara", 28, slotOf(&Extended::isExistsEmptyTara)},
    Row{"disablePlugin", 29, slotOf(&Extended::disablePlugin)},
    Row{"theNextOne", 30, slotOf(&Extended::next)}), nameOf);

INSTANTIATE_TEST_SUITE_P(Listener, Slot, testing::Values(
    Row{"handleEvent", 12, slotOf(&BaseActivityListener::handleEvent)},
    Row{"theNextOne", 13, slotOf(&ExtendedListener::next)}), nameOf);

INSTANTIATE_TEST_SUITE_P(BasicPlugin, Slot, testing::Values(
    // 0 and 1 are the destructors
    Row{"init", 2, slotOf(&BasicPlugin::init)},
    Row{"deinit", 3, slotOf(&BasicPlugin::deinit)},
    Row{"isFeatureMatched", 4, slotOf(&BasicPlugin::isFeatureMatched)},
    Row{"setFeature", 5, slotOf(&BasicPlugin::setFeature)},
    Row{"addHandler", 6, slotOf(&BasicPlugin::addHandler)},
    Row{"addTrigger", 7, slotOf(&BasicPlugin::addTrigger)},
    Row{"disableTriggers", 8, slotOf(&BasicPlugin::disableTriggers)},
    Row{"enableTriggers", 9, slotOf(&BasicPlugin::enableTriggers)},
    Row{"theNextOne", 10, slotOf(&ExtendedPlugin::next)}), nameOf);

INSTANTIATE_TEST_SUITE_P(DocumentWatcher, Slot, testing::Values(
    Row{"setDocument", 0, slotOf(&DocumentWatcher::setDocument)},
    Row{"theNextOne", 1, slotOf(&ExtendedWatcher::next)}), nameOf);

INSTANTIATE_TEST_SUITE_P(NotVirtual, Slot, testing::Values(
    Row{"beforeApplyModifiers", notVirtual, slotOf(&Extended::beforeApplyModifiers)},
    Row{"afterSplitPositions", notVirtual, slotOf(&Extended::afterSplitPositions)},
    Row{"afterUnitePositions", notVirtual, slotOf(&Extended::afterUnitePositions)},
    Row{"beforeSubtotal", notVirtual, slotOf(&Extended::beforeSubtotal)},
    Row{"afterSoftcheck", notVirtual, slotOf(&Extended::afterSoftcheck)},
    Row{"onPositionAddEvent", notVirtual, slotOf(&Extended::onPositionAddEvent)},
    Row{"onPositionStornoEvent", notVirtual, slotOf(&Extended::onPositionStornoEvent)},
    Row{"onModifierApplyEvent", notVirtual, slotOf(&Extended::onModifierApplyEvent)},
    Row{"removePackagingInfo", notVirtual, slotOf(&Extended::removePackagingInfo)}), nameOf);
// clang-format on

//! Calls the operation without arguments that stands in slot \a index of the table of \a part.
void callSlot(void *part, int index)
{
    using Operation = void (*)(void *);
    Operation *table = nullptr;
    std::memcpy(&table, part, sizeof table);
    table[index](part);
}

TEST(DestructorSlot, CompleteDestructor_Is3AndDestroysOnly)
{
    alignas(PackagingControl) std::byte storage[sizeof(PackagingControl)];
    auto *const plugin = new (storage) PackagingControl;
    const QPointer<QObject> watched(plugin);

    callSlot(plugin, 3);

    EXPECT_TRUE(watched.isNull());
}

TEST(DestructorSlot, DeletingDestructor_Is4)
{
    auto *const plugin = new PackagingControl;
    const QPointer<QObject> watched(plugin);

    callSlot(plugin, 4);

    EXPECT_TRUE(watched.isNull());
}

TEST(DestructorSlot, OfThePluginInterface_Is0And1)
{
    alignas(PackagingControl) std::byte storage[sizeof(PackagingControl)];
    auto *const local = new (storage) PackagingControl;
    auto *const dynamic = new PackagingControl;
    const QPointer<QObject> watchedLocal(local);
    const QPointer<QObject> watchedDynamic(dynamic);

    callSlot(static_cast<BasicPlugin *>(local), 0);
    callSlot(static_cast<BasicPlugin *>(dynamic), 1);

    EXPECT_TRUE(watchedLocal.isNull());
    EXPECT_TRUE(watchedDynamic.isNull());
}

} // namespace
