#ifndef TILL_ACTIONS_FRONT_H
#define TILL_ACTIONS_FRONT_H

#include "till/language/Message.h"

#include <QtCore/QList>

namespace till {

/*!
 * Whoever stands between the register and the cashier: a terminal, a window, the answers of a
 * script.
 *
 * Both calls come in the middle of a command and may run an event loop. Commands that come
 * meanwhile are refused. The texts are copies, to be kept as long as one likes; their language is
 * the front's to choose.
 */
class Front
{
public:
    //! Asks the cashier. True when the confirming choice is taken.
    virtual bool ask(const Question &question) = 0;
    //! Shows a message to the cashier.
    virtual void show(const tr::Tr &message) = 0;

protected:
    ~Front() = default;
};

/*!
 * Where a front is installed: questions and messages go to the one that was installed last. With
 * none there every question is answered no, and messages are lost.
 */
class FrontPlace final : public Front
{
public:
    FrontPlace() = default;
    Q_DISABLE_COPY_MOVE(FrontPlace)

    bool ask(const Question &question) override
    {
        return !m_fronts.isEmpty() && m_fronts.constLast()->ask(question);
    }
    void show(const tr::Tr &message) override
    {
        if (!m_fronts.isEmpty())
            m_fronts.constLast()->show(message);
    }

private:
    friend class InstalledFront;

    QList<Front *> m_fronts;
};

//! Installs a front while it lives; then the one before is back. Also from within a question.
class InstalledFront
{
public:
    //! Both must outlive this object. A \a front is installed once at a time.
    InstalledFront(FrontPlace &place, Front &front)
        : m_place(place)
        , m_front(front)
    {
        m_place.m_fronts.append(&front);
    }
    ~InstalledFront() { m_place.m_fronts.removeOne(&m_front); }
    Q_DISABLE_COPY_MOVE(InstalledFront)

private:
    FrontPlace &m_place;
    Front &m_front;
};

} // namespace till

#endif // TILL_ACTIONS_FRONT_H
