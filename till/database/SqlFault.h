#ifndef TILL_DATABASE_SQLFAULT_H
#define TILL_DATABASE_SQLFAULT_H

#include "till/result/Result.h"

QT_BEGIN_NAMESPACE
class QSqlError;
QT_END_NAMESPACE

namespace till {

//! What \a error means to the people at the register, and what they can do where that is known; of
//! no place. What SQLite says of itself where it is nothing they know.
Fault faultOf(const QSqlError &error);

//! What can be done with a database file that is damaged.
QString wayOutOfDamage();
//! The same where no receipt can be set apart, or that would not help.
QString wayBackFromDamage();

} // namespace till

#endif // TILL_DATABASE_SQLFAULT_H
