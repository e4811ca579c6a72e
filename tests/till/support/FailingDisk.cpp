#include "tests/till/support/FailingDisk.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <limits>
#include <mutex>
#include <optional>
#include <set>
#include <string>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

struct State
{
    std::string directory;
    qint64 room = std::numeric_limits<qint64>::max();
    std::string fullSuffix;
    bool syncsFail = false;
    bool isReadOnly = false;
    int callsLeft = 0; //!< until the process is killed; 0: it is not
    qint64 written = 0;
    std::set<std::string> unsynced;
};

std::optional<State> state;

//! The file behind \a descriptor when it is on the disk, else empty. The index that SQLite keeps of
//! a log is made anew at need: nothing depends on what is in it.
std::string fileOf(int descriptor)
{
    if (!state)
        return {};
    char target[PATH_MAX];
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t length = readlink(link.c_str(), target, sizeof target);
    const std::string file(target, length > 0 ? static_cast<size_t>(length) : 0);
    const bool counts = file.starts_with(state->directory) && !file.ends_with("-shm");
    return counts ? file : std::string();
}

bool isOnDisk(const char *path)
{
    return state && (std::string(path) + '/').starts_with(state->directory);
}

//! Something is asked of the disk.
void count()
{
    if (state->callsLeft > 0 && --state->callsLeft == 0)
        kill(getpid(), SIGKILL);
}

//! How many of \a size bytes can be written to \a file; -1, with errno set, for none.
ssize_t admit(const std::string &file, size_t size)
{
    const bool isFull = !state->fullSuffix.empty() && file.ends_with(state->fullSuffix);
    const qint64 room = isFull ? 0 : state->room;
    if (room == 0 && size > 0) {
        errno = ENOSPC;
        return -1;
    }
    const auto admitted = std::min(static_cast<qint64>(size), room);
    state->room -= admitted;
    state->written += admitted;
    state->unsynced.insert(file);
    return static_cast<ssize_t>(admitted);
}

ssize_t writeAt(int descriptor, const void *bytes, size_t size, off64_t offset)
{
    const std::string file = fileOf(descriptor);
    if (!file.empty()) {
        count();
        const ssize_t admitted = admit(file, size);
        if (admitted < 0)
            return admitted;
        size = static_cast<size_t>(admitted);
    }
    return syscall(SYS_pwrite64, descriptor, bytes, size, offset);
}

int synchronise(long call, int descriptor)
{
    const std::string file = fileOf(descriptor);
    if (!file.empty())
        count();
    if (!file.empty() && state->syncsFail) {
        errno = EIO;
        return -1;
    }
    if (!file.empty())
        state->unsynced.erase(file);
    return static_cast<int>(syscall(call, descriptor));
}

int openFile(const char *path, int flags, mode_t mode)
{
    const bool writes = (flags & O_ACCMODE) != O_RDONLY;
    if (isOnDisk(path))
        count();
    if (isOnDisk(path) && state->isReadOnly && writes) {
        errno = EROFS;
        return -1;
    }
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

mode_t modeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | __O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

// In place of the C library's, for the program's own symbols come first.
extern "C" {

#define EXPORTED __attribute__((visibility("default")))

EXPORTED ssize_t pwrite64(int descriptor, const void *bytes, size_t size, off64_t offset)
{
    return writeAt(descriptor, bytes, size, offset);
}

EXPORTED ssize_t pwrite(int descriptor, const void *bytes, size_t size, off_t offset)
{
    return writeAt(descriptor, bytes, size, offset);
}

EXPORTED int fsync(int descriptor)
{
    return synchronise(SYS_fsync, descriptor);
}

EXPORTED int fdatasync(int descriptor)
{
    return synchronise(SYS_fdatasync, descriptor);
}

EXPORTED int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openFile(path, flags, mode);
}

EXPORTED int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openFile(path, flags, mode);
}

EXPORTED int unlink(const char *path) noexcept
{
    if (isOnDisk(path))
        count();
    if (isOnDisk(path) && state->isReadOnly) {
        errno = EROFS;
        return -1;
    }
    return static_cast<int>(syscall(SYS_unlinkat, AT_FDCWD, path, 0));
}

EXPORTED int access(const char *path, int mode) noexcept
{
    if (isOnDisk(path) && state->isReadOnly && (mode & W_OK) != 0) {
        errno = EROFS;
        return -1;
    }
    return static_cast<int>(syscall(SYS_faccessat, AT_FDCWD, path, mode));
}

} // extern "C"

FailingDisk::FailingDisk(const QString &directory)
{
    state.emplace();
    state->directory = directory.toStdString() + '/';
}

FailingDisk::~FailingDisk()
{
    state.reset();
}

void FailingDisk::leaveRoomFor(qint64 bytes)
{
    state->room = bytes;
}

void FailingDisk::leaveNoRoomIn(const QString &suffix)
{
    state->fullSuffix = suffix.toStdString();
}

void FailingDisk::failSyncs()
{
    state->syncsFail = true;
}

void FailingDisk::makeReadOnly()
{
    state->isReadOnly = true;
}

void FailingDisk::killProcessAt(int count)
{
    state->callsLeft = count;
}

void FailingDisk::repair()
{
    const State broken = *state;
    state.emplace();
    state->directory = broken.directory;
    state->written = broken.written;
    state->unsynced = broken.unsynced;
}

qint64 FailingDisk::takeWritten()
{
    return std::exchange(state->written, 0);
}

QStringList FailingDisk::unsynced() const
{
    QStringList files;
    for (const std::string &file : state->unsynced)
        files.append(QString::fromStdString(file));
    return files;
}
