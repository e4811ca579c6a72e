#ifndef TILL_OPTIONS_OPTIONMEANING_H
#define TILL_OPTIONS_OPTIONMEANING_H

#include "till/result/Result.h"

class QCommandLineParser;

namespace till {

//! What is wrong with an option that means nothing to the command \a mode, which is empty for the
//! register.
Result<> checkMeaning(const QCommandLineParser &parser, const QString &mode);

//! What is wrong with an option that names one thing and comes twice.
Result<> checkOnce(const QCommandLineParser &parser);

} // namespace till

#endif // TILL_OPTIONS_OPTIONMEANING_H
