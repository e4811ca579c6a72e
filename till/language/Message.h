#ifndef TILL_LANGUAGE_MESSAGE_H
#define TILL_LANGUAGE_MESSAGE_H

#include "host/Tr.h"

#include <QtCore/QStringList>

namespace till {

//! A message for the cashier with the values in it.
struct Message
{
    tr::Tr pattern;     //!< "%1" stands for the first value, "%2" for the second; no key: nothing
    QStringList values; //!< where there are two, the first must hold no "%2"

    QString key() const { return pattern.key(); }
    bool operator==(const Message &) const = default;
};

//! A question to the cashier, with the two choices.
struct Question
{
    tr::Tr text;
    tr::Tr confirm; //!< the choice that says yes
    tr::Tr cancel;
};

} // namespace till

#endif // TILL_LANGUAGE_MESSAGE_H
