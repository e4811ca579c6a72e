#ifndef HOST_FINALLY_H
#define HOST_FINALLY_H

#include <vendor/Finally.h>

// Runs a function when its scope ends, on every way out. Nothing of the host's depends on it: where
// the SDK has none, a class of five lines here does.
using Finally = vendor::Finally;

#endif // HOST_FINALLY_H
