#ifndef HOST_FINALLY_H
#define HOST_FINALLY_H

#include <shopline/Talk.h>

using Finally = shopline::AtEnd;

#endif // HOST_FINALLY_H
