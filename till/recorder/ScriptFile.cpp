#include "till/recorder/ScriptFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

namespace till {

namespace {

QByteArray lineOf(const QString &line)
{
    return line.toUtf8() + '\n';
}

//! Whether nothing is at \a path yet, or a script that was recorded before.
Result<> checkScriptFile(const QString &path)
{
    if (!QFileInfo::exists(path))
        return {};
    const Fault other{path, "is there already and is no recorded script", "name another file"};
    QFile file(path);
    if (!QFileInfo(path).isFile())
        return other;
    if (!file.open(QIODevice::ReadOnly))
        return Fault{path, file.errorString()};
    const QByteArray mark = lineOf(recordedMark());
    return file.size() == 0 || file.read(mark.size()) == mark ? Result<>() : other;
}

} // namespace

QString recordedMark()
{
    return QStringLiteral("# Recorded by the till.");
}

Result<> saveScript(const QString &path, const QStringList &lines)
{
    if (const Result<> checked = checkScriptFile(path); !checked)
        return checked;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Fault{path, file.errorString()};
    file.write(lineOf(recordedMark()));
    for (const QString &line : lines)
        file.write(lineOf(line));
    if (!file.commit())
        return Fault{path, file.errorString()};
    return {};
}

} // namespace till
