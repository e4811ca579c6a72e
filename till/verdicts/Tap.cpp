#include "till/verdicts/Tap.h"

#include "till/verdicts/Report.h"

namespace till {

QString tapPlan(qsizetype scripts)
{
    return QString("TAP version 13\n1..%1\n").arg(scripts);
}

QString tapComment(const QString &text)
{
    return "# " + text.trimmed().replace('\n', "\n# ") + '\n';
}

QString tapLines(qsizetype number, const Verdict &verdict)
{
    const Translator english(QStringLiteral("en")); // for programs
    const bool held = verdict.end == Verdict::Held;
    const QString name = printable(verdict.script).replace('\\', "\\\\").replace('#', "\\#");
    QString text = QString("%1 %2 - %3\n").arg(held ? "ok" : "not ok").arg(number).arg(name);
    const QString more = held ? verdict.expectations == 0 ? checksNothing(english) : QString()
                              : rowsOf(verdict, english).trimmed();
    if (!more.isEmpty())
        text += tapComment(more);
    return text;
}

QString tapEnd(const Verdict &verdict)
{
    return "Bail out! " + printable(verdict.fault.text()) + '\n';
}

} // namespace till
