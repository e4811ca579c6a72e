#include "till/console/Teller.h"

#include "till/result/WriteAll.h"
#include "till/terminal/Output.h"
#include "till/verdicts/Junit.h"
#include "till/verdicts/Tap.h"

#include <QtCore/QFileInfo>

#include <unistd.h>

namespace till {

namespace {

//! Whether progress can be shown in one line: on a terminal where nothing else is to be seen.
bool passes(const Options &options)
{
    return options.quiet && !options.isSilent() && isatty(STDOUT_FILENO) != 0
           && qgetenv("TERM") != "dumb";
}

} // namespace

Teller::Teller(const Options &options, const Translator &translator)
    : m_options(options)
    , m_report(options.words.size(), translator)
    , m_junit(options.junit)
    , m_passes(passes(options))
{
}

Result<> Teller::begin()
{
    if (!m_options.junit.isEmpty() && !m_junit.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return Fault{m_options.junit, m_junit.errorString()};
    if (m_options.tap)
        Output().print(tapPlan(m_options.words.size()));
    announce();
    return {};
}

bool Teller::tell(Verdict verdict)
{
    printCourse(verdict);
    if (const Result<> updated = update(verdict); !updated) {
        verdict.end = Verdict::Wrong;
        verdict.fault = {updated.error()};
    }
    m_report.add(verdict);
    m_verdicts.append(verdict);
    if (verdict.end == Verdict::Held)
        m_verdicts.last().course.clear(); // nobody asks for it any more
    printVerdict(verdict);
    if (!goesOn(verdict))
        return false;
    announce();
    return true;
}

void Teller::printCourse(const Verdict &verdict) const
{
    if (!m_options.isSilent() && !verdict.course.isEmpty())
        Output(m_options.style.colour).print(verdict.course);
    const QString difference = differenceOf(verdict.script, verdict.changes);
    if (!difference.isEmpty())
        Output().print(m_options.tap ? tapComment(difference) : difference);
}

//! What could not be shown is not written.
Result<> Teller::update(const Verdict &verdict) const
{
    if (verdict.changes.isEmpty())
        return {};
    if (!Output::written())
        return Fault{verdict.script, "is left as it was, as the difference cannot be shown"};
    return rewrite(verdict.script, verdict.digest, verdict.changes);
}

void Teller::printVerdict(const Verdict &verdict) const
{
    if (m_options.tap)
        Output().print(tapLines(m_verdicts.size(), verdict));
    if (!verdict.complaints.isEmpty())
        Output::passOn(verdict.complaints);
    if (verdict.end != Verdict::Held)
        Output::error(verdict.fault.text());
}

bool Teller::isInterrupted() const
{
    return m_report.count(Verdict::Interrupted) > 0;
}

bool Teller::goesOn(const Verdict &verdict) const
{
    return verdict.end != Verdict::NotStarted && !isInterrupted()
           && (verdict.end == Verdict::Held || !m_options.stop);
}

ExitStatus Teller::end()
{
    static constexpr ExitStatus statuses[] = {AllWell, CommandFailed, CommandFailed, StartFailed,
                                              StartFailed};
    if (m_options.tap && m_verdicts.size() < m_options.words.size())
        Output().print(tapEnd(m_verdicts.isEmpty() ? Verdict() : m_verdicts.constLast()));
    if (m_report.worst() != Verdict::NotStarted)
        print(m_report.table());
    const Result<> written = writeJunit();
    if (!written)
        Output::error(written.error().text());
    return written ? statuses[m_report.worst()] : StartFailed;
}

void Teller::print(const QString &text) const
{
    if (!m_options.isSilent())
        Output(false).print(text);
}

//! Says which script comes next, if one does.
void Teller::announce() const
{
    const qsizetype told = m_verdicts.size();
    if (told == m_options.words.size())
        return;
    const QString name = printable(QFileInfo(m_options.words[told]).fileName());
    const QString next = QString("[%1/%2] %3").arg(told + 1).arg(m_options.words.size()).arg(name);
    if (m_passes)
        Output::printPassing(elided(next, m_options.style.columns() - 1));
    else
        print(next);
}

Result<> Teller::writeJunit()
{
    if (m_options.junit.isEmpty())
        return {};
    return writeAll(m_junit, junit(m_verdicts, m_options.words));
}

} // namespace till
