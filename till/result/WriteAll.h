#ifndef TILL_RESULT_WRITEALL_H
#define TILL_RESULT_WRITEALL_H

#include "till/result/Result.h"

#include <QtCore/QFileDevice>

namespace till {

//! Writes all of \a bytes to \a file, which is not buffered. A disk that gets full takes a part,
//! and says what is wrong when the rest comes.
inline Result<> writeAll(QFileDevice &file, const QByteArray &bytes)
{
    qint64 more = 1;
    for (qsizetype written = 0; more > 0 && written < bytes.size(); written += more)
        more = file.write(bytes.constData() + written, bytes.size() - written);
    if (more > 0)
        return {};
    return Fault{file.fileName(), file.errorString()};
}

} // namespace till

#endif // TILL_RESULT_WRITEALL_H
