#ifndef TILL_CONSOLE_LOOKUPOPTIONS_H
#define TILL_CONSOLE_LOOKUPOPTIONS_H

#include "till/storage/Archive.h"

#include <QtCore/QCommandLineOption>
#include <QtCore/QList>

class QCommandLineParser;

namespace till {

//! What the command line says of receipts that are looked up.
struct LookupOptions
{
    enum class Form {
        Text, //!< for people
        Json, //!< lines of JSON
        Csv,
    };
    Form form = Form::Text;
    Selection selection;
};

//! The options for that.
QList<QCommandLineOption> lookupOptions();

//! Reads them for the command \a mode of the program, to which none may be given that mean nothing
//! to it.
Result<LookupOptions> readLookup(const QCommandLineParser &parser, const QString &mode);

} // namespace till

#endif // TILL_CONSOLE_LOOKUPOPTIONS_H
