#include "till/console/Info.h"
#include "till/console/Interactive.h"
#include "till/course/Trace.h"
#include "till/script/Script.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLoggingCategory>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

#include <cstdio>
#include <unistd.h>

using namespace till;

namespace {

//! Exit statuses, as docs/till.md lists them.
enum ExitStatus : int {
    AllWell = 0,
    CommandFailed = 1, //!< a command or an expectation did not end well
    UsageError = 2,    //!< the program's own arguments are wrong
    StartFailed = 3,   //!< the catalogue, the database, the plugin or another file cannot be used
};

struct Options
{
    Setup setup;
    Style style;
    QString language;
    QString trace;
    QString mode; //!< "", "play", "demo", "info"
    QStringList files;
    bool ownDatabase = false; //!< --db was given: scripts play on it too
    bool quiet = false;
};

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

//! Where files of the delivery are, beside the folder of the program.
QString delivered(const QString &relative)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../" + relative);
}

QString defaultDatabase()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/till.sqlite";
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        "A small cash register that runs whole receipts through the packaging plugin.\n\n"
        "  till                  open the register: type commands ('help' lists them)\n"
        "  till play FILE...     play scripts of the same commands, each on a database of its own\n"
        "  till demo             play the sample shop's receipts\n"
        "  till info             show the plugin: metadata, triggers, events\n\n"
        "Exit status: 0 all well, 1 a command or an expectation failed, 2 wrong usage,\n"
        "3 a file (catalogue, database, plugin, settings, trace) cannot be used.");
    parser.addPositionalArgument("command", "play, demo or info; none opens the register",
                                 "[play FILE... | demo | info]");
    parser.addOptions({
        {"db", "Keep receipts in FILE (:memory: for nowhere).", "FILE", defaultDatabase()},
        {"catalogue", "Take the articles from the CSV FILE.", "FILE",
         delivered("share/packagingcontrol/catalogue.csv")},
        {"plugin", "Load the plugin FILE.", "FILE",
         delivered(QStringLiteral(TILL_PLUGIN_DIR "/PackagingControl.so"))},
        {"no-plugin", "Work without a plugin."},
        {"config", "Read settings from the INI FILE.", "FILE"},
        {"set", "Set a setting, such as PackagingControl:allowSaleEmptyTara=false.", "KEY=VALUE"},
        {"lang", "Language of messages: " + Translator::languages().join(", ") + ".", "LANGUAGE",
         "ru"},
        {"trace", "Write what happens to FILE as lines of JSON (- for standard output).", "FILE"},
        {"colour", "Colours: auto, always or never.", "WHEN", "auto"},
        {"quiet", "Print progress only, not the receipts' course."},
    });
    parser.addOption({{"h", "help"}, "Show this help."});
    parser.addVersionOption();
}

//! Reads the settings of --set; what is wrong with the first that is no KEY=VALUE.
QString readSettings(const QStringList &assignments, QMap<QString, QString> &settings)
{
    for (const QString &assignment : assignments) {
        const qsizetype equals = assignment.indexOf('=');
        if (equals <= 0)
            return "--set: \"" + assignment + "\" is not KEY=VALUE";
        settings.insert(assignment.left(equals), assignment.mid(equals + 1));
    }
    return {};
}

bool wantsColour(const QString &when)
{
    return when == "always" || (when == "auto" && isatty(STDOUT_FILENO) != 0);
}

//! Fills \a options from the command line. Empty text or what is wrong with it.
QString readOptions(const QCommandLineParser &parser, Options &options)
{
    const QStringList words = parser.positionalArguments();
    options.mode = words.value(0);
    options.files = words.mid(1);
    if (!QStringList{"", "play", "demo", "info"}.contains(options.mode))
        return "no command \"" + options.mode + "\"; try --help";
    if (options.mode == "play" && options.files.isEmpty())
        return "play: which file?";
    if (options.mode != "play" && !options.files.isEmpty())
        return "\"" + options.files[0] + "\" is one word too many";
    options.language = parser.value("lang");
    if (!Translator::isKnown(options.language))
        return "--lang: \"" + options.language
               + "\" is none of: " + Translator::languages().join(", ");
    if (!QStringList{"auto", "always", "never"}.contains(parser.value("colour")))
        return "--colour: \"" + parser.value("colour") + "\" is none of: auto, always, never";
    options.style.colour = wantsColour(parser.value("colour"));
    options.trace = parser.value("trace");
    options.quiet = parser.isSet("quiet");
    options.ownDatabase = parser.isSet("db");
    options.setup = {parser.value("db"),
                     parser.value("catalogue"),
                     parser.isSet("no-plugin") ? QString() : parser.value("plugin"),
                     parser.value("config"),
                     {}};
    return readSettings(parser.values("set"), options.setup.settings);
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
    for (const QString &file : options.files) {
        progress(QString("[%1/%2] %3")
                     .arg(++number)
                     .arg(options.files.size())
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
        QDir().mkpath(QFileInfo(options.setup.database).absolutePath());
    CashDesk desk(options.setup, notes);
    if (const QString error = desk.start(); !error.isEmpty())
        return fail(StartFailed, error);
    // A person is always talked to; a reader of the trace finds nothing else beside it.
    const bool quiet = options.quiet && !isTerminal();
    const auto show = [quiet](const QString &text) {
        if (!quiet)
            print(text);
    };
    CommandLine commands(
        desk, notes, translator, options.style,
        {show, isTerminal() ? askOnTerminal : std::function<bool(const QString &)>()});
    const QString receipt = commands.renderReceipt();
    if (!receipt.isEmpty())
        show(receipt);
    const QString history = QFileInfo(defaultDatabase()).path() + "/history";
    return runInteractive(commands, history, show) ? AllWell : CommandFailed;
}

int run(const Options &options, Notes &notes)
{
    const Translator translator(options.language);
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
    describe(parser);
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
        options.files = demoScripts();
        if (options.files.isEmpty())
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
