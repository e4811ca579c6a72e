#include "till/console/Play.h"

#include "till/console/ExitStatus.h"
#include "till/runner/PlayApart.h"
#include "till/runner/Report.h"
#include "till/terminal/Output.h"

#include <QtCore/QFileInfo>
#include <QtCore/QThread>

#include <unistd.h>

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
        const auto played = playOn(desk, script);
        return played ? verdict : ended(verdict, Verdict::Failed, played.error());
    }

private:
    static Verdict ended(Verdict verdict, Verdict::End end, const ScriptFault &fault)
    {
        verdict.end = end;
        verdict.fault = fault;
        return verdict;
    }

    Result<void, ScriptFault> playOn(CashDesk &desk, const Script &script) const
    {
        const auto show = [this](const QString &text) {
            if (!m_options.quiet)
                Output(m_options.style.colour).print(text);
        };
        tellCopy(desk, m_translator, show);
        CommandLine commands(desk, m_notes, m_translator, m_options.style, {show, {}});
        return script.play(commands, [&](const QString &line) { show("> " + line); });
    }

    const Options &m_options;
    Notes &m_notes;
    const Translator &m_translator;
};

//! Tells how a run goes, to whoever started it.
class Teller
{
public:
    explicit Teller(const Options &options)
        : m_options(options)
        , m_report(options.words.size())
    {
        announce();
    }

    //! Tells of the next script; whether to go on.
    bool tell(const Verdict &verdict)
    {
        if (!verdict.course.isEmpty())
            Output(m_options.style.colour).print(verdict.course);
        if (!verdict.complaints.isEmpty())
            Output::passOn(verdict.complaints);
        if (verdict.end != Verdict::Held)
            Output::error(verdict.fault.text());
        m_report.add(verdict);
        ++m_told;
        if (m_report.worst() == Verdict::NotStarted
            || (m_options.stop && verdict.end != Verdict::Held))
            return false;
        announce();
        return true;
    }

    ExitStatus end() const
    {
        static constexpr ExitStatus statuses[] = {AllWell, CommandFailed, StartFailed, StartFailed};
        if (m_report.worst() != Verdict::NotStarted)
            progress(m_report.table());
        return statuses[m_report.worst()];
    }

private:
    void progress(const QString &text) const
    {
        if (m_options.trace != "-")
            Output().print(text);
    }

    //! Says which script comes next, if one does.
    void announce() const
    {
        if (m_told == m_options.words.size())
            return;
        const QString next = QString("[%1/%2] %3")
                                 .arg(m_told + 1)
                                 .arg(m_options.words.size())
                                 .arg(printable(QFileInfo(m_options.words[m_told]).fileName()));
        if (m_passes)
            Output::printPassing(elided(next, m_options.style.columns() - 1));
        else
            progress(next);
    }

    const Options &m_options;
    Report m_report;
    qsizetype m_told = 0;
    //! On a terminal where nothing else is to be seen a line takes the place of the one before.
    const bool m_passes = m_options.quiet && m_options.trace != "-" && isatty(STDOUT_FILENO) != 0
                          && qgetenv("TERM") != "dumb";
};

//! Plays each script in a process of its own; for lines as wide as the terminal of this one.
void playApart(Options options, Notes &notes, const Translator &translator, Teller &teller)
{
    static const int columns = options.style.columns();
    options.style.columns = [] { return columns; };
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

} // namespace

void tellCopy(const CashDesk &desk, const Translator &translator,
              const std::function<void(const QString &text)> &show)
{
    if (!desk.copyBefore().isEmpty())
        show(translator.text(
            told("till", "%1: brought to the format of this till; as it was before, it is in %2")
                .with({desk.setup().database, desk.copyBefore()})));
}

int play(const Options &options, Notes &notes, const Translator &translator)
{
    Teller teller(options);
    if (options.trace.isEmpty()) {
        playApart(options, notes, translator, teller);
        return teller.end();
    }
    // What is traced is told to this process.
    const Player player(options, notes, translator);
    for (const QString &script : options.words) {
        if (!teller.tell(player.play(script, {})))
            break;
    }
    return teller.end();
}

} // namespace till
