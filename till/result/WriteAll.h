#ifndef TILL_RESULT_WRITEALL_H
#define TILL_RESULT_WRITEALL_H

#include <QtCore/QFileDevice>

namespace till {

//! Writes all of \a bytes to \a file, which is not buffered; otherwise the file says why. A disk
//! that gets full takes a part, and says what is wrong when the rest comes.
inline bool writeAll(QFileDevice &file, const QByteArray &bytes)
{
    qint64 more = 1;
    for (qsizetype written = 0; more > 0 && written < bytes.size(); written += more)
        more = file.write(bytes.constData() + written, bytes.size() - written);
    return more > 0;
}

} // namespace till

#endif // TILL_RESULT_WRITEALL_H
