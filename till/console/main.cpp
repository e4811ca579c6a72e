#include "till/console/Commit.h"
#include "till/console/Manual.h"
#include "till/console/Play.h"
#include "till/console/TraceFile.h"
#include "till/course/Trace.h"
#include "till/lookup/Findings.h"
#include "till/lookup/FromTrace.h"
#include "till/lookup/Info.h"
#include "till/lookup/Lookup.h"
#include "till/options/ExitStatus.h"
#include "till/options/Options.h"
#include "till/recorder/Recording.h"
#include "till/runner/ScriptFiles.h"
#include "till/terminal/Interactive.h"
#include "till/terminal/Output.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>

#include <clocale>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <langinfo.h>
#include <unistd.h>

using namespace till;

namespace {

bool hasUtf8Locale = true; // asked before Qt sets another one

int fail(ExitStatus status, const QString &text)
{
    Output::error(text);
    return status;
}

QString withoutPeriod(const QString &text)
{
    return text.endsWith('.') ? text.chopped(1) : text;
}

int info(const Options &options)
{
    const Result<QString> text = describePlugin(options.setup);
    if (!text)
        return fail(StartFailed, text.error().text());
    Output().print(*text);
    return AllWell;
}

int openRegister(const Options &options, Notes &notes, const Translator &translator)
{
    prepareFolder(options.setup.database);
    CashDesk desk(options.setup, notes);
    if (const Result<> started = desk.start(); !started)
        return fail(StartFailed, started.error().text());
    // A person is always talked to; a reader of the trace finds nothing else beside it.
    const bool quiet = options.quiet && !isTerminal();
    const Output output(options.style.colour);
    const auto show = [&](const QString &text) {
        if (!quiet)
            output.print(text);
    };
    tellCopy(desk, translator, show);
    if (isTerminal() && !hasUtf8Locale)
        show(translator.text(
            told("till", "The locale is not UTF-8: texts are written in UTF-8 all the same")));
    const auto ask = [&](const QString &question, const CommandLine::Choices &choices) {
        output.print(question);
        return askOnTerminal(translator, choices);
    };
    CommandLine commands(desk, notes, translator, options.style,
                         {show, isTerminal() ? ask : decltype(CommandLine::Person::ask)()});
    const QString receipt = quiet ? QString() : commands.renderReceipt();
    if (!receipt.isEmpty())
        show(receipt);
    return runInteractive(commands, translator, historyFile(), show) ? AllWell : CommandFailed;
}

//! The same, recorded if the options ask for it.
int openRecorded(const Options &options, Notes &notes, const Translator &translator)
{
    if (options.record.isEmpty())
        return openRegister(options, notes, translator);
    const QStringList inUse = filesInUse(options) + QStringList{options.trace};
    if (const Result<> checked = checkRecordFile(options.record, inUse); !checked)
        return fail(UsageError, checked.error().text());
    const auto recording = Recording::start(notes, options.record);
    if (!recording)
        return fail(StartFailed, recording.error().text());
    const int status = openRegister(options, notes, translator);
    if (const Result<> written = (*recording)->finish(); !written)
        return fail(StartFailed, written.error().text());
    const Recorder &recorder = (*recording)->recorder();
    const QString report = translator.text(recorder.report(options.record));
    if (!recorder.unsaid().isEmpty())
        return fail(CommandFailed, report);
    if (!options.quiet)
        Output().print(report);
    return status;
}

//! Prints the script of a trace, once all of that was read.
int fromTrace(const QString &path, const Translator &translator)
{
    QString script;
    RecordedText text([&script](const QString &line) { script += line + '\n'; });
    Recorder recorder([&text](const QString &line) { text.add(line); });
    if (const Result<> read = readTrace(path, recorder); !read)
        return fail(StartFailed, read.error().text());
    text.end();
    Output().print(script);
    return recorder.unsaid().isEmpty()
               ? AllWell
               : fail(CommandFailed, translator.text(recorder.report(path)));
}

int upkeep(const Options &options, const Translator &translator)
{
    const QString &database = options.setup.database;
    const QString word = options.words.value(0);
    const Result<Finding, Failure> found =
        options.mode == "check"    ? checkStored(database)
        : options.mode == "backup" ? backUpStored(database, word)
                                   : setApartStored(database, word, translator, options.style);
    if (!found)
        return fail(found.error().status, found.error().fault.text());
    Output(options.style.colour).print(found->text);
    return found->status;
}

QString version()
{
    return QString("%1 (%2, Qt %3)")
        .arg(TILL_VERSION, *commit != 0 ? QString("commit ") + commit : "no commit known",
             qVersion());
}

int run(const Options &options, Notes &notes)
{
    const Translator translator(options.language);
    if (QStringList{"check", "backup", "set-apart"}.contains(options.mode))
        return upkeep(options, translator);
    if (QStringList{"receipts", "receipt", "journal"}.contains(options.mode))
        return lookUp(options, translator);
    if (options.mode == "info")
        return info(options);
    if (options.mode == "from-trace")
        return fromTrace(options.words[0], translator);
    if (options.mode == "play" || options.mode == "demo")
        return play(options, notes, translator);
    return openRecorded(options, notes, translator);
}

//! What the options ask for, with a trace if they do.
int runTraced(Options &options)
{
    if (options.mode == "demo")
        options.words = QStringList{delivered("share/packagingcontrol/scripts")};
    if (options.mode == "demo" || options.mode == "play") {
        const Result<ScriptFiles> found = scriptsAt(options.words);
        if (!found)
            return fail(StartFailed, found.error().text());
        options.words = found->scripts;
        options.scriptFaults = found->faults;
    }
    if (!options.junit.isEmpty()) {
        const QStringList inUse = filesInUse(options) + QStringList{options.trace};
        if (const Result<> checked = checkJunitFile(options.junit, inUse); !checked)
            return fail(UsageError, checked.error().text());
    }
    Notes notes;
    std::unique_ptr<Trace> trace;
    if (!options.trace.isEmpty()) {
        if (const Result<> checked = checkTraceFile(options.trace, filesInUse(options));
            options.trace != "-" && !checked)
            return fail(UsageError, checked.error().text());
        auto started = Trace::start(notes, options.trace);
        if (!started)
            return fail(StartFailed, started.error().text());
        trace = std::move(*started);
        std::signal(SIGPIPE, SIG_IGN); // a reader that goes away does not stop the till
        options.quiet = options.quiet || options.isSilent();
    }
    const int status = run(options, notes);
    const Result<> traced = trace ? trace->written() : Result<>();
    if (traced)
        return status;
    Output::error(traced.error().text());
    return status == AllWell ? StartFailed : status;
}

//! Puts something in the place of a standard stream that is closed, where no other file is to get
//! its number: reading and writing there fails as it would.
void holdStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0)
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

//! What the arguments ask for.
int runArguments(const QStringList &arguments)
{
    QCommandLineParser parser;
    describeOptions(parser);
    if (!parser.parse(arguments))
        return fail(UsageError, withoutPeriod(parser.errorText()) + "; try --help");
    if (parser.isSet("manual")) {
        Output().print(manualPage());
        return AllWell;
    }
    if (parser.isSet("version") || parser.isSet("help")) {
        Output().print(parser.isSet("help") ? parser.helpText() : "till " + version());
        return AllWell;
    }
    Options options;
    if (const Result<> read = readOptions(parser, options); !read)
        return fail(UsageError, read.error().text());
    return runTraced(options);
}

} // namespace

int main(int argc, char *argv[])
{
    holdStandardStreams();
    std::setlocale(LC_CTYPE, "");
    hasUtf8Locale = std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
    if (!hasUtf8Locale) // Qt and the line editing take a sign for a sign then, not for bytes
        qputenv("LC_ALL", "C.UTF-8");
    std::signal(SIGXFSZ, SIG_IGN); // the write that is too long fails instead, and is told
    Output::installMessageHandler();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("till");
    QCoreApplication::setApplicationVersion(TILL_VERSION);
    // The plugin's lines are shown by the till's own commands; QT_LOGGING_RULES can have them
    // anyway.
    QLoggingCategory::setFilterRules("packaging=false");

    const int status = runArguments(QCoreApplication::arguments());
    const Result<> written = Output::written();
    return status == AllWell && !written ? fail(StartFailed, written.error().text()) : status;
}
