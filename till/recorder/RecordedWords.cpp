#include "till/recorder/RecordedWords.h"

#include "till/words/RegisterWords.h"
#include "till/words/Words.h"

namespace till {

QStringList commandWords(const QString &text)
{
    return splitWords(text).value_or(QStringList());
}

bool isOfRegister(const QString &text)
{
    return rowCalled(commandWords(text).value(0), registerWords()) != nullptr;
}

bool switchesTill(const QString &text)
{
    return QStringList{"set", "restart"}.contains(commandWords(text).value(0).toLower());
}

bool canBeTyped(const QString &text, bool mistake)
{
    if (text.contains('\n') || QString::fromUtf8(text.toUtf8()) != text)
        return false;
    const ReadCommand read = readCommand(commandWords(text));
    return read ? toText(*read) == text : mistake;
}

QString saidText(const QJsonObject &note)
{
    return asWord(note["text"].toString().replace('\n', ' '));
}

QString saidName(const QJsonObject &note)
{
    const QString key = note["key"].toString();
    return key.isEmpty() ? saidText(note) : asWord(key);
}

void appendOnce(QStringList &names, const QString &name)
{
    if (!name.isEmpty() && name != "none" && !names.contains(name))
        names.append(name);
}

QStringList settingLines(const QJsonObject &now, const QJsonObject &before)
{
    QStringList lines;
    for (auto setting = now.begin(); setting != now.end(); ++setting) {
        if (before[setting.key()] != setting.value())
            lines.append(
                joinWords({"set", setting.key(), setting.value().toBool() ? "true" : "false"}));
    }
    return lines;
}

} // namespace till
