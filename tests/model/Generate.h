#ifndef TESTS_MODEL_GENERATE_H
#define TESTS_MODEL_GENERATE_H

#include "tests/model/Command.h"

#include <rapidcheck.h>

#include <vector>

namespace model {

//! Commands that are a little simpler than \a command, the simplest first.
std::vector<Command> simpler(const Command &command);

//! Runs of the register at random, that shrink to fewer and simpler commands.
rc::Gen<Script> scripts();

} // namespace model

#endif // TESTS_MODEL_GENERATE_H
