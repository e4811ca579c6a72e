#include "till/runner/Report.h"

#include <algorithm>

namespace till {

namespace {

QString row(const QString &what, const QString &text)
{
    constexpr int width = 10;
    return text.isEmpty() ? QString() : what.leftJustified(width) + printable(text) + '\n';
}

} // namespace

QString wordOf(Verdict::End end)
{
    static const QString words[] = {"held", "failed", "not ended", "wrong", "not begun"};
    return words[end];
}

QString rowsOf(const Verdict &verdict)
{
    const ScriptFault &fault = verdict.fault;
    const bool isElsewhere =
        fault.place != verdict.script && !fault.place.startsWith(verdict.script + ':');
    return row(wordOf(verdict.end), fault.place)
           + row("script", isElsewhere ? verdict.script : QString()) + row("command", fault.command)
           + row("expected", fault.expected)
           + row("found", fault.found.isEmpty() ? fault.reason : fault.found);
}

QString checksNothing()
{
    return "checks nothing, as it expects nothing";
}

void Report::add(const Verdict &verdict)
{
    ++m_ends[verdict.end];
    m_expectations += verdict.expectations;
    m_worst = std::max(m_worst, verdict.end);
    if (verdict.end != Verdict::Held)
        m_rows += rowsOf(verdict) + '\n';
    else if (verdict.expectations == 0)
        m_rows += printable(verdict.script) + ": " + checksNothing() + "\n\n";
}

QString Report::table() const
{
    QString sum = QString("%1 of %2 scripts held").arg(m_ends[Verdict::Held]).arg(m_scripts);
    const auto add = [&sum](qsizetype count, const char *what) {
        if (count > 0)
            sum += QString(", %1 %2").arg(count).arg(what);
    };
    add(m_ends[Verdict::Failed], "failed");
    add(m_ends[Verdict::Wrong], "wrong");
    add(m_ends[Verdict::Interrupted], "interrupted");
    const qsizetype played = m_ends[Verdict::Held] + m_ends[Verdict::Failed]
                             + m_ends[Verdict::Wrong] + m_ends[Verdict::Interrupted];
    add(m_scripts - played, "not played");
    return (m_rows.isEmpty() ? QString() : '\n' + m_rows) + sum
           + "; expectations: " + QString::number(m_expectations);
}

} // namespace till
