#ifndef TILL_LOOKUP_FINDINGS_H
#define TILL_LOOKUP_FINDINGS_H

#include "till/options/ExitStatus.h"
#include "till/view/ReceiptView.h"

#include <QtCore/QString>

namespace till {

//! What an operation on the database came to, also when something there is damaged.
struct Finding
{
    ExitStatus status = AllWell;
    QString text; //!< for people
};

//! Tells that \a database was brought to today's format, and where it is as it was.
Message broughtToFormat(const QString &database, const QString &copy);

//! `till check`: what in the database is not as it was stored, as a table.
Result<Finding, Failure> checkStored(const QString &database);

//! `till backup FILE`: a whole copy of the database.
Result<Finding, Failure> backUpStored(const QString &database, const QString &file);

//! `till set-apart NUMBER`: takes a receipt out of the way, and shows what was on it.
Result<Finding, Failure> setApartStored(const QString &database, const QString &number,
                                        const Translator &translator, Style style);

} // namespace till

#endif // TILL_LOOKUP_FINDINGS_H
