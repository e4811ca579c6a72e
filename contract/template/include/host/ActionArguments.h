#ifndef HOST_ACTIONARGUMENTS_H
#define HOST_ACTIONARGUMENTS_H

#include "host/Action.h"

#include <vendor/ActionArguments.h>

// Views of an action's arguments, each derived from the one before it. They write through to the
// action even when it is const.
namespace control::args {

using Basic = vendor::args::Basic;
using Core = vendor::args::Core; // positionNumber() const, setPositionNumber(int) const
using Input = vendor::args::Input;
using Pos = vendor::args::Pos;
using Storno = vendor::args::Storno; // setWithoutDialog(bool)

} // namespace control::args

#endif // HOST_ACTIONARGUMENTS_H
