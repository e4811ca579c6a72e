#ifndef TILL_RUNNER_SHAREDTEXT_H
#define TILL_RUNNER_SHAREDTEXT_H

#include <QtCore/QByteArray>

namespace till {

//! Memory that this process has in common with those that are forked from it, for one text at a
//! time.
class SharedText
{
public:
    SharedText();
    ~SharedText();
    Q_DISABLE_COPY_MOVE(SharedText)

    //! Whether it could be made; `errno` said why not.
    bool isThere() const { return m_memory != nullptr; }

    //! Puts \a text in the place of the one before, which is there until all of it is written.
    //! False when it is too long.
    bool write(const QByteArray &text) const;
    //! The text that was written last; empty when none was.
    QByteArray text() const;

private:
    struct Memory;

    Memory *m_memory;
};

} // namespace till

#endif // TILL_RUNNER_SHAREDTEXT_H
