#ifndef TILL_LOOKUP_FROMTRACE_H
#define TILL_LOOKUP_FROMTRACE_H

#include "till/recorder/Recorder.h"
#include "till/result/Result.h"

namespace till {

/*!
 * Has \a recorder read the trace in the file \a path, "-" for standard input, to its end. A last
 * line that was not written to its end is left out.
 */
Result<> readTrace(const QString &path, Recorder &recorder);

} // namespace till

#endif // TILL_LOOKUP_FROMTRACE_H
