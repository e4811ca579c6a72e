#ifndef TILL_CONSOLE_TELLER_H
#define TILL_CONSOLE_TELLER_H

#include "till/options/ExitStatus.h"
#include "till/options/Options.h"
#include "till/verdicts/Report.h"

#include <QtCore/QFile>

namespace till {

//! Tells how a run of scripts goes and what became of it, in the ways that the options ask for.
class Teller
{
public:
    //! Of a run of the scripts that are the words of \a options, which must outlive this object.
    Teller(const Options &options, const Translator &translator);

    //! Readies what has to be there before the first script is played.
    Result<> begin();

    //! Tells of the next script, and makes the changes in it that it tells of; whether to go on.
    bool tell(Verdict verdict);

    //! Lets go of its file in a process that does not tell.
    void forget() { m_junit.close(); }

    //! Tells of the whole run; how the program ends.
    ExitStatus end();

private:
    void printCourse(const Verdict &verdict) const;
    void printVerdict(const Verdict &verdict) const;
    void print(const QString &text) const;
    Result<> update(const Verdict &verdict) const;
    void announce() const;
    bool goesOn(const Verdict &verdict) const;
    Result<> writeJunit();
    //! Whether somebody has ended the run.
    bool isInterrupted() const;

    const Options &m_options;
    Report m_report;
    QList<Verdict> m_verdicts;
    QFile m_junit;
    const bool m_passes; //!< a line of progress takes the place of the one before
};

} // namespace till

#endif // TILL_CONSOLE_TELLER_H
