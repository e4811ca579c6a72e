#include "till/reports/CourseText.h"

#include "host/Document.h"
#include "host/EActionType.h"
#include "host/EContext.h"
#include "till/goods/Money.h"
#include "till/language/TillMessages.h"
#include "till/language/Translator.h"
#include "till/view/DisplayText.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>

namespace till {

namespace {

QString wordOf(const QJsonValue &value)
{
    return value.isDouble() ? toText(value.toDouble()) : printable(value.toString());
}

QString wordsOf(const char *command, const QJsonArray &values)
{
    QStringList words{QString::fromLatin1(command)};
    for (const auto &value : values)
        words.append(wordOf(value));
    return words.join(QLatin1Char(' '));
}

//! The quantity is named in pieces by the cashier, and in base units by a plugin.
QString changeOf(const QJsonObject &action)
{
    const bool isInPieces = action.contains("count");
    const QString words = wordsOf(
        "qty", {action.value("positionNumber"), action.value(isInPieces ? "count" : "base")});
    return isInPieces ? words : words + QStringLiteral(" (base)");
}

QString attachmentOf(const QJsonObject &action)
{
    return action.contains("order") ? wordsOf("order", {action.value("order")})
                                    : wordsOf("softcheck", {action.value("softCheck")});
}

QString splitOf(const QJsonObject &action)
{
    QJsonArray values = action.value("parts").toArray();
    values.prepend(action.value("positionNumber"));
    return wordsOf("split", values);
}

QString openingOf(const QJsonObject &action)
{
    const int type = action.value("receiptType").toInt();
    return wordsOf("open", {type == Document::Return ? "return" : "sale"});
}

QString closingOf(const QJsonObject &action)
{
    return QStringLiteral("close ") + toText(action.value("tendered").toInteger());
}

//! A course being told.
class Telling
{
public:
    Telling(const Translator &translator, Style style)
        : m_translator(translator)
        , m_page(style)
    {
    }

    void tell(const JournalEntry &entry)
    {
        const QJsonObject note = QJsonDocument::fromJson(entry.json).object();
        if (entry.kind == QLatin1String("command"))
            tellCommand(note.value("text").toString());
        else if (entry.kind == QLatin1String("action"))
            tellAction(entry.depth, actionWords(note));
        else if (entry.kind == QLatin1String("question"))
            write(entry.depth, QStringLiteral("? ") + textOf(note), Paint::Cyan);
        else if (entry.kind == QLatin1String("answer"))
            write(entry.depth, QStringLiteral("→ ") + answerOf(note), Paint::Cyan);
        else if (entry.kind == QLatin1String("message"))
            tellMessage(entry.depth, textOf(note));
        else if (entry.kind == QLatin1String("result"))
            tellEnd(entry.depth + 1, note);
    }

    QString text() const { return m_page.text(); }

private:
    //! Of which the register itself has something to say.
    void tellCommand(const QString &words)
    {
        m_command.clear();
        write(1, words, Paint::Plain);
        m_command = words;
        m_deepest = 2;
    }

    void tellAction(int depth, const QString &words)
    {
        const bool isToldOf = words == std::exchange(m_command, {});
        m_deepest = depth + 1;
        if (!isToldOf)
            write(depth, words, Paint::Plain);
    }

    void tellMessage(int depth, const QString &text)
    {
        m_said = text;
        write(depth, QStringLiteral("! ") + text, Paint::Yellow);
    }

    //! What ended well needs no word, nor does a reason that was just told.
    void tellEnd(int depth, const QJsonObject &note)
    {
        const int result = note.value("result").toInt();
        if (result == EContext::Continue)
            return;
        QString end = m_translator.text(result == EContext::Cancel ? told("till", "declined")
                                                                   : told("till", "refused"));
        if (const QString reason = textOf(note); !reason.isEmpty() && reason != m_said)
            end += QStringLiteral(": ") + reason;
        write(depth, QStringLiteral("✗ ") + end, Paint::Red);
    }

    QString textOf(const QJsonObject &note) const
    {
        return m_translator.text(
            tr::Tr(note.value("key").toString(), note.value("text").toString()));
    }

    QString answerOf(const QJsonObject &note) const
    {
        return m_translator.text(note.value("confirmed").toBool() ? messages::tillYes()
                                                                  : messages::tillNo());
    }

    void write(int depth, const QString &text, Paint paint)
    {
        constexpr int step = 2;
        const int deeper = m_command.isEmpty() ? 0 : 1; // than the command itself
        QList<Piece> words;
        const QStringList split = printable(text).split(QLatin1Char(' '));
        for (const QString &word : split)
            words.append({word, paint});
        m_page.writePieces(words, step * std::max(0, std::min(depth + deeper, m_deepest) - 1));
    }

    const Translator &m_translator;
    TextPage m_page;
    int m_deepest = 1; //!< of what belongs to the last action
    QString m_said;    //!< the last message
    QString m_command; //!< that the register itself has something to say of
};

} // namespace

QString actionWords(const QJsonObject &action)
{
    switch (action.value("type").toInt()) {
    case control::OpenReceipt:
        return openingOf(action);
    case control::AddPosition:
        return wordsOf("add", {action.value("article"), action.value("count")});
    case control::ApplyModifiers:
        return changeOf(action);
    case control::StornoPosition:
        return wordsOf("storno", {action.value("positionNumber")});
    case control::RemovePosition:
        return wordsOf("remove", {action.value("positionNumber")});
    case control::SplitPositions:
        return splitOf(action);
    case control::UnitePositions:
        return wordsOf("unite", action.value("positions").toArray());
    case control::AddSoftCheck:
        return attachmentOf(action);
    case control::Subtotal:
        return QStringLiteral("subtotal");
    case control::Payment:
        return QStringLiteral("pay");
    case control::CloseReceipt:
        return closingOf(action);
    case control::CancelReceipt:
        return QStringLiteral("cancel");
    default:
        return wordsOf("action", {action.value("type")});
    }
}

QString courseText(const QList<JournalEntry> &journal, const Translator &translator, Style style)
{
    Telling telling(translator, style);
    for (const JournalEntry &entry : journal)
        telling.tell(entry);
    return telling.text();
}

} // namespace till
