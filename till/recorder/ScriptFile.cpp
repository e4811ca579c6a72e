#include "till/recorder/ScriptFile.h"

#include "till/result/WriteAll.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace till {

namespace {

QString lastLine(const QByteArray &sum)
{
    return QStringLiteral("# Recorded to here; the sum of it is %1.")
        .arg(QString::fromLatin1(sum.toHex().left(16)));
}

} // namespace

bool isStandardStream(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return false;
    const auto leadsThere = [&status](int stream) {
        struct stat other = {};
        return fstat(stream, &other) == 0 && other.st_dev == status.st_dev
               && other.st_ino == status.st_ino;
    };
    return leadsThere(STDIN_FILENO) || leadsThere(STDOUT_FILENO) || leadsThere(STDERR_FILENO);
}

RecordedText::RecordedText(Write write)
    : m_write(std::move(write))
{
    add(mark());
}

void RecordedText::add(const QString &line)
{
    m_sum.addData(line.toUtf8() + '\n');
    m_write(line);
}

void RecordedText::end()
{
    m_write(lastLine(m_sum.result()));
}

QString RecordedText::mark()
{
    return QStringLiteral("# Recorded by the till.");
}

bool RecordedText::isUnchanged(const QByteArray &text)
{
    const qsizetype lines = text.lastIndexOf('\n', -2) + 1; // before the last
    const QByteArray sum = QCryptographicHash::hash(text.left(lines), QCryptographicHash::Sha256);
    return text.startsWith(mark().toUtf8() + '\n')
           && text.mid(lines) == lastLine(sum).toUtf8() + '\n';
}

Result<> checkRecorded(const QString &path)
{
    if (path == QLatin1String("-"))
        return Fault{path, "a script is saved to a file", "./- is one of that name"};
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0 || status.st_size == 0)
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Fault{path, file.errorString()};
    const QByteArray text = file.readAll();
    if (!text.startsWith(RecordedText::mark().toUtf8() + '\n'))
        return Fault{path, "is there already and is no recorded script", "name another file"};
    if (!RecordedText::isUnchanged(text))
        return Fault{path, "was changed since it was recorded, or not recorded to its end",
                     "name another file, or remove this one"};
    return {};
}

Result<> replaceScript(const QString &path, const QByteArray &text)
{
    QSaveFile file(path);
    // Without a buffer: commit() does not tell that the disk was full for what it had.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !writeAll(file, text)
        || !file.commit())
        return Fault{path, file.errorString()};
    return {};
}

Result<> saveScript(const QString &path, const QStringList &lines)
{
    struct stat status = {};
    const bool isThere = stat(QFile::encodeName(path).constData(), &status) == 0;
    if (isThere && (!S_ISREG(status.st_mode) || isStandardStream(path)))
        return Fault{path, "is no file of its own", "name another file"};
    if (const Result<> checked = checkRecorded(path); !checked)
        return checked;
    QByteArray bytes;
    RecordedText text([&bytes](const QString &line) { bytes += line.toUtf8() + '\n'; });
    for (const QString &line : lines)
        text.add(line);
    text.end();
    return replaceScript(path, bytes);
}

} // namespace till
