#include "till/verdicts/Report.h"

#include <algorithm>

namespace till {

namespace {

QString row(const QString &what, const QString &text)
{
    constexpr int width = 10;
    return text.isEmpty() ? QString() : what.leftJustified(width) + printable(text) + '\n';
}

Message nameOf(Verdict::End end)
{
    static const Message names[] = {{},
                                    told("till", "failed"),
                                    told("till", "not ended"),
                                    told("till", "wrong"),
                                    told("till", "not begun")};
    return names[end];
}

} // namespace

QString rowsOf(const Verdict &verdict, const Translator &translator)
{
    const ScriptFault &fault = verdict.fault;
    const bool isElsewhere =
        fault.place != verdict.script && !fault.place.startsWith(verdict.script + ':');
    const auto say = [&](const Message &message) { return translator.text(message); };
    return row(say(nameOf(verdict.end)), fault.place)
           + row(say(told("till", "script")), isElsewhere ? verdict.script : QString())
           + row(say(told("till", "command")), fault.command)
           + row(say(told("till", "expected")), fault.expected)
           + row(say(told("till", "found")), fault.found.isEmpty() ? fault.reason : fault.found);
}

QString checksNothing(const Translator &translator)
{
    return translator.text(told("till", "checks nothing, as it expects nothing"));
}

void Report::add(const Verdict &verdict)
{
    ++m_ends[verdict.end];
    m_expectations += verdict.expectations;
    m_worst = std::max(m_worst, verdict.end);
    if (verdict.end != Verdict::Held)
        m_rows += rowsOf(verdict, m_translator) + '\n';
    else if (verdict.expectations == 0)
        m_rows += printable(verdict.script) + ": " + checksNothing(m_translator) + "\n\n";
}

QString Report::table() const
{
    const auto count = [this](const Message &what, qsizetype number) {
        return number == 0 ? QString()
                           : ", " + m_translator.text(what.with({QString::number(number)}));
    };
    const qsizetype played = m_ends[Verdict::Held] + m_ends[Verdict::Failed]
                             + m_ends[Verdict::Wrong] + m_ends[Verdict::Interrupted];
    const Message held =
        told("till", "%1 of %2 scripts held")
            .with({QString::number(m_ends[Verdict::Held]), QString::number(m_scripts)});
    const Message expectations =
        told("till", "expectations: %1").with({QString::number(m_expectations)});
    return (m_rows.isEmpty() ? QString() : '\n' + m_rows) + m_translator.text(held)
           + count(told("till", "%1 failed"), m_ends[Verdict::Failed])
           + count(told("till", "%1 wrong"), m_ends[Verdict::Wrong])
           + count(told("till", "%1 interrupted"), m_ends[Verdict::Interrupted])
           + count(told("till", "%1 not played"), m_scripts - played) + "; "
           + m_translator.text(expectations);
}

} // namespace till
