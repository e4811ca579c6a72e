#include "till/words/RegisterWords.h"

#include "till/words/Words.h"

namespace till {

namespace {

ReadCommand readOpen(const QStringList &words)
{
    const QString type = words.value(0, "sale").toLower();
    if (type != "sale" && type != "return")
        return notOneOf(type, {"sale", "return"});
    return command::Open{type == "sale" ? Document::Sale : Document::Return};
}

ReadCommand readAdd(const QStringList &words)
{
    const QString quantity = words.value(1, "1");
    const std::optional<double> count = parseQuantity(quantity);
    if (!count)
        return notANumber(quantity);
    return command::Add{words[0], *count};
}

ReadCommand readChangeCount(const QStringList &words)
{
    const std::optional<int> posnum = parsePosnum(words[0]);
    if (!posnum)
        return notAPosition(words[0]);
    const std::optional<double> count = parseQuantity(words[1]);
    if (!count)
        return notANumber(words[1]);
    return command::ChangeCount{*posnum, *count};
}

ReadCommand readStorno(const QStringList &words)
{
    const std::optional<int> posnum = parsePosnum(words[0]);
    if (!posnum)
        return notAPosition(words[0]);
    return command::Storno{*posnum};
}

ReadCommand readSplit(const QStringList &words)
{
    const std::optional<int> posnum = parsePosnum(words[0]);
    if (!posnum)
        return notAPosition(words[0]);
    QList<double> parts;
    for (const QString &word : words.mid(1)) {
        const std::optional<double> part = parseQuantity(word);
        if (!part)
            return notANumber(word);
        parts.append(*part);
    }
    return command::Split{*posnum, parts};
}

ReadCommand readUnite(const QStringList &words)
{
    QList<int> posnums;
    for (const QString &word : words) {
        const std::optional<int> posnum = parsePosnum(word);
        if (!posnum)
            return notAPosition(word);
        posnums.append(*posnum);
    }
    return command::Unite{posnums};
}

ReadCommand readOrder(const QStringList &words)
{
    return command::AttachOrder{words[0]};
}

ReadCommand readSoftCheck(const QStringList &words)
{
    return command::AddSoftCheck{words[0]};
}

ReadCommand readSubtotal(const QStringList &)
{
    return command::Subtotal{};
}

ReadCommand readPay(const QStringList &words)
{
    if (words.isEmpty())
        return command::Pay{};
    const std::optional<Kopecks> tendered = parseMoney(words[0]);
    if (!tendered)
        return notMoney(words[0]);
    return command::Pay{tendered};
}

ReadCommand readCancel(const QStringList &)
{
    return command::Cancel{};
}

} // namespace

const QList<RegisterWords> &registerWords()
{
    static const QList<RegisterWords> table{
        {{"open", verbatim("[sale|return]"), told("till", "open a receipt"), 0, 1}, readOpen},
        {{"add", told("till", "ARTICLE [QUANTITY]"),
          told("till", "add an article as a new position; quantity 1 if none"), 1, 2},
         readAdd},
        {{"qty", told("till", "POSITION QUANTITY"),
          told("till", "change the quantity of a position"), 2, 2},
         readChangeCount},
        {{"storno", told("till", "POSITION"), told("till", "storno a position, after a question"),
          1, 1},
         readStorno},
        {{"split", told("till", "POSITION PART..."),
          told("till", "take parts off as new positions; the rest stays"), 2, Usage::any},
         readSplit},
        {{"unite", told("till", "POSITION POSITION..."),
          told("till", "put positions of one article into the first"), 2, Usage::any},
         readUnite},
        {{"order", told("till", "NUMBER"), told("till", "attach an order"), 1, 1}, readOrder},
        {{"softcheck", told("till", "NUMBER"), told("till", "add a soft-check"), 1, 1},
         readSoftCheck},
        {{"subtotal", {}, told("till", "go to subtotal"), 0, 0}, readSubtotal},
        {{"pay", told("till", "[MONEY]"),
          told("till", "pay and close, from subtotal or at once; exactly if no money is named"), 0,
          1},
         readPay},
        {{"cancel", {}, told("till", "cancel the receipt, after a question"), 0, 0}, readCancel},
    };
    return table;
}

ReadCommand readCommand(const QStringList &words)
{
    const RegisterWords *const row = rowCalled(words.value(0), registerWords());
    if (!row)
        return unknownCommand(words.value(0), {});
    if (!row->usage.allows(words.mid(1)))
        return wrongWords(row->usage);
    return row->read(words.mid(1));
}

} // namespace till
