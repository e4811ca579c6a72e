#include "contract/Report.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QXmlStreamWriter>

#include <algorithm>

namespace contract {

namespace {

QString toWord(Finding::Kind kind)
{
    switch (kind) {
    case Finding::Held:
        return QStringLiteral("held");
    case Finding::Broken:
        return QStringLiteral("broken");
    case Finding::Unchecked:
        break;
    }
    return QStringLiteral("unchecked");
}

//! What is said of a broken promise.
QString toSentence(const Result &result)
{
    return QStringLiteral("seen: %1; needed: %2; otherwise: %3")
        .arg(result.finding.text, QString::fromUtf8(result.check.needed),
             QString::fromUtf8(result.check.harm));
}

QJsonObject toObject(const Result &result)
{
    QJsonObject object{{"name", result.check.name}, {"verdict", toWord(result.finding.kind)}};
    if (result.finding.kind == Finding::Unchecked)
        object.insert("why", result.finding.text);
    if (result.finding.kind == Finding::Broken) {
        object.insert("seen", result.finding.text);
        object.insert("needed", QString::fromUtf8(result.check.needed));
        object.insert("harm", QString::fromUtf8(result.check.harm));
    }
    return object;
}

void writeCase(QXmlStreamWriter &xml, const Result &result)
{
    xml.writeStartElement("testcase");
    xml.writeAttribute("classname", "contract");
    xml.writeAttribute("name", result.check.name);
    if (result.finding.kind == Finding::Broken) {
        xml.writeEmptyElement("failure");
        xml.writeAttribute("message", toSentence(result));
    } else if (result.finding.kind == Finding::Unchecked) {
        xml.writeEmptyElement("skipped");
        xml.writeAttribute("message", result.finding.text);
    }
    xml.writeEndElement();
}

} // namespace

int count(const Results &results, Finding::Kind kind)
{
    return int(std::count_if(results.cbegin(), results.cend(),
                             [kind](const Result &r) { return r.finding.kind == kind; }));
}

QString toText(const Result &result)
{
    const QString name = QString::fromLatin1(result.check.name);
    switch (result.finding.kind) {
    case Finding::Held:
        return QStringLiteral("held    %1").arg(name);
    case Finding::Broken:
        return QStringLiteral("broken  %1: %2").arg(name, toSentence(result));
    case Finding::Unchecked:
        break;
    }
    return QStringLiteral("-       %1: not to be checked here, %2").arg(name, result.finding.text);
}

QString toSummary(const Results &results)
{
    return QStringLiteral("%1 held, %2 broken, %3 not to be checked here")
        .arg(count(results, Finding::Held))
        .arg(count(results, Finding::Broken))
        .arg(count(results, Finding::Unchecked));
}

QByteArray toJson(const Results &results)
{
    QJsonArray checks;
    for (const Result &result : results)
        checks.append(toObject(result));
    const QJsonObject report{{"checks", checks},
                             {"held", count(results, Finding::Held)},
                             {"broken", count(results, Finding::Broken)},
                             {"unchecked", count(results, Finding::Unchecked)}};
    return QJsonDocument(report).toJson();
}

QByteArray toJUnit(const Results &results)
{
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement("testsuite");
    xml.writeAttribute("name", "contract");
    xml.writeAttribute("tests", QString::number(results.size()));
    xml.writeAttribute("failures", QString::number(count(results, Finding::Broken)));
    xml.writeAttribute("skipped", QString::number(count(results, Finding::Unchecked)));
    for (const Result &result : results)
        writeCase(xml, result);
    xml.writeEndElement();
    xml.writeEndDocument();
    return text;
}

} // namespace contract
