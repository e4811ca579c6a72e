#include "tests/support/Printers.h"

#include "host/ActionArguments.h"
#include "host/ActionTrigger.h"

#include <gtest/gtest.h>

namespace {

using control::Action;
using control::args::Core;
using control::args::Storno;
using Arguments = QMultiMap<QString, QVariant>;

Action stornoOf(int posnum)
{
    const Action action(control::StornoPosition, {});
    Core(action).setPositionNumber(posnum);
    return action;
}

TEST(ActionHandle, NewAction_HasItsTypeAndArguments)
{
    const Arguments arguments{{"a", 1}, {"b", "two"}};
    const Action action(control::UnitePositions, arguments);

    EXPECT_EQ(action.getType(), control::UnitePositions);
    EXPECT_EQ(action.getArguments(), arguments);
}

TEST(ActionHandle, ManyValuesUnderOneKey_AreAllKept)
{
    const Arguments arguments{{"a", 1}, {"a", 2}};

    EXPECT_EQ(Action(control::Subtotal, arguments).getArguments().values("a"),
              (QVariantList{2, 1}));
}

TEST(ActionHandle, ChangeThroughACopy_IsSeenInTheOriginal)
{
    const Action action(control::StornoPosition, {});
    const Action copy = action;

    Core(copy).setPositionNumber(7);

    EXPECT_EQ(Core(action).positionNumber(), 7);
}

TEST(ActionHandle, Assigned_SharesFromThenOn)
{
    const Action action = stornoOf(7);
    Action other(control::Subtotal, {});

    other = action;
    Core(action).setPositionNumber(8);

    EXPECT_EQ(other.getType(), control::StornoPosition);
    EXPECT_EQ(Core(other).positionNumber(), 8);
}

TEST(ActionHandle, ArgumentsTakenEarlier_StayAsTheyWere)
{
    const Action action(control::StornoPosition, {{"a", 1}});
    const Arguments before = action.getArguments();

    action.setArgument("a", 2);

    EXPECT_EQ(before.value("a"), 1);
}

TEST(ActionHandle, SetArgument_ReplacesEveryValueOfTheKey)
{
    const Action action(control::StornoPosition, {{"a", 1}, {"a", 2}, {"b", 3}});

    action.setArgument("a", 4);

    EXPECT_EQ(action.getArguments(), (Arguments{{"a", 4}, {"b", 3}}));
}

TEST(ActionAccessor, NoPositionNumber_IsZero)
{
    EXPECT_EQ(Core(Action(control::StornoPosition, {})).positionNumber(), 0);
}

TEST(ActionAccessor, ManyPositionNumbers_TheOneAddedLastCounts)
{
    EXPECT_EQ(Core(Action(control::StornoPosition, {{"positionNumber", 3}, {"positionNumber", 4}}))
                  .positionNumber(),
              4);
}

TEST(ActionAccessor, PositionNumberAsText_IsRead)
{
    EXPECT_EQ(Core(Action(control::StornoPosition, {{"positionNumber", "7"}})).positionNumber(), 7);
}

TEST(ActionAccessor, PositionNumberSetAgain_ReplacesTheFirst)
{
    const Action action = stornoOf(5);

    Core(action).setPositionNumber(6);

    EXPECT_EQ(Core(action).positionNumber(), 6);
    EXPECT_EQ(action.getArguments().size(), 1);
}

TEST(ActionAccessor, DialogWanted_UnlessSaidOtherwise)
{
    EXPECT_FALSE(Storno(stornoOf(5)).withoutDialog());
}

TEST(ActionAccessor, WithoutDialog_IsSeenInEveryCopy)
{
    const Action action = stornoOf(5);
    const Action copy = action;

    Storno(action).setWithoutDialog(true);

    EXPECT_TRUE(Storno(copy).withoutDialog());
    EXPECT_EQ(Core(copy).positionNumber(), 5);
}

TEST(ActionAccessor, WithoutDialogTakenBack_IsFalse)
{
    const Action action = stornoOf(5);
    Storno accessor(action);
    accessor.setWithoutDialog(true);

    accessor.setWithoutDialog(false);

    EXPECT_FALSE(Storno(action).withoutDialog());
}

TEST(ActionAccessor, MadeEarlier_SeesALaterChange)
{
    const Action action(control::StornoPosition, {});
    const Core earlier(action);

    Core(action).setPositionNumber(9);

    EXPECT_EQ(earlier.positionNumber(), 9);
}

TEST(ActionAccessor, OutlivingItsAction_StillReads)
{
    const Storno accessor(stornoOf(3));

    EXPECT_EQ(accessor.positionNumber(), 3);
    EXPECT_EQ(accessor.action().getType(), control::StornoPosition);
}

TEST(ActionAccessor, EveryLinkOfTheChain_ReachesThePositionNumber)
{
    const Action action = stornoOf(4);

    EXPECT_EQ(control::args::Input(action).positionNumber(), 4);
    EXPECT_EQ(control::args::Pos(action).positionNumber(), 4);
    EXPECT_EQ(Storno(action).positionNumber(), 4);
    EXPECT_EQ(control::args::Basic(action).action().getArguments(), action.getArguments());
}

ActionTrigger answering(EContext::Result answer)
{
    return {EContext::Receipt,
            control::Subtotal,
            ActionTrigger::Before,
            [answer](const Action &) { return answer; },
            ActionTrigger::DefaultResult,
            ActionTrigger::Low};
}

TEST(Trigger, NewTrigger_KeepsWhatItWasMadeOf)
{
    const ActionTrigger trigger = answering(EContext::Continue);

    EXPECT_EQ(trigger.getContext(), EContext::Receipt);
    EXPECT_EQ(trigger.getActionType(), control::Subtotal);
    EXPECT_EQ(trigger.getOrder(), ActionTrigger::Before);
    EXPECT_EQ(trigger.getResult(), ActionTrigger::DefaultResult);
    EXPECT_EQ(trigger.getPriority(), ActionTrigger::Low);
}

class TriggerAnswer : public testing::TestWithParam<EContext::Result>
{
};

TEST_P(TriggerAnswer, Call_AnswersWhatTheCallbackAnswers)
{
    EXPECT_EQ(answering(GetParam()).call(stornoOf(1)), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Each, TriggerAnswer,
                         testing::Values(EContext::Cancel, EContext::Error, EContext::Continue));

TEST(Trigger, Call_HandsTheActionOver)
{
    int seen = 0;
    const ActionTrigger trigger(
        EContext::Receipt, control::StornoPosition, ActionTrigger::After,
        [&seen](const Action &action) {
            seen = Core(action).positionNumber();
            return EContext::Continue;
        },
        ActionTrigger::DefaultResult, ActionTrigger::Normal);

    trigger.call(stornoOf(12));

    EXPECT_EQ(seen, 12);
}

TEST(Trigger, NoCallback_Continues)
{
    const ActionTrigger trigger(EContext::Receipt, control::Subtotal, ActionTrigger::Before, {},
                                ActionTrigger::DefaultResult, ActionTrigger::Normal);

    EXPECT_EQ(trigger.call(stornoOf(1)), EContext::Continue);
}

TEST(Trigger, Copy_CallsTheSameCallback)
{
    int calls = 0;
    const ActionTrigger trigger(
        EContext::Receipt, control::Subtotal, ActionTrigger::Before,
        [&calls](const Action &) {
            ++calls;
            return EContext::Continue;
        },
        ActionTrigger::DefaultResult, ActionTrigger::Normal);
    const ActionTrigger copy = trigger;

    trigger.call(stornoOf(1));
    copy.call(stornoOf(1));

    EXPECT_EQ(calls, 2);
}

} // namespace
