#include "till/console/Teller.h"

#include "till/runner/Junit.h"
#include "till/runner/Tap.h"
#include "till/terminal/Output.h"

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

Teller::Teller(const Options &options)
    : m_options(options)
    , m_report(options.words.size())
    , m_junit(options.junit)
    , m_passes(passes(options))
{
}

Result<> Teller::begin()
{
    if (!m_options.junit.isEmpty() && !m_junit.open(QIODevice::WriteOnly))
        return Fault{m_options.junit, m_junit.errorString()};
    if (m_options.tap)
        Output().print(tapPlan(m_options.words.size()));
    announce();
    return {};
}

bool Teller::tell(const Verdict &verdict)
{
    m_report.add(verdict);
    m_verdicts.append(verdict);
    if (verdict.end == Verdict::Held)
        m_verdicts.last().course.clear(); // nobody asks for it any more
    print(verdict);
    if (!goesOn(verdict))
        return false;
    announce();
    return true;
}

void Teller::print(const Verdict &verdict) const
{
    if (m_options.tap)
        Output().print(tapLines(m_verdicts.size(), verdict));
    else if (!verdict.course.isEmpty())
        Output(m_options.style.colour).print(verdict.course);
    if (!verdict.complaints.isEmpty())
        Output::passOn(verdict.complaints);
    if (verdict.end != Verdict::Held)
        Output::error(verdict.fault.text());
}

bool Teller::goesOn(const Verdict &verdict) const
{
    return verdict.end != Verdict::NotStarted && (verdict.end == Verdict::Held || !m_options.stop);
}

ExitStatus Teller::end()
{
    static constexpr ExitStatus statuses[] = {AllWell, CommandFailed, StartFailed, StartFailed};
    if (m_options.tap && m_verdicts.size() < m_options.words.size())
        Output().print(tapEnd(m_verdicts.constLast()));
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
    const QByteArray xml = junit(m_verdicts, m_options.words);
    if (m_junit.write(xml) != xml.size() || !m_junit.flush())
        return Fault{m_options.junit, m_junit.errorString()};
    return {};
}

} // namespace till
