#ifndef TESTS_MODEL_EXHAUSTIVE_H
#define TESTS_MODEL_EXHAUSTIVE_H

#include "tests/model/ModelHost.h"
#include "tests/model/RealHost.h"

#include <string>
#include <vector>

namespace model {

/*!
 * Runs every sequence of commands up to a length, after an opening, on the plugin and on the model.
 * Sequences that begin alike share the beginning: both registers are brought back to where it led,
 * and go on from there. So only commands that keep the receipt, the plugin and the settings can
 * be in the alphabet.
 */
class Exhaustive
{
public:
    Exhaustive(const RealHost::MakePlugin &makePlugin, std::vector<Command> alphabet);

    //! Empty when both did the same after every command, or else the commands that lead to what was
    //! different first, and the difference.
    std::string compare(const std::vector<Command> &opening, int longest);

    long sequences() const { return m_sequences; }

private:
    void step(const Command &command);
    void goOn(int left);

    std::vector<Command> m_alphabet;
    RealHost m_real;
    ModelHost m_expected;
    RealHost::Moment m_realStart;
    ModelHost::Moment m_expectedStart;
    std::vector<Command> m_commands; //!< from the opening to here
    std::string m_found;
    long m_sequences = 0;
};

//! Two tara and two goods, the quantities at which something changes, and what is done to them.
std::vector<Command> smallAlphabet();

//! A receipt with both tara and both goods in it: the first tara is full, the second shared.
std::vector<Command> sharedOpening();

} // namespace model

#endif // TESTS_MODEL_EXHAUSTIVE_H
