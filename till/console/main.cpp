#include "till/console/ExitStatus.h"
#include "till/console/Info.h"
#include "till/console/Interactive.h"
#include "till/console/Options.h"
#include "till/console/Upkeep.h"
#include "till/course/Trace.h"
#include "till/database/DatabaseFile.h"
#include "till/script/Script.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLoggingCategory>
#include <QtCore/QTemporaryDir>

#include <cstdio>

using namespace till;

namespace {

void print(const QString &text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    if (!text.endsWith('\n'))
        std::fputc('\n', stdout);
    std::fflush(stdout);
}

int fail(ExitStatus status, const QString &text)
{
    std::fprintf(stderr, "till: %s\n", text.toUtf8().constData());
    return status;
}

QString withoutPeriod(const QString &text)
{
    return text.endsWith('.') ? text.chopped(1) : text;
}

//! Tells that the database was brought to today's format, if it was.
void tellCopy(const CashDesk &desk, const std::function<void(const QString &text)> &show)
{
    if (!desk.copyBefore().isEmpty())
        show(desk.setup().database
             + ": brought to the format of this till; as it was before, it is in "
             + desk.copyBefore());
}

//! Plays one script. Empty text or what went wrong.
QString playScript(const QString &path, const Options &options, Notes &notes,
                   const Translator &translator, bool &startFailed)
{
    Script script;
    if (const QString error = script.read(path); !error.isEmpty()) {
        startFailed = true;
        return error;
    }
    Setup setup = options.setup;
    const QTemporaryDir scratch;
    if (!options.ownDatabase)
        setup.database = scratch.filePath("till.sqlite");
    CashDesk desk(setup, notes);
    if (const QString error = desk.start(); !error.isEmpty()) {
        startFailed = true;
        return error;
    }
    const auto show = [&](const QString &text) {
        if (!options.quiet)
            print(text);
    };
    tellCopy(desk, show);
    CommandLine commands(desk, notes, translator, options.style, {show, {}});
    return script.play(commands, [&](const QString &line) { show("> " + line); });
}

int play(const Options &options, Notes &notes, const Translator &translator)
{
    const auto progress = [&](const QString &text) {
        if (options.trace != "-")
            print(text);
    };
    qsizetype number = 0;
    for (const QString &file : options.words) {
        progress(QString("[%1/%2] %3")
                     .arg(++number)
                     .arg(options.words.size())
                     .arg(QFileInfo(file).fileName()));
        bool startFailed = false;
        const QString error = playScript(file, options, notes, translator, startFailed);
        if (!error.isEmpty())
            return fail(startFailed ? StartFailed : CommandFailed, error);
    }
    progress(QString("%1 of %1 scripts held").arg(number));
    return AllWell;
}

int info(const Options &options)
{
    QString text;
    const QString error = describePlugin(options.setup, text);
    if (!error.isEmpty())
        return fail(StartFailed, error);
    print(text);
    return AllWell;
}

QString scriptFolder()
{
    return delivered("share/packagingcontrol/scripts");
}

QStringList demoScripts()
{
    const QDir folder(scriptFolder());
    QStringList files;
    const QStringList names = folder.entryList({"*.till"}, QDir::Files, QDir::Name);
    for (const QString &name : names)
        files.append(folder.filePath(name));
    return files;
}

int openRegister(const Options &options, Notes &notes, const Translator &translator)
{
    if (options.setup.database != ":memory:")
        makePrivateFolder(QFileInfo(options.setup.database).absolutePath());
    CashDesk desk(options.setup, notes);
    if (const QString error = desk.start(); !error.isEmpty())
        return fail(StartFailed, error);
    // A person is always talked to; a reader of the trace finds nothing else beside it.
    const bool quiet = options.quiet && !isTerminal();
    const auto show = [quiet](const QString &text) {
        if (!quiet)
            print(text);
    };
    tellCopy(desk, show);
    CommandLine commands(
        desk, notes, translator, options.style,
        {show, isTerminal() ? askOnTerminal : std::function<bool(const QString &)>()});
    const QString receipt = commands.renderReceipt();
    if (!receipt.isEmpty())
        show(receipt);
    const QString history = QFileInfo(defaultDatabase()).path() + "/history";
    return runInteractive(commands, history, show) ? AllWell : CommandFailed;
}

int upkeep(const Options &options, const Translator &translator)
{
    const QString &database = options.setup.database;
    const QString word = options.words.value(0);
    const UpkeepResult result =
        options.mode == "check" ? checkStored(database)
        : options.mode == "backup"
            ? backUpStored(database, word)
            : setApartStored(database, word, ReceiptView(translator, options.style));
    if (result.isError)
        return fail(result.status, result.text);
    print(result.text);
    return result.status;
}

int run(const Options &options, Notes &notes)
{
    const Translator translator(options.language);
    if (QStringList{"check", "backup", "set-apart"}.contains(options.mode))
        return upkeep(options, translator);
    if (options.mode == "info")
        return info(options);
    if (options.mode == "play" || options.mode == "demo")
        return play(options, notes, translator);
    return openRegister(options, notes, translator);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("till");
    QCoreApplication::setApplicationVersion(TILL_VERSION);
    // The plugin's lines are shown by the till's own commands; QT_LOGGING_RULES can have them
    // anyway.
    QLoggingCategory::setFilterRules("packaging=false");

    QCommandLineParser parser;
    describeOptions(parser);
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(UsageError, withoutPeriod(parser.errorText()) + "; try --help");
    if (parser.isSet("version"))
        parser.showVersion();
    if (parser.isSet("help"))
        parser.showHelp(AllWell);
    Options options;
    if (const QString error = readOptions(parser, options); !error.isEmpty())
        return fail(UsageError, error);

    if (options.mode == "demo") {
        options.words = demoScripts();
        if (options.words.isEmpty())
            return fail(StartFailed, scriptFolder() + ": no scripts there");
    }
    Notes notes;
    std::unique_ptr<Trace> trace;
    if (!options.trace.isEmpty()) {
        QString error;
        trace = Trace::start(notes, options.trace, &error);
        if (!trace)
            return fail(StartFailed, error);
        options.quiet = options.quiet || options.trace == "-";
    }
    const int status = run(options, notes);
    if (status == AllWell && trace && !trace->error().isEmpty())
        return fail(StartFailed, trace->error());
    return status;
}
