#include "till/recorder/ScriptFile.h"

#include "till/result/WriteAll.h"

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

Result<> replaceScript(const QString &path, const QByteArray &text)
{
    QSaveFile file(path);
    // Without a buffer: commit() does not tell that the disk was full for what it had.
    const bool isWritten =
        file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, text);
    if (!isWritten || !file.commit())
        return Fault{path, file.errorString()};
    return {};
}

Result<> saveScript(const QString &path, const QStringList &lines)
{
    if (const Result<> checked = checkScriptFile(path); !checked)
        return checked;
    QByteArray text = lineOf(recordedMark());
    for (const QString &line : lines)
        text += lineOf(line);
    return replaceScript(path, text);
}

} // namespace till
