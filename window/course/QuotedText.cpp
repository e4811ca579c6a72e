#include "window/course/QuotedText.h"

#include "till/language/TillMessages.h"

#include <QtCore/QHash>
#include <QtCore/QRegularExpression>

namespace till {

namespace {

//! The Russian pattern of the register's message with that key, as an expression that finds its
//! values; empty when it has none.
QString valuesOf(const QString &key)
{
    static const QHash<QString, QString> expressions = [] {
        QHash<QString, QString> found;
        const QList<tr::Tr> messages = messages::all();
        for (const tr::Tr &message : messages) {
            QString expression = QRegularExpression::escape(message.text());
            if (expression.contains(QLatin1String("\\%1")))
                found.insert(message.key(),
                             expression.replace(QRegularExpression(QStringLiteral("\\\\%[1-9]")),
                                                QStringLiteral("(.*)")));
        }
        return found;
    }();
    return expressions.value(key);
}

//! What \a note quotes, as the message of its key. Notes have it in Russian with its values, which
//! are found again.
Message quoted(const QJsonObject &note)
{
    const QString text = note["text"].toString();
    const tr::Tr pattern(note["key"].toString(), text);
    const QString values = valuesOf(pattern.key());
    if (values.isEmpty())
        return {pattern, {}};
    const QRegularExpression expression(QRegularExpression::anchoredPattern(values));
    const auto found = expression.match(text);
    return found.hasMatch() ? Message{pattern, found.capturedTexts().mid(1)}
                            : Message{tr::Tr(QString(), text), {}};
}

} // namespace

QString quotedText(const QJsonObject &note, const Translator &translator)
{
    return translator.text(quoted(note));
}

} // namespace till
