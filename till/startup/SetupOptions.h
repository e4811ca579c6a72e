#ifndef TILL_STARTUP_SETUPOPTIONS_H
#define TILL_STARTUP_SETUPOPTIONS_H

#include "till/register/CashDesk.h"

#include <QtCore/QCommandLineOption>
#include <QtCore/QList>

class QCommandLineParser;

namespace till {

//! Where files of the delivery are, beside the folder of the program.
QString delivered(const QString &relative);
//! The database where none is named.
QString defaultDatabase();
//! Makes the folder of the \a database where it is missing. That of the default one, which an
//! earlier till may have made, is its owner's alone from now on.
void prepareFolder(const QString &database);

//! The options that say what a register is made of, which every program of the till has.
QList<QCommandLineOption> setupOptions();
//! The option that says in which language the cashier reads.
QCommandLineOption languageOption();

//! What those options say, unless something is wrong with one of them.
Result<Setup> readSetup(const QCommandLineParser &parser);
//! The same of the language.
Result<QString> readLanguage(const QCommandLineParser &parser);

} // namespace till

#endif // TILL_STARTUP_SETUPOPTIONS_H
