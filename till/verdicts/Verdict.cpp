#include "till/verdicts/Verdict.h"

#include <QtCore/QJsonArray>

namespace till {

namespace {

QJsonArray toJson(const QList<LineChange> &changes)
{
    QJsonArray json;
    for (const LineChange &change : changes)
        json.append(QJsonObject{
            {"number", change.number}, {"before", change.before}, {"after", change.after}});
    return json;
}

QList<LineChange> changesFrom(const QJsonArray &json)
{
    QList<LineChange> changes;
    for (const auto &value : json) {
        const QJsonObject change = value.toObject();
        changes.append({change["number"].toInteger(), change["before"].toString(),
                        change["after"].toString()});
    }
    return changes;
}

} // namespace

QJsonObject toJson(const Verdict &verdict)
{
    const ScriptFault &fault = verdict.fault;
    return {{"end", verdict.end},
            {"expectations", verdict.expectations},
            {"place", fault.place},
            {"reason", fault.reason},
            {"remedy", fault.remedy},
            {"command", fault.command},
            {"expected", fault.expected},
            {"found", fault.found},
            {"changes", toJson(verdict.changes)},
            {"digest", QString::fromLatin1(verdict.digest)}};
}

Verdict verdictFrom(const QJsonObject &json)
{
    const auto text = [&json](const char *field) {
        return json.value(QLatin1String(field)).toString();
    };
    Verdict verdict;
    verdict.end = static_cast<Verdict::End>(json.value("end").toInt());
    verdict.expectations = json.value("expectations").toInteger();
    verdict.fault = {{text("place"), text("reason"), text("remedy")},
                     text("command"),
                     text("expected"),
                     text("found")};
    verdict.changes = changesFrom(json.value("changes").toArray());
    verdict.digest = text("digest").toLatin1();
    return verdict;
}

} // namespace till
