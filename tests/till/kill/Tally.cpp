#include "tests/till/kill/Tally.h"

namespace till {

std::ostream &operator<<(std::ostream &out, const Tally &tally)
{
    return out << "kills while the till started:         " << tally.starting
               << "\nkills between two commands:           " << tally.between
               << "\nkills during a command:               " << tally.during()
               << "\n  before the till took it:            " << tally.stage[0]
               << "\n  while its actions were carried out: " << tally.stage[1]
               << "\n  while it was stored:                " << tally.stage[2]
               << "\n  before it was acknowledged:         " << tally.stage[3]
               << "\n  found stored, whole:                " << tally.stored
               << "\n  nothing of it found:                " << tally.notStored
               << "\nrestarted tills whose plugin saved what it had restored: " << tally.restored
               << '\n';
}

} // namespace till
