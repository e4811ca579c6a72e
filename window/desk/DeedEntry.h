#ifndef WINDOW_DESK_DEEDENTRY_H
#define WINDOW_DESK_DEEDENTRY_H

#include "window/desk/Deed.h"
#include "window/dialogs/EntryDialog.h"

#include <functional>
#include <optional>

namespace till {

//! The command that \a deed is without anything more being asked; nothing for one that wants an
//! entry.
std::optional<Command> commandOf(Deed deed, const QList<int> &selected);

//! Whoever checks a command, and carries it out.
struct Doer
{
    std::function<Outcome(const Command &command)> check;
    std::function<void(const Command &command)> carryOut;
    std::function<Kopecks()> total; //!< of the receipt as it is by then
};

//! What is asked for \a deed, which wants an entry, on the \a selected positions of \a receipt.
//! What is entered becomes a command for \a doer.
EntryDialog::Wanted entryFor(Deed deed, const QList<int> &selected, const Receipt &receipt,
                             const Translator &translator, const Doer &doer);

} // namespace till

#endif // WINDOW_DESK_DEEDENTRY_H
