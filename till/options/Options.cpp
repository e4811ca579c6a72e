#include "till/options/Options.h"

#include "till/options/OptionMeaning.h"
#include "till/terminal/Output.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMap>
#include <QtCore/QStandardPaths>

#include <unistd.h>

namespace till {

namespace {

//! What is wrong with a word that says nothing: "" would else mean that there is none.
Result<> checkEmpty(const QCommandLineParser &parser, const QStringList &words)
{
    for (const QString name : {"trace", "record", "junit"}) {
        if (parser.isSet(name) && parser.value(name).isEmpty())
            return Fault{"--" + name, "no file is named"};
    }
    if (words.contains(QString()))
        return Fault{{}, "a word is empty"};
    return {};
}

//! What is wrong with options that do not go together, or not with \a mode.
Result<> checkTogether(const QCommandLineParser &parser, const QString &mode)
{
    if (parser.isSet("trace") && !QStringList{QString(), "play", "demo"}.contains(mode))
        return Fault{"--trace", '"' + mode + "\" writes none"};
    if (parser.isSet("no-plugin") && mode == "info")
        return Fault{"--no-plugin", "\"info\" tells of a plugin"};
    return {};
}

//! Reads the whole number of an option, if it is given: at least 1, at most 86400.
Result<> readCount(const QCommandLineParser &parser, const QString &option, int &count)
{
    constexpr int most = 86400;
    bool isNumber = false;
    count = parser.value(option).toInt(&isNumber);
    if (parser.isSet(option) && (!isNumber || count < 1 || count > most))
        return Fault{"--" + option, '"' + brief(parser.value(option)) + "\" is no number from 1 to "
                                        + QString::number(most)};
    return {};
}

//! How a play is carried out.
Result<> readPlay(const QCommandLineParser &parser, Options &options)
{
    if (Result<> read = readCount(parser, "jobs", options.jobs); !read)
        return read;
    if (Result<> read = readCount(parser, "timeout", options.timeout); !read)
        return read;
    if (options.jobs > 1 && options.playsInTurn())
        return Fault{"--jobs", "scripts that share a database or a trace are played in turn"};
    options.stop = parser.isSet("stop");
    options.junit = parser.value("junit");
    options.tap = parser.isSet("tap");
    options.update = parser.isSet("update");
    if (options.update && options.words.contains("-"))
        return Fault{"--update", "standard input cannot be rewritten"};
    if (options.update && options.trace == "-")
        return Fault{"--update", "standard output is for the trace", "name a file for the trace"};
    if (options.tap && options.trace == "-")
        return Fault{"--tap", "standard output is for the trace"};
    return {};
}

bool wantsColour(const QString &when)
{
    const bool wanted = qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
    return when == "always" || (when == "auto" && wanted && isatty(STDOUT_FILENO) != 0);
}

//! Whether \a words can stand after the command \a mode.
Result<> checkWords(const QString &mode, const QStringList &words)
{
    static const QMap<QString, QString> wanted{
        {"", {}},
        {"play", "which file or folder?"},
        {"demo", {}},
        {"from-trace", "which trace?"},
        {"info", {}},
        {"backup", "to which file?"},
        {"set-apart", "which receipt?"},
        {"check", {}},
        {"receipts", {}},
        {"receipt", "which receipt?"},
        {"journal", "of which receipt?"},
    };
    const auto found = wanted.constFind(mode);
    if (found == wanted.cend())
        return Fault{{}, "no command \"" + brief(mode) + '"', "try --help"};
    if (!found->isEmpty() && words.isEmpty())
        return Fault{mode, *found};
    const qsizetype most = mode == "play" ? words.size() : found->isEmpty() ? 0 : 1;
    if (words.size() > most)
        return Fault{{}, '"' + brief(words[most]) + "\" is one word too many"};
    return {};
}

} // namespace

QString historyFile()
{
    return QFileInfo(defaultDatabase()).path() + "/history";
}

QStringList filesInUse(const Options &options)
{
    QStringList files = options.words
                        + QStringList{options.setup.catalogue, options.setup.plugin,
                                      options.setup.settingsFile, historyFile()};
    for (const char *const companion : {"", "-wal", "-shm", "-lock"})
        files.append(options.setup.database + companion);
    return files;
}

QList<ProgramMode> programModes()
{
    return {
        {"till", "open the register: type commands ('help' lists them)"},
        {"till play PATH...", "play scripts, folders of them, or - for standard input"},
        {"till demo", "play the sample shop's receipts"},
        {"till from-trace TRACE", "print the script of a trace, which expects what it tells"},
        {"till info", "show the plugin: metadata, triggers, events"},
        {"till receipts", "list the receipts of the database, also as JSON or CSV"},
        {"till receipt NUMBER", "show a receipt with its tara"},
        {"till journal NUMBER", "tell the course of a receipt"},
        {"till check", "check the database and every receipt in it"},
        {"till backup FILE", "copy the database, also while a till has it open"},
        {"till set-apart NUMBER", "set a damaged receipt apart, so that another can be opened"},
    };
}

QList<QCommandLineOption> programOptions()
{
    const QList<QCommandLineOption> own{
        {"record", "Write what is done at the register to FILE as a script.", "FILE"},
        {"trace", "Write what happens to FILE as lines of JSON (- for standard output).", "FILE"},
        {{"colour", "color"}, "Colours: auto, always or never.", "WHEN", "auto"},
        {"jobs", "Play so many scripts at a time (default: one a core).", "N", "0"},
        {"timeout", "End the play of a script that takes longer.", "SECONDS", "60"},
        {"junit", "Write what became of a play to FILE as JUnit XML.", "FILE"},
        {"tap", "Print what becomes of a play as TAP, and nothing else."},
        {"update",
         "Rewrite what the played scripts expect to what is found, and show the difference."},
        {"stop", "End a play at the first script that does not hold."},
        {"quiet", "Print progress only, not the receipts' course."},
    };
    const QList<QCommandLineOption> last{
        {{"h", "help"}, "Show this help."},
        {{"v", "version"}, "Show the version."},
    };
    return setupOptions() + QList{languageOption()} + own + lookupOptions() + last;
}

QStringList exitStatuses()
{
    return {
        "all well",
        "a command or an expectation failed, damage was found, or 'set-apart' did not take the "
        "receipt",
        "wrong usage",
        "a file (catalogue, database, plugin, settings, script, trace) or standard output cannot "
        "be used"};
}

void describeOptions(QCommandLineParser &parser)
{
    QString modes;
    for (const ProgramMode &mode : programModes())
        modes += QString("  %1 %2\n").arg(mode.usage, -21).arg(mode.help);
    QString statuses;
    const QStringList meanings = exitStatuses();
    for (qsizetype status = 0; status < meanings.size(); ++status)
        statuses += QString("  %1 %2\n").arg(status).arg(meanings[status]);
    parser.setApplicationDescription(
        "A small cash register that runs whole receipts through the packaging plugin.\n\n" + modes
        + "\nExit status:\n" + statuses);
    parser.addPositionalArgument(
        "command", "one of these; none opens the register",
        "[play PATH... | demo | from-trace TRACE | info | receipts | receipt NUMBER | "
        "journal NUMBER | check | backup FILE | set-apart NUMBER]");
    parser.addOptions(programOptions());
    QCommandLineOption manual("manual");
    manual.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(manual);
}

Result<> readOptions(const QCommandLineParser &parser, Options &options)
{
    const QStringList words = parser.positionalArguments();
    options.mode = words.value(0);
    options.words = words.mid(1);
    const Result<> checked = checkEmpty(parser, words)
                                 .then([&] { return checkWords(options.mode, options.words); })
                                 .then([&] { return checkTogether(parser, options.mode); })
                                 .then([&] { return checkMeaning(parser, options.mode); })
                                 .then([&] { return checkOnce(parser); });
    if (!checked)
        return checked;
    const auto setup = readSetup(parser);
    if (!setup)
        return setup.error();
    options.setup = *setup;
    const auto language = readLanguage(parser);
    if (!language)
        return language.error();
    options.language = *language;
    if (!QStringList{"auto", "always", "never"}.contains(parser.value("colour")))
        return Fault{"--colour",
                     '"' + brief(parser.value("colour")) + "\" is none of: auto, always, never"};
    options.style = {wantsColour(parser.value("colour")), Output::columns};
    options.trace = parser.value("trace");
    options.record = parser.value("record");
    if (!options.record.isEmpty() && !options.mode.isEmpty())
        return Fault{"--record", "what is done at the register is recorded, nothing else"};
    options.quiet = parser.isSet("quiet");
    options.ownDatabase = parser.isSet("db");
    if (Result<> read = readPlay(parser, options); !read)
        return read;
    const auto lookup = readLookup(parser);
    if (!lookup)
        return lookup.error();
    options.lookup = *lookup;
    return {};
}

} // namespace till
