#include "till/course/JsonLine.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QRegularExpression>
#include <QtCore/QString>

namespace till {

namespace {

//! \a line with each sign escaped that terminals obey: U+007F to U+009F, breaks of lines, and what
//! turns the direction of writing.
QByteArray withoutControls(const QByteArray &line)
{
    static const QRegularExpression controls(QStringLiteral(
        "[\\x{7f}-\\x{9f}\\x{200e}\\x{200f}\\x{2028}-\\x{202e}\\x{2066}-\\x{2069}]"));
    QString text = QString::fromUtf8(line);
    QRegularExpressionMatch found = controls.match(text);
    if (!found.hasMatch())
        return line;
    for (; found.hasMatch(); found = controls.match(text, found.capturedStart())) {
        const QString code = QString::number(found.capturedView().front().unicode(), 16);
        text.replace(found.capturedStart(), 1, "\\u" + code.rightJustified(4, '0'));
    }
    return text.toUtf8();
}

} // namespace

QByteArray jsonLine(const QJsonObject &object)
{
    return withoutControls(QJsonDocument(object).toJson(QJsonDocument::Compact)).append('\n');
}

} // namespace till
