#ifndef TILL_VERDICTS_TAP_H
#define TILL_VERDICTS_TAP_H

#include "till/verdicts/Verdict.h"

namespace till {

// A run as lines of the Test Anything Protocol, version 13.

QString tapPlan(qsizetype scripts);

//! Lines that mean nothing to a program.
QString tapComment(const QString &text);

//! The line of the script \a number, from 1, and what is wrong with it as comments behind it.
QString tapLines(qsizetype number, const Verdict &verdict);

//! That a run ends before its last script, after \a verdict.
QString tapEnd(const Verdict &verdict);

} // namespace till

#endif // TILL_VERDICTS_TAP_H
