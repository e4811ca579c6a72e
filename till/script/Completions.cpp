// What can stand where a person types.

#include "till/script/CommandLine.h"

namespace till {

namespace {

QStringList without(QStringList candidates, const QStringList &words)
{
    candidates.removeIf([&words](const QString &candidate) { return words.contains(candidate); });
    return candidates;
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
        return without(candidatesFor(words.mid(2)), {"expect"}); // which is no command to expect
    if (command == "expect" && place > 1)
        return expectedWords(words.mid(1, place - 1));
    if (command == "unite")
        return without(positionNumbers(), words.mid(1, place - 1));
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

//! What can stand behind "expect" and \a words.
QStringList CommandLine::expectedWords(const QStringList &words) const
{
    const auto next = Expectations::next(words);
    if (!next)
        return {};
    if (next->kind == ExpectedForm::PositionNumber)
        return positionNumbers();
    if (next->kind == ExpectedForm::PositionOrNone)
        return positionNumbers() + QStringList{"none"};
    if (next->kind == ExpectedForm::Code)
        return articleCodes();
    const bool isText = next->kind == ExpectedForm::Text;
    return isText && words.size() == 1 ? QStringList{"none"} : next->names;
}

QStringList CommandLine::commandNames()
{
    QStringList names;
    const QList<Usage> all = usages();
    for (const Usage &usage : all)
        names.append(usage.name);
    return names;
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
