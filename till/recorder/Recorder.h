#ifndef TILL_RECORDER_RECORDER_H
#define TILL_RECORDER_RECORDER_H

#include "till/language/Message.h"
#include "till/recorder/ExpectedReceipt.h"

#include <QtCore/QSet>

#include <functional>
#include <optional>

namespace till {

/*!
 * Puts what a register did into the words of a script: each command with the answers that it was
 * given, and behind it, as expectations, what it did. Played on the same articles and the same
 * plugin the script holds.
 *
 * It follows notes (docs/trace.md), of what happens and of states: those of a register while it is
 * on, or those of a trace. So it does not matter where the commands come from. Notes may be
 * anything: what they lack is taken for nothing.
 */
class Recorder
{
public:
    using Write = std::function<void(const QString &line)>;

    //! Each line of the script is given to \a write as soon as it is known.
    explicit Recorder(Write write);

    //! The kinds of notes that it follows.
    static const QSet<QString> &kinds();
    //! What kind of receipt the command opens of which that is the text in a note; nothing when it
    //! is another.
    static std::optional<Document::Type> openedBy(const QString &text);

    void read(const QJsonObject &note);
    //! Ends the script with all that the receipt came to. A command that has not ended is its last.
    void finish();

    int commands() const { return m_commands; }
    //! What no script can say, in English, one text each. It is in the script as a comment, which
    //! will not hold without it.
    QStringList unsaid() const;
    //! What there is to tell of the script, which was written to \a path: what is unsaid, or else
    //! how much is in it.
    Message report(const QString &path) const;

private:
    //! A command that is told of, until it has ended; without a text, a switch between commands.
    struct UnderWay
    {
        QString text;
        QStringList answers;
        QStringList questions; //!< their keys and texts
        QStringList messages;
        QStringList switching; //!< the lines by which a script switches the till off and on again
        bool isSilent = true;  //!< no message was shown, not even one without a key and a text
        bool hasOpened = false;
        int loyalty = 0; //!< how often the loyalty system was told
    };

    //! A command, or what was asked, that is left out.
    struct Unsaid
    {
        Message why;
        QString text;
    };

    void readStart(const QJsonObject &note);
    void begin(const UnderWay &command);
    void readVerdict();
    void readTakeUp(qint64 id);
    void readOutcome(const QString &outcome);

    void tellSwitched(const UnderWay &command);
    void tell(const UnderWay &command, const QString &outcome);
    void tellWhatItDid(const UnderWay &command);
    void tellSaid(const UnderWay &command);
    void tellAnswers(const UnderWay &command);
    void tellEnd();
    bool tellCutOff(const UnderWay &command);
    void tellCommand(const QString &line);
    void expect(const QStringList &texts);
    void leaveOut(const Message &why, const QString &text);

    Write m_write;
    bool m_isOn = false; //!< a till was started
    QJsonObject m_settings;
    QJsonObject m_toldSettings;
    QString m_database;
    bool m_isStrange = false; //!< the receipt was opened elsewhere: no script leads to it
    qint64 m_id = 0;          //!< of the receipt to which the script leads
    ExpectedReceipt m_now;
    ExpectedReceipt m_told; //!< as it was after the command before
    std::optional<UnderWay> m_underWay;
    int m_commands = 0;
    int m_expectations = 0;
    QList<Unsaid> m_unsaid;
};

} // namespace till

#endif // TILL_RECORDER_RECORDER_H
