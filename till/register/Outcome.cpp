#include "till/register/Outcome.h"

#include <QtCore/QStringList>

namespace till {

Outcome tellCommand(Notes &notes, const QString &text, const std::function<Outcome()> &carryOut)
{
    static const QStringList names{"done", "refused", "mistake", "failed"};
    notes.add("command", {{"text", text}});
    Outcome outcome;
    {
        const Notes::Nesting inside(notes);
        outcome = carryOut();
    }
    notes.add("outcome", {{"outcome", names[outcome.kind]}, {"text", outcome.text}});
    return outcome;
}

} // namespace till
