#ifndef TILL_RECORDER_RECORDEDWORDS_H
#define TILL_RECORDER_RECORDEDWORDS_H

#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

namespace till {

// How a script says what notes tell.

//! The words of a command's \a text, or none.
QStringList commandWords(const QString &text);

//! Whether the command is one of the register's.
bool isOfRegister(const QString &text);
//! Whether it may switch the till off and on.
bool switchesTill(const QString &text);

/*!
 * Whether a script that has the line \a text does what the command did of which it is the text; one
 * that was a \a mistake may be no command at all.
 */
bool canBeTyped(const QString &text, bool mistake);

//! The text of a question or a message, as "expect" has it.
QString saidText(const QJsonObject &note);
//! The key of a question or a message, or its text where it has none.
QString saidName(const QJsonObject &note);
//! Appends \a name, unless it is there or says nothing of its own.
void appendOnce(QStringList &names, const QString &name);

//! The lines that bring the settings \a before to \a now.
QStringList settingLines(const QJsonObject &now, const QJsonObject &before);

} // namespace till

#endif // TILL_RECORDER_RECORDEDWORDS_H
