#ifndef TILL_CONSOLE_MANUAL_H
#define TILL_CONSOLE_MANUAL_H

#include <QtCore/QString>

namespace till {

//! The manual page, in the language of man(7): what `--help` and the register's help say.
QString manualPage();

} // namespace till

#endif // TILL_CONSOLE_MANUAL_H
