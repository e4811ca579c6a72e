#ifndef TESTS_MODEL_RANDOMRUN_H
#define TESTS_MODEL_RANDOMRUN_H

#include "tests/model/RealHost.h"

#include <cstdint>
#include <string>

namespace model {

//! How much was tried.
struct Tally
{
    long commands = 0; //!< that led to anything
    long receipts = 0;
};

/*!
 * Runs scripts at random beside the model until there were \a wanted commands. Empty when there was
 * no difference; or else the smallest script that was found to show one, what is different, and the
 * seed to find it again.
 */
std::string compareAtRandom(const RealHost::MakePlugin &makePlugin, std::uint64_t seed, long wanted,
                            Tally &tally);

} // namespace model

#endif // TESTS_MODEL_RANDOMRUN_H
