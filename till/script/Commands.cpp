// What each command of the script's own does, given the words behind its name.

#include "till/script/CommandLine.h"

#include "till/script/Words.h"

#include <utility>

namespace till {

Outcome CommandLine::queueAnswer(const QStringList &words)
{
    for (const QString &word : words) {
        if (word != "yes" && word != "no")
            return notOneOf(word, {"yes", "no"});
    }
    for (const QString &word : words)
        m_answers.append(word == "yes");
    return Outcome::done();
}

Outcome CommandLine::showReceipt(const QStringList &words)
{
    Q_UNUSED(words)
    if (!cashRegister().receipt())
        return Outcome::mistake("no receipt was opened");
    m_person.print(renderReceipt());
    return Outcome::done();
}

Outcome CommandLine::articles(const QStringList &words)
{
    const auto found = m_desk.catalogue().containing(words.value(0));
    for (const auto &article : found) {
        const ArticleData &data = article->data;
        print(QString("%1 %2 %3").arg(data.code, -10).arg(toText(data.price), 10).arg(data.name));
    }
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
    const QString error = m_desk.set(words[0], words[1]);
    return error.isEmpty() ? Outcome::done() : Outcome::failed(error);
}

Outcome CommandLine::restart(const QStringList &words)
{
    Q_UNUSED(words)
    m_desk.stop();
    const QString error = m_desk.start();
    return error.isEmpty() ? Outcome::done() : Outcome::failed(error);
}

Outcome CommandLine::expect(const QStringList &words)
{
    return Expectations(m_desk, m_heard, m_translator,
                        [this](const QStringList &expected) {
                            return runWords(expected, expected.join(QLatin1Char(' ')));
                        })
        .check(words);
}

Outcome CommandLine::quit(const QStringList &words)
{
    Q_UNUSED(words)
    m_hasQuit = true;
    return Outcome::done();
}

} // namespace till
