#ifndef TILL_CONSOLE_UPKEEP_H
#define TILL_CONSOLE_UPKEEP_H

#include "till/console/ExitStatus.h"
#include "till/view/ReceiptView.h"

#include <QtCore/QString>

namespace till {

//! What an operation on the database came to.
struct UpkeepResult
{
    ExitStatus status = AllWell;
    QString text; //!< for people, also when something is damaged; an error with other statuses

    //! Whether the text is an error.
    bool isError = false;
};

//! `till check`: what in the database is not as it was stored, as a table.
UpkeepResult checkStored(const QString &database);

//! `till backup FILE`: a whole copy of the database.
UpkeepResult backUpStored(const QString &database, const QString &file);

//! `till set-apart NUMBER`: takes a receipt out of the way, and shows what was on it.
UpkeepResult setApartStored(const QString &database, const QString &number,
                            const ReceiptView &view);

} // namespace till

#endif // TILL_CONSOLE_UPKEEP_H
