#ifndef TESTS_TILL_SUPPORT_FAILINGDISK_H
#define TESTS_TILL_SUPPORT_FAILINGDISK_H

#include <QtCore/QString>
#include <QtCore/QStringList>

//! While one lives, the files of a directory are on a disk that can be told to fail. It stands
//! between this process and the kernel, so that it holds for every library and every user.
class FailingDisk
{
public:
    explicit FailingDisk(const QString &directory);
    ~FailingDisk();
    Q_DISABLE_COPY_MOVE(FailingDisk)

    //! The disk has room for so many more bytes.
    void leaveRoomFor(qint64 bytes);
    //! There is no room for writes to files whose names end so; there is for others.
    void leaveNoRoomIn(const QString &suffix);
    //! The disk cannot bring to the medium what was written.
    void failSyncs();
    //! Nothing can be made, removed or opened for writing.
    void makeReadOnly();
    //! Kills this process in front of its \a count-th call of the disk from now on, 1 the next.
    void killProcessAt(int count);
    //! The disk works again.
    void repair();

    //! How many bytes were written since it was last asked.
    qint64 takeWritten();
    //! The files that were written to after they were last brought to the medium.
    QStringList unsynced() const;
};

#endif // TESTS_TILL_SUPPORT_FAILINGDISK_H
