#include "till/console/Manual.h"

#include "till/options/Options.h"
#include "till/script/CommandLine.h"

#include <QtCore/QCommandLineParser>

namespace till {

namespace {

//! \a text as it is to be read, whatever signs it holds.
QString roff(QString text)
{
    text.replace('\\', QLatin1String("\\e")).replace('-', QLatin1String("\\-"));
    return text.startsWith('.') || text.startsWith('\'') ? "\\&" + text : text;
}

//! An entry of a list: what it is about, and what is said of it.
QString entry(const QString &subject, const QString &text)
{
    return ".TP\n.B " + roff(subject) + '\n' + roff(text) + '\n';
}

QString section(const char *name, const QString &text)
{
    return QStringLiteral(".SH %1\n").arg(name) + text;
}

QString options()
{
    QString text;
    const QList<QCommandLineOption> all = programOptions();
    for (const QCommandLineOption &option : all) {
        QStringList names = option.names();
        for (QString &name : names)
            name.prepend(name.size() == 1 ? "-" : "--");
        text += entry(names.join(", ") + ' ' + option.valueName(), option.description());
    }
    return text;
}

QString modes()
{
    QString text;
    for (const ProgramMode &mode : programModes())
        text += entry(mode.usage, mode.help);
    return text;
}

QString statuses()
{
    QString text;
    const QStringList meanings = exitStatuses();
    for (qsizetype status = 0; status < meanings.size(); ++status)
        text += entry(QString::number(status), meanings[status]);
    return text;
}

QString commands()
{
    const Translator english("en");
    QString text = ".PP\nOne a line, typed or in a script:\n";
    const QList<Usage> all = CommandLine::usages();
    for (const Usage &usage : all)
        text += entry(usage.text(english), english.text(usage.help));
    return text;
}

} // namespace

QString manualPage()
{
    return QStringLiteral(".TH TILL 1 \"\" \"till " TILL_VERSION "\"\n")
           + section("NAME", roff("till - a small cash register with packaging control") + '\n')
           + section("SYNOPSIS", ".B till\n" + roff("[OPTION...] [COMMAND [WORD...]]") + '\n')
           + section("DESCRIPTION", modes()) + section("OPTIONS", options())
           + section("COMMANDS OF THE REGISTER", commands()) + section("EXIT STATUS", statuses())
           + section("SEE ALSO",
                     "till.md, trace.md and reports.md in share/doc/packagingcontrol\n");
}

} // namespace till
