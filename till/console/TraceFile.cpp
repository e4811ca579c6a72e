#include "till/console/TraceFile.h"

#include "till/recorder/ScriptFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <sys/stat.h>

namespace till {

namespace {

//! Where a file that is not there yet would be made.
QString placeOf(const QString &path)
{
    constexpr int mostLinks = 40; // as the kernel follows
    QFileInfo file(path);
    for (int i = 0; i < mostLinks && file.isSymLink(); ++i)
        file.setFile(file.symLinkTarget());
    return QDir(file.absolutePath()).canonicalPath() + '/' + file.fileName();
}

bool isSameFile(const QString &one, const QString &other)
{
    struct stat first = {};
    struct stat second = {};
    const bool exists = stat(QFile::encodeName(one).constData(), &first) == 0;
    if (exists != (stat(QFile::encodeName(other).constData(), &second) == 0))
        return false;
    return exists ? first.st_dev == second.st_dev && first.st_ino == second.st_ino
                  : placeOf(one) == placeOf(other);
}

using IsOurs = bool (*)(const QByteArray &firstLine);

bool isTrace(const QByteArray &firstLine)
{
    const QJsonObject first = QJsonDocument::fromJson(firstLine).object();
    return first.value("line") == 1 && first.value("kind").isString();
}

bool isXml(const QByteArray &firstLine)
{
    return firstLine.startsWith("<?xml");
}

//! Whether something is at \a path that would be destroyed: not a pipe or a device like a printer,
//! nor a file of which the first line says that it is ours.
bool isOtherFile(const QString &path, IsOurs isOurs)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return false;
    if (!S_ISREG(status.st_mode))
        return S_ISBLK(status.st_mode);
    QFile file(path);
    if (status.st_size == 0 || !file.open(QIODevice::ReadOnly))
        return false; // nothing to lose, or opening it tells why not
    return !isOurs(file.readLine(65536));
}

//! What speaks against writing to the file \a path that an \a option names.
Result<> checkFile(const QString &option, const QString &path, const QStringList &inUse,
                   IsOurs isOurs, const QString &what)
{
    for (const QString &file : inUse) {
        if (!file.isEmpty() && isSameFile(path, file))
            return Fault{option, path + " is a file that the till uses: " + file};
    }
    if (QFileInfo(path).isFile() && isStandardStream(path))
        return Fault{option, path + " is a standard stream of the till", "name another file"};
    if (isOtherFile(path, isOurs))
        return Fault{option, path + " is there already and is no " + what};
    return {};
}

} // namespace

Result<> checkTraceFile(const QString &path, const QStringList &inUse)
{
    return checkFile("--trace", path, inUse, isTrace, "trace");
}

Result<> checkJunitFile(const QString &path, const QStringList &inUse)
{
    return checkFile("--junit", path, inUse, isXml, "XML");
}

Result<> checkRecordFile(const QString &path, const QStringList &inUse)
{
    const IsOurs any = [](const QByteArray &) { return true; };
    if (const Result<> checked = checkFile("--record", path, inUse, any, "recorded script");
        !checked)
        return checked;
    if (const Result<> checked = checkRecorded(path); !checked)
        return Fault{"--record", path + ' ' + checked.error().reason, checked.error().remedy};
    return {};
}

} // namespace till
