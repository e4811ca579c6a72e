#ifndef TILL_RUNNER_MEMORYFILE_H
#define TILL_RUNNER_MEMORYFILE_H

#include <QtCore/QByteArray>

namespace till {

//! A file in memory, which a child process inherits. It takes only so much: what does not end is
//! not kept to the end.
class MemoryFile
{
public:
    //! How much of what was written is kept, in bytes.
    static constexpr qint64 kept = 8 << 20;

    MemoryFile();
    ~MemoryFile();
    Q_DISABLE_COPY_MOVE(MemoryFile)

    //! Whether it could be made; `errno` said why not.
    bool isOpen() const { return m_handle >= 0; }
    int handle() const { return m_handle; }
    //! Lets go of it in this process.
    void close();

    //! What was written, up to `kept`.
    QByteArray contents() const;
    //! Whether more was written than is kept.
    bool isCut() const;

private:
    qint64 written() const;

    int m_handle;
};

} // namespace till

#endif // TILL_RUNNER_MEMORYFILE_H
