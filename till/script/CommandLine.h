#ifndef TILL_SCRIPT_COMMANDLINE_H
#define TILL_SCRIPT_COMMANDLINE_H

#include "till/expectations/Expectations.h"
#include "till/language/Translator.h"
#include "till/recorder/ReceiptCourse.h"
#include "till/register/CashDesk.h"
#include "till/register/Outcome.h"
#include "till/script/PreparedAnswers.h"
#include "till/view/DisplayText.h"
#include "till/view/ReceiptView.h"
#include "till/words/Usage.h"

#include <QtCore/QStringList>

#include <functional>
#include <optional>

namespace till {

/*!
 * The till's commands, one a line, as a cashier types them and as scripts hold them: words
 * separated by spaces, quoted where they hold spaces. Empty lines and lines that begin with "#" do
 * nothing.
 */
class CommandLine final : private Front
{
public:
    //! The choices of a question, as the cashier reads them.
    struct Choices
    {
        QString confirm;
        QString cancel;
    };

    //! How commands reach a person.
    struct Person
    {
        std::function<void(const QString &text)> print; //!< shows whole lines
        //! Asks a person; empty where nobody can be asked. True takes the confirming choice.
        std::function<bool(const QString &question, const Choices &choices)> ask;
        bool maySave = true; //!< "save" may come; for it the course of a receipt is kept
    };

    //! While a line is carried out this is the front of \a desk. All must outlive this object.
    CommandLine(CashDesk &desk, Notes &notes, const Translator &translator, Style style,
                Person person);
    Q_DISABLE_COPY_MOVE(CommandLine)

    //! Carries out one line. What there is to see is printed; the outcome is the caller's to show.
    //! While a command is under way nothing happens; the outcome is `Outcome::busy()`.
    Outcome run(const QString &line);

    //! Done, or what is wrong at the end of a script: answers that no question took, questions that
    //! found no answer.
    Outcome checkAnswers() const;
    //! How many answers wait for a question.
    qsizetype answersWaiting() const { return m_answers.waiting(); }
    //! How many questions nobody was there to answer.
    qsizetype questionsUnanswered() const { return m_unanswered.size(); }

    //! Where it is told what happens.
    Notes &notes() { return m_notes; }

    //! Whether the last command was "quit".
    bool hasQuit() const { return m_hasQuit; }

    //! Whether the till is on and has a receipt that is neither closed nor cancelled.
    bool hasOpenReceipt() const;

    //! Whether the last line did anything that may have changed the receipt, or which one it is.
    bool hasTouchedReceipt() const { return m_hasTouchedReceipt; }

    //! What there is to say of the \a outcome of the last line, in the language of the cashier and
    //! in one line.
    QString textOf(const Outcome &outcome) const;
    //! Whether the reason of the \a outcome was shown as a message already.
    bool hasShown(const Outcome &outcome) const;

    //! The receipt as a person sees it; empty when none was opened.
    QString renderReceipt() const;

    //! How each command is typed, the register's before the script's own.
    static QList<Usage> usages();

    //! Words that can stand where the last of \a words begins, by the place of it.
    QStringList completions(const QStringList &words) const;

private:
    struct Row;
    static const QList<Row> &ownRows();
    static QStringList commandNames();
    QStringList candidatesFor(const QStringList &words) const;
    QStringList secondWords(const QString &command) const;
    QStringList expectedWords(const QStringList &words) const;
    QStringList articleCodes() const;
    QStringList positionNumbers() const;

    //! Carries out the command \a typed; \a text is how it is told where no register tells it.
    Outcome runWords(const QStringList &typed, const QString &text);
    Outcome carryOut(const QStringList &words, const QString &text);
    Outcome runOwn(const QStringList &words);
    bool ask(const Question &question) override;
    void show(const tr::Tr &message) override;
    void printAnswered(const Question &question, bool answer) const;
    void hear(const QJsonObject &note);

    Outcome queueAnswer(const QStringList &words);
    Outcome showReceipt(const QStringList &words);
    Outcome articles(const QStringList &words);
    Outcome log(const QStringList &words);
    Outcome say(const QStringList &words);
    Outcome set(const QStringList &words);
    Outcome restart(const QStringList &words);
    Outcome expect(const QStringList &words);
    Outcome save(const QStringList &words);
    Outcome include(const QStringList &words);
    Outcome help(const QStringList &words);
    Outcome quit(const QStringList &words);

    Register &cashRegister() { return m_desk.cashRegister(); }
    //! Prints what is no page of the view: nothing in it may steer a terminal.
    void print(const QString &text) const { m_person.print(forTerminal(text)); }

    CashDesk &m_desk;
    Notes &m_notes;
    const Translator &m_translator;
    ReceiptView m_view;
    Person m_person;
    Heard m_heard; //!< since the last command that is no "expect", "answer" or "show"
    PreparedAnswers m_answers;
    std::optional<ReceiptCourse> m_course;
    QStringList m_unanswered; //!< keys of the questions that nobody was there to answer
    Subscription m_notesHeard;
    Subscription m_receiptSeen;
    bool m_hasTouchedReceipt = false;
    bool m_hasQuit = false;
};

} // namespace till

#endif // TILL_SCRIPT_COMMANDLINE_H
