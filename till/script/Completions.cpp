// What can stand where a person types.

#include "till/script/CommandLine.h"

#include <algorithm>

namespace till {

namespace {

using Candidates = QStringList;

//! What can stand as the word \a place behind "expect WHAT".
Candidates expectedWords(const QString &what, qsizetype place)
{
    if (place == 0 && what == "state")
        return {"none", "open", "subtotal", "closed", "cancelled"};
    if (place == 0 && what == "control")
        return {"active", "suspended", "none"};
    if (place == 0 && QStringList{"message", "question", "log"}.contains(what))
        return {"none"};
    if (place == 1 && what == "position")
        return {"none", "stornoed", "live", "quantity", "base", "sum", "article"};
    if (place == 1 && what == "tara")
        return {"none", "capacity", "free"};
    if (place == 1 && what == "goods")
        return {"none", "in", "unplaced"};
    return {};
}

} // namespace

QStringList CommandLine::completions(const QStringList &words) const
{
    QStringList candidates = candidatesFor(words);
    const QString begun = words.isEmpty() ? QString() : words.constLast();
    candidates.removeIf([&begun](const QString &candidate) {
        return !candidate.startsWith(begun, Qt::CaseInsensitive);
    });
    return candidates;
}

QStringList CommandLine::candidatesFor(const QStringList &words) const
{
    static const QStringList ends{"accepted", "refused", "mistake"};
    if (words.size() <= 1)
        return commandNames();
    const QString command = words[0].toLower();
    const QString second = words[1].toLower();
    const qsizetype place = words.size() - 1; // of the word that is typed
    if (command == "expect" && place > 1 && ends.contains(second))
        return candidatesFor(words.mid(2));
    if (command == "expect" && place > 1) {
        const bool isPosition =
            place == 2 && QStringList{"position", "tara", "goods"}.contains(second);
        return isPosition ? positionNumbers() : expectedWords(second, place - 2);
    }
    if (command == "unite")
        return positionNumbers();
    if (command == "answer")
        return {"yes", "no"};
    if (command == "set" && place == 2)
        return {"true", "false"};
    return place == 1 ? secondWords(command) : QStringList();
}

QStringList CommandLine::secondWords(const QString &command) const
{
    if (command == "help")
        return commandNames();
    if (command == "add" || command == "articles")
        return articleCodes();
    if (command == "open")
        return {"sale", "return"};
    if (command == "set")
        return knownSettings();
    if (command == "expect")
        return Expectations::names();
    return QStringList{"qty", "storno", "split"}.contains(command) ? positionNumbers()
                                                                   : QStringList();
}

QStringList CommandLine::articleCodes() const
{
    QStringList codes;
    const auto all = m_desk.catalogue().articles();
    for (const auto &article : all)
        codes.append(article->data.code);
    return codes;
}

QStringList CommandLine::positionNumbers() const
{
    QStringList numbers;
    const auto receipt = m_desk.isOn() ? m_desk.cashRegister().receipt() : nullptr;
    const auto positions = receipt ? receipt->getPositionList() : GoodsItemPtrList();
    for (const auto &position : positions)
        numbers.append(QString::number(position->getPosnum()));
    return numbers;
}

} // namespace till
