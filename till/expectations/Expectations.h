#ifndef TILL_EXPECTATIONS_EXPECTATIONS_H
#define TILL_EXPECTATIONS_EXPECTATIONS_H

#include "host/Tr.h"
#include "till/expectations/ExpectedForm.h"
#include "till/register/CashDesk.h"

#include <QtCore/QStringList>

#include <functional>
#include <optional>

namespace till {

//! What a command made the till say.
struct Heard
{
    QList<tr::Tr> messages;
    QList<tr::Tr> questions;
    QStringList log;
    int loyalty = 0;          //!< how often the loyalty system was told
    bool lacksAnswer = false; //!< nobody was there to answer the last question
};

//! The "expect" command: done when what is expected holds; otherwise a mistake that says what is.
class Expectations
{
public:
    //! Carries out a command that is expected to end in some way.
    using CarryOut = std::function<Outcome(const QStringList &words)>;

    //! Why a command ended so, for a person.
    using TextOf = std::function<QString(const Outcome &outcome)>;

    //! \a heard is what the last command made the till say. All must outlive this object.
    Expectations(const CashDesk &desk, const Heard &heard, TextOf textOf, CarryOut carryOut)
        : m_desk(desk)
        , m_heard(heard)
        , m_textOf(std::move(textOf))
        , m_carryOut(std::move(carryOut))
    {
    }

    Outcome check(const QStringList &words);

    //! Whether \a words expect some end of a command, which they name.
    static bool isOfCommand(const QStringList &words);

    //! What can be expected, for a person.
    static QString help(const Translator &translator);
    //! The words that can follow "expect".
    static QStringList names();
    //! What can follow "expect" and \a words, which begin with what is no command's end; nothing
    //! where none can.
    static std::optional<ExpectedForm::Next> next(const QStringList &words);

private:
    using Checker = Outcome (Expectations::*)(const QStringList &words) const;
    struct Row;
    static const QList<Row> &rows();

    Outcome command(const QString &end, const QStringList &words) const;

    Outcome position(const QStringList &words) const;
    Outcome positions(const QStringList &words) const;
    Outcome tara(const QStringList &words) const;
    Outcome goods(const QStringList &words) const;
    Outcome records(const QStringList &words) const;
    Outcome total(const QStringList &words) const;
    Outcome message(const QStringList &words) const;
    Outcome question(const QStringList &words) const;
    Outcome loyalty(const QStringList &words) const;
    Outcome log(const QStringList &words) const;
    Outcome state(const QStringList &words) const;
    Outcome control(const QStringList &words) const;

    //! How much the position has, in base units; 0 when there is none.
    double baseOf(int posnum) const;

    const Register &cashRegister() const { return m_desk.cashRegister(); }

    const CashDesk &m_desk;
    const Heard &m_heard;
    const TextOf m_textOf;
    const CarryOut m_carryOut;
};

} // namespace till

#endif // TILL_EXPECTATIONS_EXPECTATIONS_H
