// What the contract says of each operation's parameters, result and constness, checked when this
// file is compiled. Where the contract leaves the result open, only the call is checked.

#include "host/ActionArguments.h"
#include "host/ActionQueueController.h"
#include "host/ActionTrigger.h"
#include "host/ActivityNotifier.h"
#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/Config.h"
#include "host/Dialog.h"
#include "host/Document.h"
#include "host/DocumentLogic.h"
#include "host/DocumentWatcher.h"
#include "host/Event.h"
#include "host/Finally.h"
#include "host/GoodsItem.h"
#include "host/LoyaltySystemLayer.h"
#include "host/ModifiersContainer.h"
#include "host/Quantity.h"
#include "host/Session.h"
#include "host/Tr.h"

#include <functional>
#include <type_traits>

namespace {

template <auto Member, class Expected>
constexpr bool hasType = std::is_same_v<decltype(Member), Expected>;

using Arguments = QMultiMap<QString, QVariant>;
using DocumentPtr = QSharedPointer<AbstractDocument>;

// Bases of a plugin.
static_assert(std::is_base_of_v<QObject, BaseActivityListener>);
static_assert(std::is_abstract_v<BaseActivityListener>);
static_assert(
    hasType<&BaseActivityListener::handleEvent, void (BaseActivityListener::*)(const Event &)>);
static_assert(hasType<&BasicPlugin::init, bool (BasicPlugin::*)()>);
static_assert(hasType<&BasicPlugin::deinit, void (BasicPlugin::*)()>);
static_assert(
    hasType<&BasicPlugin::isFeatureMatched, bool (BasicPlugin::*)(const QString &) const>);
static_assert(hasType<&BasicPlugin::setFeature, void (BasicPlugin::*)(const QString &)>);
static_assert(hasType<&BasicPlugin::addHandler, void (BasicPlugin::*)(const ActionHandler &)>);
static_assert(hasType<&BasicPlugin::addTrigger, void (BasicPlugin::*)(const ActionTrigger &)>);
static_assert(hasType<&BasicPlugin::disableTriggers, void (BasicPlugin::*)(const QSet<int> &)>);
static_assert(hasType<&BasicPlugin::enableTriggers, void (BasicPlugin::*)()>);
static_assert(
    hasType<&DocumentWatcher::setDocument, void (DocumentWatcher::*)(const DocumentPtr &)>);

// Receipt and catalogue.
static_assert(hasType<&GoodsItem::getPosnum, int (GoodsItem::*)() const>);
static_assert(hasType<&GoodsItem::getTmc, Tmc *(GoodsItem::*)()>);
static_assert(hasType<&GoodsItem::getTmcTaraCapacity, QVariant (GoodsItem::*)() const>);
static_assert(hasType<&GoodsItem::getBquant, double (GoodsItem::*)() const>);
static_assert(hasType<&GoodsItem::getCquant, double (GoodsItem::*)() const>);
static_assert(hasType<&GoodsItem::getGroupId, QString (GoodsItem::*)() const>);
static_assert(hasType<&GoodsItem::setGroupId, void (GoodsItem::*)(const QString &)>);
static_assert(hasType<&Tmc::getTaraMode, int (Tmc::*)() const>);
static_assert(std::is_invocable_r_v<int, decltype(&AbstractDocument::getType), Document &>);
static_assert(std::is_invocable_r_v<QSharedPointer<Order>, decltype(&AbstractDocument::getOrder),
                                    Document &>);
static_assert(
    std::is_invocable_r_v<QSharedPointer<GoodsItem>,
                          decltype(&AbstractDocument::getPositionByPosnum), Document &, int>);
static_assert(
    std::is_invocable_v<decltype(&AbstractDocument::setDocumentSwitch), Document &, bool>);
static_assert(std::is_invocable_r_v<GoodsItemPtrList, decltype(&AbstractDocument::getPositionList),
                                    Document &>);
static_assert(std::is_invocable_r_v<QVariant, decltype(&AbstractDocument::getPluginData),
                                    Document &, QString, QString, QVariant>);
static_assert(std::is_invocable_v<decltype(&AbstractDocument::setPluginData), Document &, QString,
                                  QString, QVariant>);

// Events.
static_assert(std::is_constructible_v<Event, EActivityListener::Event>);
static_assert(hasType<&Event::getCode, EActivityListener::Event (Event::*)() const>);
static_assert(hasType<&Event::value, QVariant (Event::*)(const QString &, const QVariant &) const>);
static_assert(hasType<&Event::addArgument, Event &(Event::*)(const QString &, const QVariant &)>);
static_assert(hasType<&Event::operator==, bool (Event::*)(const Event &) const>);
static_assert(std::is_same_v<std::underlying_type_t<EActivityListener::Event>, int>);
static_assert(hasType<&ActivityNotifier::subscribe,
                      void (ActivityNotifier::*)(BaseActivityListener *, const QSet<int> &)>);
static_assert(hasType<&ActivityNotifier::disableListener,
                      void (ActivityNotifier::*)(BaseActivityListener *)>);
static_assert(
    hasType<&ActivityNotifier::enableListener, void (ActivityNotifier::*)(BaseActivityListener *)>);
static_assert(hasType<&ActivityNotifier::notify, void (ActivityNotifier::*)(const Event &)>);

// Actions and triggers.
static_assert(std::is_constructible_v<control::Action, control::EActionType, const Arguments &>);
static_assert(std::is_constructible_v<control::args::Core, const control::Action &>);
static_assert(std::is_constructible_v<control::args::Storno, const control::Action &>);
static_assert(std::is_convertible_v<control::args::Storno *, control::args::Pos *>);
static_assert(std::is_convertible_v<control::args::Pos *, control::args::Input *>);
static_assert(std::is_convertible_v<control::args::Input *, control::args::Core *>);
static_assert(std::is_convertible_v<control::args::Core *, control::args::Basic *>);
static_assert(hasType<&control::args::Core::positionNumber, int (control::args::Core::*)() const>);
static_assert(
    hasType<&control::args::Core::setPositionNumber, void (control::args::Core::*)(int) const>);
static_assert(
    hasType<&control::args::Storno::setWithoutDialog, void (control::args::Storno::*)(bool)>);
static_assert(std::is_constructible_v<ActionTrigger, EContext::Code, control::EActionType,
                                      ActionTrigger::Order,
                                      std::function<EContext::Result(const control::Action &)>,
                                      ActionTrigger::Result, ActionTrigger::Priority>);
static_assert(hasType<&ActionQueueController::runAction,
                      int (ActionQueueController::*)(const control::Action &)>);
static_assert(std::is_constructible_v<ActionQueueController, QObject *>);

// Services and values.
static_assert(
    std::is_invocable_r_v<ModifiersContainer *, decltype(&Session::getModifiers), Session &>);
static_assert(
    hasType<&ModifiersContainer::isSet, bool (ModifiersContainer::*)(modifiers::Type) const>);
static_assert(hasType<&ModifiersContainer::set,
                      void (ModifiersContainer::*)(modifiers::Type, const QVariant &)>);
static_assert(hasType<&ModifiersContainer::clearAll, void (ModifiersContainer::*)()>);
static_assert(std::is_constructible_v<Quantity, double, EQuantMode>);
static_assert(hasType<&Quantity::operator==, bool (Quantity::*)(const Quantity &) const>);
static_assert(std::is_invocable_r_v<bool, decltype(&Config::getBool), Config &, QString, bool>);
static_assert(std::is_invocable_r_v<bool, decltype(&Dialog::showQuestion), Dialog &, tr::Tr, int,
                                    tr::Tr, tr::Tr, int>);
static_assert(std::is_invocable_v<decltype(&DocumentLogic::stornoPosition), DocumentLogic &,
                                  const control::Action &>);
static_assert(std::is_invocable_v<decltype(&LoyaltySystemLayer::updateDocument),
                                  LoyaltySystemLayer &, const DocumentPtr &>);
static_assert(std::is_constructible_v<tr::Tr, const QString &, const QString &>);
static_assert(hasType<&tr::Tr::operator QVariant, QVariant (tr::Tr::*)() const>);
static_assert(std::is_convertible_v<const tr::Tr &, QVariant>);
static_assert(std::is_constructible_v<Finally, std::function<void()>>);

} // namespace
