// What each command of the script's own does, given the words behind its name.

#include "till/script/CommandLine.h"

#include "till/recorder/ScriptFile.h"
#include "till/words/Words.h"

#include <utility>

namespace till {

Outcome CommandLine::queueAnswer(const QStringList &words)
{
    for (const QString &word : words) {
        if (const QString answer = word.toLower(); answer != "yes" && answer != "no")
            return notOneOf(word, {"yes", "no"});
    }
    for (const QString &word : words)
        m_answers.append(word.toLower() == "yes");
    return Outcome::done();
}

Outcome CommandLine::showReceipt(const QStringList &words)
{
    Q_UNUSED(words)
    if (!cashRegister().receipt())
        return Outcome::mistake(told("till", "no receipt was opened"));
    m_person.print(renderReceipt());
    return Outcome::done();
}

Outcome CommandLine::articles(const QStringList &words)
{
    const auto found = m_desk.catalogue().containing(words.value(0));
    for (const auto &article : found) {
        const ArticleData &data = article->data;
        const QString code = printable(data.code);
        const bool hasOwnLine = displayWidth(code) > m_view.columns() / 2;
        const QString beginning = leftAligned(hasOwnLine ? QString() : code, 10) + ' ';
        const QString rest = rightAligned(toText(data.price), 10) + ' ' + printable(data.name);
        print((hasOwnLine ? code + '\n' : QString()) + elided(beginning + rest, m_view.columns()));
    }
    if (found.isEmpty())
        print(m_translator.text(
            told("till", "No article contains \"%1\"").with({brief(words.value(0))})));
    return Outcome::done();
}

Outcome CommandLine::log(const QStringList &words)
{
    Q_UNUSED(words)
    for (const QString &line : std::as_const(m_heard.log))
        print("  " + line);
    return Outcome::done();
}

Outcome CommandLine::say(const QStringList &words)
{
    print("\n" + words.join(' '));
    return Outcome::done();
}

Outcome CommandLine::set(const QStringList &words)
{
    if (words.isEmpty()) {
        print(m_desk.settings().join('\n'));
        return Outcome::done();
    }
    if (words.size() == 1)
        return wrongWords({"set", told("till", "[KEY VALUE]"), {}, 0, 0});
    if (const auto checked = checkSetting(words[0], words[1]); !checked)
        return Outcome::mistake(checked.error());
    const Result<> isSet = m_desk.set(words[0], words[1]);
    return isSet ? Outcome::done()
                 : Outcome::failed(told("till", "The till could not be switched on"),
                                   isSet.error().text());
}

Outcome CommandLine::restart(const QStringList &words)
{
    Q_UNUSED(words)
    Result<> restarted = m_desk.stop();
    if (restarted)
        restarted = m_desk.start();
    return restarted ? Outcome::done()
                     : Outcome::failed(told("till", "The till could not be switched on"),
                                       restarted.error().text());
}

Outcome CommandLine::expect(const QStringList &words)
{
    return Expectations(
               m_desk, m_heard, [this](const Outcome &outcome) { return textOf(outcome); },
               [this](const QStringList &expected) {
                   return runWords(expected, joinWords(expected));
               })
        .check(words);
}

Outcome CommandLine::save(const QStringList &words)
{
    if (!m_course || m_course->isEmpty())
        return Outcome::mistake(
            told("till", "no receipt was opened since the till was started: nothing to save"));
    QStringList lines;
    Recorder recorder([&lines](const QString &line) { lines.append(line); });
    m_course->tell(recorder);
    recorder.finish();
    if (const Result<> saved = saveScript(words[0], lines); !saved)
        return Outcome::failed(told("till", "The script could not be saved"), saved.error().text());
    if (!recorder.unsaid().isEmpty())
        return {Outcome::Failed, recorder.report(words[0]), {}};
    print(m_translator.text(recorder.report(words[0])));
    return Outcome::done();
}

//! A script is read with what it includes.
Outcome CommandLine::include(const QStringList &words)
{
    Q_UNUSED(words)
    return Outcome::mistake(told("till", "'include' stands in a script, in a line of its own"));
}

Outcome CommandLine::quit(const QStringList &words)
{
    Q_UNUSED(words)
    m_hasQuit = true;
    return Outcome::done();
}

} // namespace till
