#ifndef TILL_VERDICTS_JUNIT_H
#define TILL_VERDICTS_JUNIT_H

#include "till/verdicts/Verdict.h"

namespace till {

/*!
 * What became of \a scripts as JUnit XML, for the servers that read it; docs/junit.xsd describes
 * it. The \a verdicts are those of the first of them; the others were not played. A script that
 * failed is a failure, one that is wrong, was interrupted or for which the till did not start an
 * error.
 */
QByteArray junit(const QList<Verdict> &verdicts, const QStringList &scripts);

} // namespace till

#endif // TILL_VERDICTS_JUNIT_H
