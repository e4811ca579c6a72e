#ifndef HOST_TR_H
#define HOST_TR_H

#include <vendor/Message.h>

namespace tr {

// It travels in event 29: the SDK's own type. Of a derived one the cashier reads an empty text.
using Tr = vendor::Message;

} // namespace tr

#endif // HOST_TR_H
