#ifndef TILL_RUNNER_REPORT_H
#define TILL_RUNNER_REPORT_H

#include "till/runner/Verdict.h"

namespace till {

//! How a script ended, for a row of a table.
QString wordOf(Verdict::End end);

//! What did not hold of a script that did not: its place, command, what was expected and found, a
//! line each; and the script itself where the place is in a file that it includes.
QString rowsOf(const Verdict &verdict);

//! What is said of a script without expectations.
QString checksNothing();

//! What became of a run of scripts, for people.
class Report
{
public:
    //! Of a run of so many \a scripts.
    explicit Report(qsizetype scripts)
        : m_scripts(scripts)
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
    qsizetype m_expectations = 0;
    qsizetype m_ends[Verdict::NotStarted + 1] = {};
    Verdict::End m_worst = Verdict::Held;
    QString m_rows;
};

} // namespace till

#endif // TILL_RUNNER_REPORT_H
