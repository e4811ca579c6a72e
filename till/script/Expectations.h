#ifndef TILL_SCRIPT_EXPECTATIONS_H
#define TILL_SCRIPT_EXPECTATIONS_H

#include "till/script/CommandLine.h"

namespace till {

//! The "expect" command: done when what is expected holds; otherwise a mistake that says what is.
class Expectations
{
public:
    //! \a line must outlive this object.
    explicit Expectations(CommandLine &line)
        : m_line(line)
    {
    }

    Outcome check(const QStringList &words);

    //! What can be expected, for a person.
    static QString help();

private:
    using Checker = Outcome (Expectations::*)(const QStringList &words) const;
    struct Row;
    static const QList<Row> &rows();

    Outcome command(Outcome::Kind kind, const QStringList &words) const;

    Outcome position(const QStringList &words) const;
    Outcome positions(const QStringList &words) const;
    Outcome tara(const QStringList &words) const;
    Outcome goods(const QStringList &words) const;
    Outcome records(const QStringList &words) const;
    Outcome total(const QStringList &words) const;
    Outcome message(const QStringList &words) const;
    Outcome question(const QStringList &words) const;
    Outcome log(const QStringList &words) const;
    Outcome state(const QStringList &words) const;
    Outcome control(const QStringList &words) const;

    Register &cashRegister() const { return m_line.cashRegister(); }

    CommandLine &m_line;
};

} // namespace till

#endif // TILL_SCRIPT_EXPECTATIONS_H
