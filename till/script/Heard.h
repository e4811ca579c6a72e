#ifndef TILL_SCRIPT_HEARD_H
#define TILL_SCRIPT_HEARD_H

#include "host/Tr.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

namespace till {

//! What a command made the till say.
struct Heard
{
    QList<tr::Tr> messages;
    QList<tr::Tr> questions;
    QStringList log;
};

} // namespace till

#endif // TILL_SCRIPT_HEARD_H
