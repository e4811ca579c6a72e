#ifndef TILL_COURSE_NOTES_H
#define TILL_COURSE_NOTES_H

#include <QtCore/QJsonObject>
#include <QtCore/QMultiMap>

#include <functional>

namespace till {

/*!
 * What happens in the register, told as it happens: to the trace, to the journal, to the screen.
 *
 * A note is a JSON object with "kind" and "depth" (0 for what a command does itself, one more for
 * all that happens inside) and the fields of its kind, as docs/trace.md lists them.
 */
class Notes
{
public:
    using Listener = std::function<void(const QJsonObject &note)>;

    //! From now on \a listener hears every note, until \a owner is forgotten. It must not add
    //! notes.
    void listen(const void *owner, Listener listener) { m_listeners.insert(owner, listener); }
    void forget(const void *owner) { m_listeners.remove(owner); }

    //! Tells a note of \a kind.
    void add(const char *kind, QJsonObject fields);

    int depth() const { return m_depth; }

    //! Whether the costly notes are wanted too: positions and plugin data, as the trace has them.
    bool wantsStates() const { return m_wantsStates; }
    void setWantsStates(bool wants) { m_wantsStates = wants; }

    //! While it lives, notes are one level deeper.
    class Nesting
    {
    public:
        explicit Nesting(Notes &notes)
            : m_notes(notes)
        {
            ++m_notes.m_depth;
        }
        ~Nesting() { --m_notes.m_depth; }
        Q_DISABLE_COPY_MOVE(Nesting)

    private:
        Notes &m_notes;
    };

private:
    QMultiMap<const void *, Listener> m_listeners;
    int m_depth = 0;
    bool m_wantsStates = false;
};

} // namespace till

#endif // TILL_COURSE_NOTES_H
