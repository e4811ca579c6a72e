#include "till/console/Play.h"

#include "till/console/Teller.h"
#include "till/console/Upkeep.h"
#include "till/runner/PlayApart.h"
#include "till/storage/Storage.h"
#include "till/terminal/Output.h"

#include <QtCore/QElapsedTimer>
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
    }

    //! Plays the script \a path; what it reached is told to \a soFar, if that is anybody.
    Verdict play(const QString &path, const Apart::SoFar &soFar) const
    {
        Verdict verdict;
        verdict.script = path;
        Script script;
        if (const Result<> read = script.read(path); !read)
            return ended(verdict, Verdict::Wrong, {read.error()});
        verdict.expectations = script.expectations();
        Setup setup = m_options.setup;
        if (!m_options.ownDatabase)
            setup.database = ":memory:"; // nothing is left behind, however the program ends
        CashDesk desk(setup, m_notes);
        if (const Result<> started = desk.start(); !started)
            return ended(verdict, Verdict::NotStarted, {started.error()});
        const Subscription following = soFar ? followed(m_notes, verdict, soFar) : nullptr;
        ScriptUpdate update(path);
        const auto played = playOn(desk, script, m_options.update ? &update : nullptr);
        if (played)
            return updated(verdict, update);
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

    //! Shows and writes what is noted for an update.
    Verdict updated(const Verdict &verdict, const ScriptUpdate &update) const
    {
        if (update.difference().isEmpty())
            return verdict;
        if (!m_options.isSilent())
            Output().print(update.difference());
        const Result<> written = update.write();
        return written ? verdict : ended(verdict, Verdict::Wrong, {written.error()});
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

    const Options &m_options;
    Notes &m_notes;
    const Translator &m_translator;
};

//! Plays each script in a process of its own; for lines as wide as the terminal of this one.
void playApart(Options options, Notes &notes, const Translator &translator, Teller &teller)
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
    apart.timeout = std::chrono::seconds(options.timeout);
    apart.play = [&player](const QString &script, const Apart::SoFar &soFar) {
        return player.play(script, soFar);
    };
    playApart(options.words, apart,
              [&teller](const Verdict &verdict) { return teller.tell(verdict); });
}

//! Plays all scripts in this process, which is told what is traced.
void playHere(const Options &options, Notes &notes, const Translator &translator, Teller &teller)
{
    const Player player(options, notes, translator);
    for (const QString &script : options.words) {
        QElapsedTimer timer;
        timer.start();
        Verdict verdict = player.play(script, {});
        verdict.seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
        if (!teller.tell(verdict))
            return;
    }
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
    Teller teller(options);
    if (const Result<> begun = teller.begin(); !begun) {
        Output::error(begun.error().text());
        return StartFailed;
    }
    if (options.trace.isEmpty())
        playApart(options, notes, translator, teller);
    else
        playHere(options, notes, translator, teller);
    return teller.end();
}

} // namespace till
