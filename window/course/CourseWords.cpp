#include "window/course/CourseWords.h"

#include "host/EActivityListener.h"
#include "host/EContext.h"
#include "till/goods/Money.h"
#include "till/language/TillMessages.h"
#include "till/reports/CourseText.h"
#include "till/view/DisplayText.h"
#include "till/view/ReceiptText.h"
#include "window/course/QuotedText.h"
#include "window/course/TaraChanges.h"

#include <QtCore/QFileInfo>

namespace till {

namespace {

QString number(const QJsonObject &note, const char *field)
{
    return QString::number(note[QLatin1String(field)].toInteger());
}

Message eventNamed(const QJsonObject &note)
{
    const QStringList position{number(note, "position")};
    switch (note["code"].toInt()) {
    case EActivityListener::eventPositionAdded:
        return told("till", "event 19: position %1 was added").with(position);
    case EActivityListener::eventPositionStorno:
        return told("till", "event 21: position %1 was stornoed").with(position);
    case EActivityListener::eventModifierApplied:
        return told("till", "event 26: the cashier changed the quantity of position %1")
            .with(position);
    case EActivityListener::eventModifierApplied2:
        return told("till", "event 252: the program changed the quantity of position %1")
            .with(position);
    case EActivityListener::eventError:
        return told("till", "event 29: an error");
    default:
        return told("till", "event %1").with({number(note, "code")});
    }
}

QString commandText(const CourseNode &node, const Translator &)
{
    const QString text = node.main()["text"].toString();
    const QJsonObject &place = node.notes.constFirst();
    if (place["kind"].toString() != "script")
        return text;
    return QStringLiteral("%1 · %2:%3")
        .arg(text, QFileInfo(place["file"].toString()).fileName(), number(place, "at"));
}

QString actionText(const CourseNode &node, const Translator &translator)
{
    const QJsonObject action = node.main();
    const QString words = actionWords(action);
    if (action["origin"].toString() != "program")
        return words;
    return translator.text(told("till", "asked for by the plugin: %1").with({words}));
}

QString triggerText(const CourseNode &node, const Translator &translator)
{
    const QJsonObject trigger = node.main();
    const QString action = actionWords({{"type", trigger["type"]}}).section(QLatin1Char(' '), 0, 0);
    const Message words = trigger["order"].toString() == "before"
                              ? told("till", "trigger before %1, priority %2")
                              : told("till", "trigger after %1, priority %2");
    return translator.text(words.with({action, number(trigger, "priority")}));
}

QString eventText(const CourseNode &node, const Translator &translator)
{
    return translator.text(eventNamed(node.main()));
}

QString logText(const CourseNode &node, const Translator &translator)
{
    return translator.text(told("till", "log: %1").with({node.main()["text"].toString()}));
}

QString questionText(const CourseNode &node, const Translator &translator)
{
    return QStringLiteral("? ") + quotedText(node.main(), translator);
}

QString messageText(const CourseNode &node, const Translator &translator)
{
    return QStringLiteral("! ") + quotedText(node.main(), translator);
}

QString positionText(const CourseNode &node, const Translator &translator)
{
    const QJsonObject line = node.main();
    const QStringList values{number(line, "position"), line["article"].toString(),
                             toText(line["count"].toDouble())};
    return translator.text((line["stornoed"].toBool() ? told("till", "position %1: %2, stornoed")
                                                      : told("till", "position %1: %2 × %3"))
                               .with(values));
}

QString changesText(const QList<Message> &changes, const Translator &translator)
{
    constexpr qsizetype most = 8;
    QStringList texts;
    for (const Message &change : changes.mid(0, most))
        texts.append(translator.text(change));
    if (changes.size() > most)
        texts.append(translator.text(
            told("till", "and %1 more").with({QString::number(changes.size() - most)})));
    return texts.join(QStringLiteral("; "));
}

QString dataText(const CourseNode &node, const Translator &translator)
{
    const QJsonObject data = node.main();
    if (!node.changes.isEmpty())
        return changesText(node.changes, translator);
    return translator.text(
        told("till", "data of %1: %2").with({data["plugin"].toString(), data["key"].toString()}));
}

QString receiptText(const CourseNode &node, const Translator &translator)
{
    const QJsonObject receipt = node.main();
    const auto state = static_cast<ReceiptState>(receipt["state"].toInt());
    return translator.text(told("till", "receipt %1: %2, total %3")
                               .with({number(receipt, "id"), translator.text(nameOf(state)),
                                      toText(Kopecks(receipt["total"].toInteger()))}));
}

QString takeUpText(const CourseNode &node, const Translator &translator)
{
    const QString id = number(node.main(), "id");
    return translator.text(id == "0" ? told("till", "another receipt, or none, is the current one")
                                     : told("till", "receipt %1 is taken up").with({id}));
}

QString switchText(const CourseNode &node, const Translator &translator)
{
    return translator.text(node.main()["on"].toBool()
                               ? told("till", "the document is switched on again")
                               : told("till", "the document is switched off"));
}

QString loyaltyText(const CourseNode &, const Translator &translator)
{
    return translator.text(told("till", "the loyalty system is told"));
}

QString startText(const CourseNode &, const Translator &translator)
{
    return translator.text(told("till", "the till is switched on"));
}

QString scriptText(const CourseNode &node, const Translator &translator)
{
    const QJsonObject script = node.main();
    return translator.text(
        told("till", "script %1, line %2")
            .with({QFileInfo(script["file"].toString()).fileName(), number(script, "at")}));
}

QString verdictText(const CourseNode &node, const Translator &translator)
{
    const QJsonObject verdict = node.main();
    const QString name = QFileInfo(verdict["file"].toString()).fileName();
    return translator.text(verdict["held"].toBool()
                               ? told("till", "script %1 holds").with({name})
                               : told("till", "script %1 does not hold: %2")
                                     .with({name, verdict["fault"].toString()}));
}

QString outcomeText(const CourseNode &node, const Translator &translator)
{
    const QJsonObject outcome = node.end("outcome");
    if (outcome.isEmpty())
        return {};
    static const QHash<QString, Message> ends{
        {"done", told("till", "done")},
        {"refused", told("till", "refused")},
        {"mistake", told("till", "mistake")},
        {"failed", told("till", "not done")},
        {"unexpected", told("till", "not as expected")},
    };
    const bool declined = outcome["by"].toString() == "cashier";
    const QString end = translator.text(declined ? told("till", "declined")
                                                 : ends.value(outcome["outcome"].toString()));
    // What was declined stands with its answer above.
    const QString why = declined ? QString() : quotedText(outcome, translator);
    return why.isEmpty() ? end : end + QStringLiteral(": ") + why;
}

QString resultWord(int result, const Translator &translator)
{
    return translator.text(result == EContext::Continue ? told("till", "carried out")
                           : result == EContext::Cancel ? told("till", "declined")
                                                        : told("till", "refused"));
}

QString resultText(const CourseNode &node, const Translator &translator)
{
    const QJsonObject result = node.end("result");
    if (result.isEmpty())
        return {};
    const QString end = resultWord(result["result"].toInt(), translator);
    const QString why = quotedText(result, translator);
    return why.isEmpty() ? end : end + QStringLiteral(": ") + why;
}

QString triggerResult(const CourseNode &node, const Translator &translator)
{
    const int result = node.main()["result"].toInt();
    return result == EContext::Continue ? translator.text(told("till", "goes on"))
                                        : resultWord(result, translator);
}

QString answerText(const CourseNode &node, const Translator &translator)
{
    const QJsonObject answer = node.end("answer");
    if (answer.isEmpty())
        return {};
    return translator.text(answer["confirmed"].toBool() ? messages::tillYes() : messages::tillNo());
}

//! Which taras it filled or emptied.
QString filledText(const CourseNode &node, const Translator &translator)
{
    QList<Message> changes;
    for (const auto &child : node.children) {
        if (isOfTara(child->main()))
            changes += child->changes;
    }
    return changesText(changes, translator);
}

using Telling = QString (*)(const CourseNode &node, const Translator &translator);

QString oneLine(const QString &text)
{
    return printable(text).simplified();
}

} // namespace

QString whatHappened(const CourseNode &node, const Translator &translator)
{
    static const QHash<QString, Telling> tellings{
        {"command", commandText}, {"action", actionText},     {"trigger", triggerText},
        {"event", eventText},     {"log", logText},           {"question", questionText},
        {"message", messageText}, {"position", positionText}, {"data", dataText},
        {"receipt", receiptText}, {"takeup", takeUpText},     {"switch", switchText},
        {"loyalty", loyaltyText}, {"start", startText},       {"script", scriptText},
        {"verdict", verdictText},
    };
    const QString kind = node.kind();
    if (kind.isEmpty())
        return translator.text(told("till", "trigger under way"));
    const Telling telling = tellings.value(kind);
    return telling ? oneLine(telling(node, translator)) : oneLine(kind);
}

QString whatCameOfIt(const CourseNode &node, const Translator &translator)
{
    static const QHash<QString, Telling> tellings{
        {"command", outcomeText}, {"action", resultText}, {"trigger", triggerResult},
        {"question", answerText}, {"event", filledText},
    };
    const Telling telling = tellings.value(node.kind());
    return telling ? oneLine(telling(node, translator)) : QString();
}

bool endedBadly(const CourseNode &node)
{
    const QJsonObject outcome = node.end("outcome");
    const QJsonObject result = node.end("result");
    return (!outcome.isEmpty() && outcome["outcome"].toString() != "done")
           || (!result.isEmpty() && result["result"].toInt() != EContext::Continue)
           || (node.kind() == "verdict" && !node.main()["held"].toBool());
}

} // namespace till
