#include "till/console/Play.h"

#include "till/console/ExitStatus.h"
#include "till/runner/Report.h"
#include "till/terminal/Output.h"

#include <QtCore/QFileInfo>

namespace till {

namespace {

//! Plays \a script on \a desk.
Verdict playOn(CashDesk &desk, const Script &script, const Options &options, Notes &notes,
               const Translator &translator)
{
    const auto show = [&](const QString &text) {
        if (!options.quiet)
            Output(options.style.colour).print(text);
    };
    tellCopy(desk, translator, show);
    CommandLine commands(desk, notes, translator, options.style, {show, {}});
    const auto played = script.play(commands, [&](const QString &line) { show("> " + line); });
    if (!played)
        return {{}, Verdict::Failed, played.error()};
    return {};
}

Verdict playScript(const QString &path, const Options &options, Notes &notes,
                   const Translator &translator)
{
    Script script;
    if (const Result<> read = script.read(path); !read)
        return {path, Verdict::Wrong, {read.error()}};
    Setup setup = options.setup;
    if (!options.ownDatabase)
        setup.database = ":memory:"; // nothing is left behind, however the program ends
    CashDesk desk(setup, notes);
    if (const Result<> started = desk.start(); !started)
        return {path, Verdict::NotStarted, {started.error()}};
    Verdict verdict = playOn(desk, script, options, notes, translator);
    verdict.script = path;
    verdict.expectations = script.expectations();
    return verdict;
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
    const auto progress = [&](const QString &text) {
        if (options.trace != "-")
            Output().print(text);
    };
    const qsizetype count = options.words.size();
    Report report(count);
    for (qsizetype i = 0; i < count; ++i) {
        const QString &file = options.words[i];
        progress(
            QString("[%1/%2] %3").arg(i + 1).arg(count).arg(printable(QFileInfo(file).fileName())));
        const Verdict verdict = playScript(file, options, notes, translator);
        report.add(verdict);
        if (verdict.end != Verdict::Held)
            Output::error(verdict.fault.text());
        if (verdict.end == Verdict::NotStarted)
            return StartFailed;
        if (options.stop && verdict.end != Verdict::Held)
            break;
    }
    progress(report.table());
    static constexpr ExitStatus statuses[] = {AllWell, CommandFailed, StartFailed, StartFailed};
    return statuses[report.worst()];
}

} // namespace till
