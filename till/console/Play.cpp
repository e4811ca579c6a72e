#include "till/console/Play.h"

#include "till/console/Teller.h"
#include "till/lookup/Findings.h"
#include "till/runner/PlayApart.h"
#include "till/storage/Storage.h"
#include "till/terminal/Output.h"

#include <QtCore/QThread>

namespace till {

namespace {

//! Tells \a soFar, before each command, the verdict of a play that does not get beyond it.
Subscription followed(Notes &notes, const Verdict &verdict, const Apart::SoFar &soFar)
{
    return notes.subscribe([reached = verdict, soFar](const QJsonObject &note) mutable {
        const QString kind = note.value("kind").toString();
        if (kind == QLatin1String("script"))
            reached.fault.place =
                QString("%1:%2").arg(note.value("file").toString()).arg(note.value("at").toInt());
        if (kind != QLatin1String("command") || note.value("depth").toInt() != 0)
            return;
        reached.fault.command = brief(note.value("text").toString());
        soFar(reached);
    });
}

//! What the scripts of a run are played with.
class Player
{
public:
    Player(const Options &options, Notes &notes, const Translator &translator)
        : m_options(options)
        , m_notes(notes)
        , m_translator(translator)
    {
        if (options.words.contains("-")) // it is there once, and is read before it takes time
            m_input.read = m_input.script.read("-");
    }

    //! Plays the script \a path; what it reached is told to \a soFar.
    Verdict play(const QString &path, const Apart::SoFar &soFar) const
    {
        Verdict verdict;
        verdict.script = path;
        if (const auto fault = m_options.scriptFaults.constFind(path);
            fault != m_options.scriptFaults.cend())
            return ended(verdict, Verdict::Wrong, {{path, *fault}});
        Script script = m_input.script;
        const QByteArray digest = m_options.update ? digestOf(path) : QByteArray();
        const Result<> read = path == "-" ? m_input.read : script.read(path);
        if (!read)
            return ended(verdict, Verdict::Wrong, {read.error()});
        verdict.expectations = script.expectations();
        Setup setup = m_options.setup;
        if (!m_options.ownDatabase)
            setup.database = ":memory:"; // nothing is left behind, however the program ends
        CashDesk desk(setup, m_notes);
        if (const Result<> started = desk.start(); !started)
            return ended(verdict, Verdict::NotStarted, {started.error()});
        const Subscription following = followed(m_notes, verdict, soFar);
        ScriptUpdate update(path);
        const auto played = playOn(desk, script, m_options.update ? &update : nullptr);
        verdict.changes = played ? update.changes() : QList<LineChange>();
        verdict.digest = digest;
        if (played)
            return verdict;
        const Verdict::End end = played.error().isWrong ? Verdict::Wrong : Verdict::Failed;
        return ended(verdict, end, played.error());
    }

private:
    static Verdict ended(Verdict verdict, Verdict::End end, const ScriptFault &fault)
    {
        verdict.end = end;
        verdict.fault = fault;
        return verdict;
    }

    Result<void, ScriptFault> playOn(CashDesk &desk, const Script &script,
                                     ScriptUpdate *update) const
    {
        const auto show = [this](const QString &text) {
            if (!m_options.quiet)
                Output(m_options.style.colour).print(text);
        };
        tellCopy(desk, m_translator, show);
        CommandLine commands(desk, m_notes, m_translator, m_options.style,
                             {show, {}, script.maySave()});
        return script.play(
            commands, [&](const QString &line) { show("> " + line); }, update);
    }

    //! What is on standard input.
    struct Input
    {
        Script script;
        Result<> read;
    };

    const Options &m_options;
    Notes &m_notes;
    const Translator &m_translator;
    Input m_input;
};

//! Plays each script in a process of its own; for lines as wide as the terminal of this one. The
//! signal by which the till was asked to end meanwhile, or 0.
int playApart(Options options, Notes &notes, const Translator &translator, Teller &teller)
{
    static const int columns = options.style.columns();
    options.style.columns = [] { return columns; };
    // SQLite is loaded once for all of them; where it cannot be, each of them says so.
    const bool isReady = Storage::open(":memory:").has_value();
    Q_UNUSED(isReady)
    const Player player(options, notes, translator);
    Apart apart;
    apart.jobs = options.jobs > 0        ? options.jobs
                 : options.playsInTurn() ? 1
                                         : QThread::idealThreadCount();
    apart.translator = translator;
    apart.timeout = std::chrono::seconds(options.timeout);
    apart.play = [&player, &teller](const QString &script, const Apart::SoFar &soFar) {
        teller.forget();
        return player.play(script, soFar);
    };
    return playApart(options.words, apart, [&](const Verdict &verdict) {
        if (verdict.isCutOff) // else its process has noted it
            notes.add("verdict",
                      {{"file", verdict.script}, {"held", false}, {"fault", verdict.fault.text()}});
        return teller.tell(verdict);
    });
}

} // namespace

void tellCopy(const CashDesk &desk, const Translator &translator,
              const std::function<void(const QString &text)> &show)
{
    if (!desk.copyBefore().isEmpty())
        show(translator.text(broughtToFormat(desk.setup().database, desk.copyBefore())));
}

int play(const Options &options, Notes &notes, const Translator &translator)
{
    Teller teller(options, translator);
    if (const Result<> begun = teller.begin(); !begun) {
        Output::error(begun.error().text());
        return StartFailed;
    }
    const int signal = playApart(options, notes, translator, teller);
    const ExitStatus status = teller.end();
    constexpr int endedBySignal = 128; // as shells have it
    return signal == 0 ? status : endedBySignal + signal;
}

} // namespace till
