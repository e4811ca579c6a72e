// The numbers are the contract's; plugins built earlier carry them. Checked when this file is
// compiled.

#include "host/ActionTrigger.h"
#include "host/EActionType.h"
#include "host/EActivityListener.h"
#include "host/EContext.h"
#include "host/EQuantMode.h"
#include "host/ModifiersContainer.h"

#include <type_traits>

namespace {

static_assert(EActivityListener::eventPositionAdded == 19);
static_assert(EActivityListener::eventPositionStorno == 21);
static_assert(EActivityListener::eventModifierApplied == 26);
static_assert(EActivityListener::eventModifierApplied2 == 252);
static_assert(EActivityListener::eventError == 29);

static_assert(EContext::Receipt == 6);
static_assert(EContext::Cancel == 0);
static_assert(EContext::Error == 1);
static_assert(EContext::Continue == 2);
static_assert(std::is_same_v<decltype(EContext::Receipt), EContext::Code>);
static_assert(std::is_same_v<decltype(EContext::Continue), EContext::Result>);

static_assert(ActionTrigger::Before == 1);
static_assert(ActionTrigger::After == 0);
static_assert(ActionTrigger::DefaultResult == 0);
static_assert(ActionTrigger::High == 1);
static_assert(ActionTrigger::Normal == 3);
static_assert(ActionTrigger::Low == 5);
static_assert(std::is_same_v<decltype(ActionTrigger::Before), ActionTrigger::Order>);
static_assert(std::is_same_v<decltype(ActionTrigger::DefaultResult), ActionTrigger::Result>);
static_assert(std::is_same_v<decltype(ActionTrigger::Normal), ActionTrigger::Priority>);

static_assert(control::ApplyModifiers == 5);
static_assert(control::AddSoftCheck == 129);
static_assert(control::StornoPosition == 132);
static_assert(control::Subtotal == 133);
static_assert(control::Payment == 144);
static_assert(control::RemovePosition == 202);
static_assert(control::SplitPositions == 233);
static_assert(control::UnitePositions == 234);

static_assert(modifiers::Quantity == 3);
static_assert(quantModeRecalculated == 7);

} // namespace
