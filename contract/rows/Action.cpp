#include "host/Action.h"

#include "contract/rows/Row.h"

namespace rowsAction {

#if ROW(1) // control::Action(control::EActionType, arguments)
inline control::Action make(control::EActionType type)
{
    return control::Action(type, {});
}
#endif

#if ROW(2) // control::Action::getArguments()
inline QMultiMap<QString, QVariant> arguments(const control::Action &action)
{
    return action.getArguments();
}
#endif

#if ROW(3) // control::ApplyModifiers
inline constexpr control::EActionType itsApplyModifiers = control::ApplyModifiers;
#endif

#if ROW(4) // control::AddSoftCheck
inline constexpr control::EActionType itsAddSoftCheck = control::AddSoftCheck;
#endif

#if ROW(5) // control::StornoPosition
inline constexpr control::EActionType itsStornoPosition = control::StornoPosition;
#endif

#if ROW(6) // control::Subtotal
inline constexpr control::EActionType itsSubtotal = control::Subtotal;
#endif

#if ROW(7) // control::Payment
inline constexpr control::EActionType itsPayment = control::Payment;
#endif

#if ROW(8) // control::RemovePosition
inline constexpr control::EActionType itsRemovePosition = control::RemovePosition;
#endif

#if ROW(9) // control::SplitPositions
inline constexpr control::EActionType itsSplitPositions = control::SplitPositions;
#endif

#if ROW(10) // control::UnitePositions
inline constexpr control::EActionType itsUnitePositions = control::UnitePositions;
#endif

} // namespace rowsAction
