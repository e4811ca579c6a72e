#include "till/options/LookupOptions.h"

#include "till/language/Message.h"

#include <QtCore/QCommandLineParser>

namespace till {

namespace {

constexpr ReceiptState allStates[] = {ReceiptState::Open, ReceiptState::Subtotal,
                                      ReceiptState::Closed, ReceiptState::Cancelled};

QString stateWords()
{
    QStringList words;
    for (const ReceiptState state : allStates)
        words.append(wordOf(state));
    return words.join(", ");
}

Result<QDate> readDay(const QCommandLineParser &parser, const QString &name)
{
    if (!parser.isSet(name))
        return QDate();
    const QDate day = QDate::fromString(parser.value(name), "yyyy-MM-dd");
    if (!day.isValid())
        return Fault{"--" + name,
                     '"' + brief(parser.value(name)) + "\" is no day such as 2026-12-31"};
    return day;
}

Result<QList<ReceiptState>> readStates(const QStringList &words)
{
    QList<ReceiptState> states;
    for (const QString &word : words) {
        const auto found = std::find_if(std::cbegin(allStates), std::cend(allStates),
                                        [&](ReceiptState state) { return wordOf(state) == word; });
        if (found == std::cend(allStates))
            return Fault{"--state", '"' + brief(word) + "\" is none of: " + stateWords()};
        states.append(*found);
    }
    return states;
}

Result<Selection> readSelection(const QCommandLineParser &parser)
{
    const auto from = readDay(parser, "from");
    if (!from)
        return from.error();
    const auto to = readDay(parser, "to");
    if (!to)
        return to.error();
    if (from->isValid() && to->isValid() && *from > *to)
        return Fault{"--to", parser.value("to") + " is before " + parser.value("from")};
    const auto states = readStates(parser.values("state"));
    if (!states)
        return states.error();
    return Selection{*from, *to, *states};
}

} // namespace

QList<QCommandLineOption> lookupOptions()
{
    return {
        {"json", "Tell of receipts, or a journal, as lines of JSON."},
        {"csv", "List receipts as CSV."},
        {"from", "List receipts that were opened on DATE (2026-12-31) or later.", "DATE"},
        {"to", "List receipts that were opened on DATE or earlier.", "DATE"},
        {"state", "List receipts in that state: " + stateWords() + "; may come more than once.",
         "STATE"},
    };
}

Result<LookupOptions> readLookup(const QCommandLineParser &parser)
{
    if (parser.isSet("json") && parser.isSet("csv"))
        return Fault{"--csv", "not with --json"};
    const auto selection = readSelection(parser);
    if (!selection)
        return selection.error();
    LookupOptions options{LookupOptions::Form::Text, *selection};
    if (parser.isSet("json"))
        options.form = LookupOptions::Form::Json;
    if (parser.isSet("csv"))
        options.form = LookupOptions::Form::Csv;
    return options;
}

} // namespace till
