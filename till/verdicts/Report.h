#ifndef TILL_VERDICTS_REPORT_H
#define TILL_VERDICTS_REPORT_H

#include "till/language/Translator.h"
#include "till/verdicts/Verdict.h"

#include <utility>

namespace till {

//! What did not hold of a script that did not: its place, command, what was expected and found, a
//! line each; and the script itself where the place is in a file that it includes.
QString rowsOf(const Verdict &verdict, const Translator &translator);

//! What is said of a script without expectations.
QString checksNothing(const Translator &translator);

//! What became of a run of scripts, for people.
class Report
{
public:
    //! Of a run of so many \a scripts.
    Report(qsizetype scripts, Translator translator)
        : m_scripts(scripts)
        , m_translator(std::move(translator))
    {
    }

    void add(const Verdict &verdict);

    //! What did not hold, where and why; which scripts check nothing; and how many there are of
    //! each.
    QString table() const;

    //! How many ended so.
    qsizetype count(Verdict::End end) const { return m_ends[end]; }

    //! The worst end so far.
    Verdict::End worst() const { return m_worst; }

private:
    qsizetype m_scripts;
    Translator m_translator;
    qsizetype m_expectations = 0;
    qsizetype m_ends[Verdict::NotStarted + 1] = {};
    Verdict::End m_worst = Verdict::Held;
    QString m_rows;
};

} // namespace till

#endif // TILL_VERDICTS_REPORT_H
