#ifndef TESTS_TILL_KILL_TALLY_H
#define TESTS_TILL_KILL_TALLY_H

#include <array>
#include <ostream>

namespace till {

//! What the kills met.
struct Tally
{
    int starting = 0;           //!< the till had told nothing of a command yet, and was sent none
    int between = 0;            //!< everything was acknowledged
    std::array<int, 4> stage{}; //!< a command was under way, by `TraceReader::Stage`
    int stored = 0;             //!< that command was found stored, whole
    int notStored = 0;          //!< nothing of it was found
    int restored = 0;           //!< restarted tills that saved again what they had restored

    int during() const { return stored + notStored; }
    int all() const { return starting + between + during(); }
    //! There were kills of every kind that can prove something.
    bool isTelling() const { return during() > 20 && stored > 0 && notStored > 0 && restored > 5; }
};

std::ostream &operator<<(std::ostream &out, const Tally &tally);

} // namespace till

#endif // TESTS_TILL_KILL_TALLY_H
