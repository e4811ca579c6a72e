#ifndef TILL_COURSE_NOTES_H
#define TILL_COURSE_NOTES_H

#include "till/course/Observers.h"

#include <QtCore/QJsonObject>

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
    using Observer = Observers<const QJsonObject &>::Observer;

    //! What an observer hears.
    enum class Of {
        Course,         //!< what happens
        CourseAndStates //!< also what it led to: positions, plugin data, the receipt; they cost
    };

    //! From now on \a observer hears every note of what it asks for. It must not add notes.
    [[nodiscard]] Subscription subscribe(Observer observer, Of of = Of::Course);

    //! Tells a note of \a kind of what happens.
    void add(const char *kind, QJsonObject fields);
    //! Tells one of a state. It is not worth putting together unless `wantsStates()`.
    void addState(const char *kind, QJsonObject fields);

    //! Whether anyone wants states.
    bool wantsStates() const { return !m_ofStates.isEmpty(); }

    int depth() const { return m_depth; }

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
    void tell(const Observers<const QJsonObject &> &observers, const char *kind,
              QJsonObject &fields) const;

    Observers<const QJsonObject &> m_ofCourse;
    Observers<const QJsonObject &> m_ofStates;
    int m_depth = 0;
};

} // namespace till

#endif // TILL_COURSE_NOTES_H
