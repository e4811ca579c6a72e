#ifndef TESTS_WINDOW_SUPPORT_TRACEDCOURSE_H
#define TESTS_WINDOW_SUPPORT_TRACEDCOURSE_H

#include "till/course/JsonLine.h"

#include <QtCore/QHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QStringList>
#include <QtCore/QUuid>

namespace till {

//! Identifiers that differ from one run to the next, named in the order in which they come.
class NamedIdentifiers
{
public:
    QString named(const QString &text)
    {
        if (QUuid::fromString(text).isNull())
            return text;
        if (!m_names.contains(text))
            m_names.insert(text, QStringLiteral("identifier %1").arg(m_names.size() + 1));
        return m_names[text];
    }
    QJsonValue named(const QJsonValue &value)
    {
        if (value.isString())
            return named(value.toString());
        if (value.isArray()) {
            QJsonArray list;
            const QJsonArray values = value.toArray();
            for (const QJsonValue each : values)
                list.append(named(each));
            return list;
        }
        if (!value.isObject())
            return value;
        const QJsonObject fields = value.toObject();
        QJsonObject object;
        for (auto field = fields.begin(); field != fields.end(); ++field)
            object.insert(named(field.key()), named(field.value()));
        return object;
    }

private:
    QHash<QString, QString> m_names;
};

//! The lines of a trace of \a notes, but for times; identifiers are named.
inline QStringList tracedCourse(const QList<QJsonObject> &notes)
{
    NamedIdentifiers identifiers;
    QStringList lines;
    for (QJsonObject note : notes) {
        note.remove(QStringLiteral("time"));
        lines.append(QString::fromUtf8(jsonLine(identifiers.named(note).toObject())));
    }
    return lines;
}

} // namespace till

#endif // TESTS_WINDOW_SUPPORT_TRACEDCOURSE_H
