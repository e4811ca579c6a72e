#ifndef TILL_DATABASE_DATABASEFILE_H
#define TILL_DATABASE_DATABASEFILE_H

#include "till/result/Result.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace till {

//! The name of a database that is in no file.
QString inMemory();

// Both find nothing wrong where nothing is known against it; the place of a fault is the path.

//! Whether a database can be opened or made at \a path.
Result<> checkPlace(const QString &path);
//! Whether a database can be read at \a path.
Result<> checkReadable(const QString &path);

//! Whether the log beside the file holds what the file itself may lack, as after a kill.
bool hasLog(const QString &path);
//! Whether there is a log beside the file, with nothing in it.
bool hasEmptyLog(const QString &path);

//! Whether nothing becomes of the file while it is read: all of it is in it, and its folder, as
//! that of a till that is on, cannot be written.
bool isStill(const QString &path);

//! How SQLite is told of the file.
QString nameOfFile(const QString &path);
//! The same of one that is still: beside that, SQLite makes nothing.
QString nameOfStillFile(const QString &path);

//! Makes an empty file that its owner alone may read and write, whatever the umask. The fault is
//! that there is one already or that none can be made.
Result<> makePrivateFile(const QString &path);
//! Makes the folder and those above it as far as they are missing, for their owner alone, whatever
//! the umask.
Result<> makePrivateFolder(const QString &path);
//! Leaves the database at \a path, with what lies beside it, to its owner alone, as far as it is
//! this user's to say.
void makePrivate(const QString &path);
//! Brings what is written to the file at \a path, and its name, to the medium.
Result<> bringToMedium(const QString &path);

/*!
 * A till's claim on a database: a locked file beside it, which other programs that read the
 * database need not heed. The system ends the lock with the process, however that ends.
 */
class DatabaseLock
{
public:
    DatabaseLock() = default;
    ~DatabaseLock();
    Q_DISABLE_COPY_MOVE(DatabaseLock)

    //! Locks the database at \a path, which must exist. The fault is that another has it locked, or
    //! that the file cannot be made.
    Result<> take(const QString &path);

private:
    QByteArray m_file;
    int m_descriptor = -1;
};

} // namespace till

#endif // TILL_DATABASE_DATABASEFILE_H
