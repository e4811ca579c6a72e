#ifndef CONTRACT_REPORT_H
#define CONTRACT_REPORT_H

#include "contract/Check.h"

namespace contract {

//! A check and how it ended.
struct Result
{
    Check check;
    Finding finding;
};

//! Everything that was run, in its order.
using Results = QList<Result>;

int count(const Results &results, Finding::Kind kind);

//! One line, without an end of line.
QString toText(const Result &result);
//! The last line of a run.
QString toSummary(const Results &results);
//! An object with "checks", an array in the order of the run, and "held", "broken", "unchecked".
QByteArray toJson(const Results &results);
//! As the readers of JUnit's reports want it; what cannot be checked counts as skipped.
QByteArray toJUnit(const Results &results);

} // namespace contract

#endif // CONTRACT_REPORT_H
