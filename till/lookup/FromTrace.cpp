#include "till/lookup/FromTrace.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>

#include <cstdio>

namespace till {

Result<> readTrace(const QString &path, Recorder &recorder)
{
    QFile file(path);
    const bool isOpen =
        path == "-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen)
        return Fault{path, file.errorString()};
    qint64 number = 0;
    for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
        ++number;
        const QJsonObject note = QJsonDocument::fromJson(line).object();
        if (!note["kind"].isString()) {
            if (number > 1 && !line.endsWith('\n'))
                break; // the till was ended while it wrote
            return Fault{QString("%1:%2").arg(path).arg(number), "no line of a trace"};
        }
        if (note["line"].toInteger() != number)
            return Fault{QString("%1:%2").arg(path).arg(number),
                         "lines of the trace are missing before this one"};
        recorder.read(note);
    }
    if (file.error() != QFileDevice::NoError)
        return Fault{path, file.errorString()};
    if (number == 0)
        return Fault{path, "an empty trace"};
    recorder.finish();
    return {};
}

} // namespace till
