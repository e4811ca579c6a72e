#ifndef TILL_LANGUAGE_MESSAGE_H
#define TILL_LANGUAGE_MESSAGE_H

#include "host/Tr.h"

#include <QtCore/QStringList>

namespace till {

//! A message for the cashier with the values in it.
struct Message
{
    tr::Tr pattern; //!< "%1" stands for the first value, "%L2" for the second, translated
    QStringList values;
    tr::Tr quoted = {}; //!< what "%Q" stands for, translated by its own key, in one line

    QString key() const { return pattern.key(); }
    Message with(const QStringList &given) const { return {pattern, given, quoted}; }
    bool operator==(const Message &) const = default;
};

//! A question to the cashier, with the two choices.
struct Question
{
    tr::Tr text;
    tr::Tr confirm; //!< the choice that says yes
    tr::Tr cancel;
};

//! \a word as a message quotes it: cut where it is long.
inline QString brief(const QString &word)
{
    constexpr qsizetype longest = 60;
    return word.size() <= longest ? word : word.left(longest - 1) + QChar(u'…');
}

//! A text of the till's own that nobody knows by a key: in English, as `lupdate` collects it.
inline Message told(const char *context, const char *text)
{
    Q_UNUSED(context)
    return {tr::Tr(QString(), QString::fromUtf8(text)), {}};
}

} // namespace till

#endif // TILL_LANGUAGE_MESSAGE_H
