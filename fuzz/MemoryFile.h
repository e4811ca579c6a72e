#ifndef FUZZ_MEMORYFILE_H
#define FUZZ_MEMORYFILE_H

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <sys/mman.h>
#include <unistd.h>

namespace fuzz {

//! A file of given bytes that is on no disk, for what reads files by their path.
class MemoryFile
{
public:
    explicit MemoryFile(QByteArrayView bytes)
        : m_descriptor(memfd_create("fuzz", MFD_CLOEXEC))
    {
        m_isWhole = write(m_descriptor, bytes.data(), static_cast<size_t>(bytes.size()))
                    == static_cast<ssize_t>(bytes.size());
    }
    ~MemoryFile() { close(m_descriptor); }
    Q_DISABLE_COPY_MOVE(MemoryFile)

    //! False when the system did not take the bytes.
    bool isWhole() const { return m_isWhole; }
    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor); }

private:
    int m_descriptor;
    bool m_isWhole = false;
};

} // namespace fuzz

#endif // FUZZ_MEMORYFILE_H
