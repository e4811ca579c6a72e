#ifndef TESTS_MODEL_DIFFERENCE_H
#define TESTS_MODEL_DIFFERENCE_H

#include "tests/model/ModelHost.h"
#include "tests/model/RealHost.h"

#include <string>

namespace model {

//! Where the plugin and the model differ, for a person to read; empty when they do not.
std::string difference(RealHost &real, ModelHost &expected);

/*!
 * Runs \a script on both. Empty when both did the same after every command, or else what was
 * different first. \a commands counts those up that led to anything: to an action, a message or a
 * log line.
 */
std::string firstDifference(const Script &script, const RealHost::MakePlugin &makePlugin,
                            long &commands);

} // namespace model

#endif // TESTS_MODEL_DIFFERENCE_H
