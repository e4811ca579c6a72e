#include "contract/Checks.h"
#include "contract/Report.h"
#include "contract/Runner.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <cstdio>

// Ends with 0 when nothing is broken, with 1 when something is, and with 2 for a call that makes no
// sense or a report that cannot be written.

namespace {

using namespace contract;

constexpr int callMistaken = 2;

void print(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
}

int complain(const QString &line)
{
    std::fprintf(stderr, "%s\n", qPrintable(line));
    return callMistaken;
}

//! The checks of that name, or of that subject: "Notifier" stands for all of "Notifier.…".
Checks select(const Checks &all, const QStringList &names)
{
    if (names.isEmpty())
        return all;
    Checks chosen;
    for (const Check &check : all) {
        const QString name = QString::fromLatin1(check.name);
        if (std::any_of(names.cbegin(), names.cend(), [&name](const QString &wanted) {
                return name == wanted || name.startsWith(wanted + QLatin1Char('.'));
            }))
            chosen.append(check);
    }
    return chosen;
}

Results run(const Checks &checks, bool isQuiet, bool showsOutput)
{
    Results results;
    for (const Check &check : checks) {
        results.append({check, runApart(check, showsOutput)});
        if (!isQuiet)
            print(toText(results.constLast()));
    }
    if (!isQuiet)
        print(toSummary(results));
    return results;
}

int list(const Checks &checks)
{
    for (const Check &check : checks)
        print(QStringLiteral("%1: %2").arg(check.name, QString::fromUtf8(check.needed)));
    return EXIT_SUCCESS;
}

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription("Checks the host that this program was built against.");
    parser.addHelpOption();
    parser.addOptions({
        {"list", "Names the checks and what they need, and runs none."},
        {"only", "Runs the checks of that name or subject alone. May be repeated.", "NAME"},
        {"json", "Prints the report as JSON instead of lines."},
        {"junit", "Writes a JUnit report, too.", "FILE"},
        {"plugin", "The plugin's file, to be looked at and run in the host.", "FILE"},
        {"host-output", "Lets through what the host prints while it is checked."},
    });
    parser.process(application);
    if (!parser.positionalArguments().isEmpty())
        return complain(QStringLiteral("not understood: %1").arg(parser.positionalArguments()[0]));
    if (parser.isSet("plugin") && !QFile::exists(parser.value("plugin")))
        return complain(QStringLiteral("there is no %1").arg(parser.value("plugin")));
    if (parser.isSet("plugin"))
        setPluginFile(QFileInfo(parser.value("plugin")).absoluteFilePath());

    const Checks checks = select(allChecks(), parser.values("only"));
    if (checks.isEmpty())
        return complain(QStringLiteral("no check of that name; --list names them"));
    if (parser.isSet("list"))
        return list(checks);
    const bool isJson = parser.isSet("json");
    const Results results = run(checks, isJson, parser.isSet("host-output"));
    if (isJson)
        std::fputs(toJson(results).constData(), stdout);
    if (parser.isSet("junit") && !write(parser.value("junit"), toJUnit(results)))
        return complain(QStringLiteral("%1 cannot be written").arg(parser.value("junit")));
    return count(results, Finding::Broken) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
