#include "host/ActionArguments.h"

#include "contract/rows/Row.h"

namespace rowsActionArguments {

#if ROW(1) // control::args::Core::positionNumber()
inline int number(const control::Action &action)
{
    return control::args::Core(action).positionNumber();
}
#endif

#if ROW(2) // control::args::Core::setPositionNumber(int)
inline void setNumber(const control::Action &action)
{
    control::args::Core(action).setPositionNumber(1);
}
#endif

#if ROW(3) // control::args::Storno::setWithoutDialog(bool)
inline void silence(const control::Action &action)
{
    control::args::Storno arguments(action);
    arguments.setWithoutDialog(true);
    arguments.setPositionNumber(1);
}
#endif

#if ROW(4) // control::args::Basic, Input, Pos
inline void chain(control::args::Storno &storno)
{
    const control::args::Pos &pos = storno;
    const control::args::Input &input = pos;
    const control::args::Basic &basic = input;
    static_cast<void>(basic);
}
#endif

} // namespace rowsActionArguments
