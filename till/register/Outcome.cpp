#include "till/register/Outcome.h"

#include "till/language/TillMessages.h"

namespace till {

namespace {

QJsonObject describe(const Outcome &outcome)
{
    static const QStringList names{"done",    "refused", "refused",   "refused",
                                   "mistake", "failed",  "unexpected"};
    static const QStringList refusers{"plugin", "register", "cashier"};
    QJsonObject fields{
        {"outcome", names[outcome.kind]}, {"key", outcome.reason.key()}, {"text", outcome.text()}};
    if (outcome.isRefusal())
        fields.insert("by", refusers[outcome.kind - Outcome::RefusedByPlugin]);
    return fields;
}

} // namespace

Outcome Outcome::busy()
{
    return refused(messages::tillBusy());
}

QString Outcome::text(const Translator &translator) const
{
    QStringList parts{translator.text(reason), detail};
    if (missing)
        parts.append(translator.text(told("till", "%1 missing").with({toText(*missing)})));
    parts.removeAll(QString());
    return parts.join(": ");
}

Outcome tellCommand(Notes &notes, const QString &text, const std::function<Outcome()> &carryOut)
{
    notes.add("command", {{"text", text}});
    Outcome outcome;
    {
        const Notes::Nesting inside(notes);
        outcome = carryOut();
    }
    notes.add("outcome", describe(outcome));
    return outcome;
}

} // namespace till
