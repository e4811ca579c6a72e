#ifndef TILL_OPTIONS_LOOKUPOPTIONS_H
#define TILL_OPTIONS_LOOKUPOPTIONS_H

#include "till/archive/Archive.h"

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

//! Reads them.
Result<LookupOptions> readLookup(const QCommandLineParser &parser);

} // namespace till

#endif // TILL_OPTIONS_LOOKUPOPTIONS_H
