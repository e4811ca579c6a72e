#ifndef TESTS_TILL_SUPPORT_TOLDVALUE_H
#define TESTS_TILL_SUPPORT_TOLDVALUE_H

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

//! What a plugin has under a key once a `data` note of the trace told of it, and \a before until
//! then: by the rules of docs/trace.md.
inline QJsonValue toldValue(const QJsonValue &before, const QJsonObject &note)
{
    if (!note.contains("parts"))
        return note.value("value");
    QJsonArray list = before.toArray();
    const QJsonArray parts = note.value("parts").toArray();
    for (const QJsonValue &part : parts) {
        const int at = part["at"].toInt();
        for (int removed = 0; removed < part["removed"].toInt(); ++removed)
            list.removeAt(at);
        const QJsonArray added = part["added"].toArray();
        for (int place = 0; place < added.size(); ++place)
            list.insert(at + place, added[place]);
    }
    return list;
}

#endif // TESTS_TILL_SUPPORT_TOLDVALUE_H
