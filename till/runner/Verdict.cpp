#include "till/runner/Verdict.h"

namespace till {

QJsonObject toJson(const Verdict &verdict)
{
    const ScriptFault &fault = verdict.fault;
    return {{"end", verdict.end},         {"expectations", verdict.expectations},
            {"place", fault.place},       {"reason", fault.reason},
            {"remedy", fault.remedy},     {"command", fault.command},
            {"expected", fault.expected}, {"found", fault.found}};
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
    return verdict;
}

} // namespace till
