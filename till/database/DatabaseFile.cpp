#include "till/database/DatabaseFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace till {

namespace {

constexpr mode_t ownersFile = 0600;
constexpr mode_t ownersFolder = 0700;

//! The file that \a path leads to, for what lies beside it lies beside that one.
QString realPath(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() ? file.canonicalFilePath() : file.absoluteFilePath();
}

Result<> checkKind(const QString &path)
{
    const QFileInfo file(path);
    if (file.isDir())
        return Fault{path, QStringLiteral("this is a directory, not a database file")};
    if (file.exists() && !file.isFile())
        return Fault{path, QStringLiteral("this is not a regular file")};
    return {};
}

bool hasOtherNames(const QFileInfo &file)
{
    struct stat status = {};
    return stat(QFile::encodeName(file.filePath()).constData(), &status) == 0
           && status.st_nlink > 1;
}

//! The log of a till that opened it by that name would not be found.
Fault otherName(const QString &path)
{
    return {path, QStringLiteral("this file has another name too (a hard link), by which another "
                                 "till could open it at the same time")};
}

Result<> checkFolder(const QString &path)
{
    const QFileInfo folder(QFileInfo(path).absolutePath());
    if (!folder.isDir())
        return Fault{path, QStringLiteral("there is no directory %1").arg(folder.filePath())};
    if (!folder.isWritable())
        return Fault{path,
                     QStringLiteral("the directory %1 may not be written").arg(folder.filePath())};
    return {};
}

//! What `errno` says.
Fault systemFault(const QString &path)
{
    return {path, qt_error_string(errno)};
}

Result<> synchronise(const QString &path, int flags)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (descriptor < 0)
        return systemFault(path);
    const Result<> done = fsync(descriptor) == 0 ? Result<>() : systemFault(path);
    close(descriptor);
    return done;
}

//! Why a database is not locked, by `errno`.
Fault lockFault(const QString &path)
{
    if (errno == EWOULDBLOCK)
        return {path, QStringLiteral("another till has this database open"),
                QStringLiteral("close it, or name another database with --db")};
    return {path, QStringLiteral("the database cannot be opened for writing (%1)")
                      .arg(qt_error_string(errno))};
}

//! The log beside the database.
QFileInfo logOf(const QString &path)
{
    return QFileInfo(realPath(path) + QStringLiteral("-wal"));
}

bool isFolderWritable(const QString &path)
{
    return QFileInfo(logOf(path).absolutePath()).isWritable();
}

} // namespace

QString inMemory()
{
    return QStringLiteral(":memory:");
}

// The file itself is not opened here: to close it would end the locks that this process has on it.
Result<> checkPlace(const QString &path)
{
    if (path.isEmpty())
        return Fault{path, QStringLiteral("no name of a database file was given")};
    if (const Result<> checked = checkKind(path); !checked)
        return checked;
    const QFileInfo file(path);
    if (file.exists() && !file.isWritable())
        return Fault{path, QStringLiteral("this file may not be written")};
    if (hasOtherNames(file))
        return otherName(path);
    if (const Result<> checked = checkFolder(path); !checked)
        return checked;
    // SQLite would take such a file for a new database and delete the log, with the receipts. (A
    // file of one byte is an empty one to it.)
    if (file.size() <= 1 && hasLog(path))
        return Fault{path,
                     QStringLiteral("the database is damaged (empty, but its log %1-wal is not)")
                         .arg(realPath(path))};
    return {};
}

Result<> checkReadable(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return Fault{path, QStringLiteral("there is no such file")};
    if (file.isFile() && hasOtherNames(file))
        return otherName(path);
    if (hasLog(path) && !isFolderWritable(path)) // an index of the log is made beside it
        return Fault{path, QStringLiteral("it is not read with its log %1-wal where nothing may be "
                                          "written: copy both to another directory")
                               .arg(realPath(path))};
    return checkKind(path);
}

bool hasLog(const QString &path)
{
    return logOf(path).size() > 0;
}

bool hasEmptyLog(const QString &path)
{
    return logOf(path).exists() && !hasLog(path);
}

bool isStill(const QString &path)
{
    return !hasLog(path) && !isFolderWritable(path);
}

QString nameOfFile(const QString &path)
{
    // Absolute, for SQLite reads "file:..." as a URI.
    return path == inMemory() ? path : QFileInfo(path).absoluteFilePath();
}

QString nameOfStillFile(const QString &path)
{
    return QString::fromLatin1(QUrl::fromLocalFile(nameOfFile(path)).toEncoded())
           + QStringLiteral("?immutable=1");
}

Result<> makePrivateFile(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(),
                                  O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, ownersFile);
    if (descriptor < 0)
        return systemFault(path);
    // The umask may have taken more away.
    const Result<> done = fchmod(descriptor, ownersFile) == 0 ? Result<>() : systemFault(path);
    close(descriptor);
    return done;
}

Result<> makePrivateFolder(const QString &path)
{
    const QString folder = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (QFileInfo(folder).isDir())
        return {};
    return makePrivateFolder(QFileInfo(folder).path()).then([&]() -> Result<> {
        const QByteArray name = QFile::encodeName(folder);
        if (mkdir(name.constData(), ownersFolder) == 0
            && chmod(name.constData(), ownersFolder) == 0)
            return {};
        return systemFault(folder);
    });
}

void makePrivate(const QString &path)
{
    for (const char *const end : {"", "-wal", "-shm"})
        QFile::setPermissions(realPath(path) + QLatin1String(end),
                              QFile::ReadOwner | QFile::WriteOwner);
}

Result<> bringToMedium(const QString &path)
{
    return synchronise(path, O_RDWR).then([&] {
        return synchronise(QFileInfo(path).absolutePath(), O_RDONLY | O_DIRECTORY);
    });
}

DatabaseLock::~DatabaseLock()
{
    if (m_descriptor < 0)
        return;
    unlink(m_file.constData());
    close(m_descriptor);
}

Result<> DatabaseLock::take(const QString &path)
{
    m_file = QFile::encodeName(realPath(path) + QStringLiteral("-lock"));
    for (;;) {
        const int descriptor = ::open(m_file.constData(), O_RDWR | O_CREAT | O_CLOEXEC, ownersFile);
        if (descriptor < 0)
            return lockFault(path);
        struct stat locked = {};
        struct stat named = {};
        const bool isMine =
            fchmod(descriptor, ownersFile) == 0 && flock(descriptor, LOCK_EX | LOCK_NB) == 0;
        if (!isMine || fstat(descriptor, &locked) != 0) {
            const Fault fault = lockFault(path);
            close(descriptor);
            return fault;
        }
        // The one before may have taken the file away between the two calls: then another would
        // make and lock a new one.
        if (stat(m_file.constData(), &named) == 0 && named.st_ino == locked.st_ino) {
            m_descriptor = descriptor;
            return {};
        }
        close(descriptor);
    }
}

} // namespace till
