#include "till/runner/MemoryFile.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace till {

namespace {

// The system takes what reaches beyond the end in pieces, not byte by byte, so the file is larger
// than what is kept of it.
constexpr qint64 room = MemoryFile::kept + (4 << 20);

//! Lets only so much be written to \a handle, or closes it where that cannot be.
int limited(int handle)
{
    if (handle < 0)
        return handle;
    const bool hasRoom = ftruncate(handle, room) == 0;
    if (hasRoom ? fcntl(handle, F_ADD_SEALS, F_SEAL_GROW) == 0
                : errno == EFBIG) // the process itself has a lower limit
        return handle;
    const int reason = errno;
    ::close(handle);
    errno = reason;
    return -1;
}

} // namespace

MemoryFile::MemoryFile()
    : m_handle(limited(memfd_create("till", MFD_CLOEXEC | MFD_ALLOW_SEALING)))
{
}

MemoryFile::~MemoryFile()
{
    close();
}

void MemoryFile::close()
{
    if (m_handle >= 0)
        ::close(m_handle);
    m_handle = -1;
}

//! Whoever inherited it goes on where the one before has stopped.
qint64 MemoryFile::written() const
{
    return lseek(m_handle, 0, SEEK_CUR);
}

bool MemoryFile::isCut() const
{
    return written() > kept;
}

QByteArray MemoryFile::contents() const
{
    QByteArray bytes(std::clamp<qint64>(written(), 0, kept), '\0');
    qsizetype done = 0;
    for (ssize_t more = 1; more > 0 && done < bytes.size(); done += more)
        more =
            std::max<ssize_t>(0, pread(m_handle, bytes.data() + done, bytes.size() - done, done));
    bytes.truncate(done);
    return bytes;
}

} // namespace till
