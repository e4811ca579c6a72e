#ifndef HOST_ACTIONARGUMENTS_H
#define HOST_ACTIONARGUMENTS_H

#include "host/Action.h"

namespace control::args {

using Basic = shopline::TaskView;
using Core = shopline::LineView;
using Input = shopline::EntryView;
using Pos = shopline::WholeLineView;
using Storno = shopline::CancelView;

} // namespace control::args

#endif // HOST_ACTIONARGUMENTS_H
