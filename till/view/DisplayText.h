#ifndef TILL_VIEW_DISPLAYTEXT_H
#define TILL_VIEW_DISPLAYTEXT_H

#include <QtCore/QString>

namespace till {

//! How many columns of a terminal \a text takes: combining marks none, wide East
//! Asian signs and emoji two, also where several signs are joined to one.
int displayWidth(const QString &text);

//! \a text without control and format characters, so that data can't steer a terminal: line
//! breaks, tabs and escapes become spaces, invisible format characters go away.
QString printable(const QString &text);

/*!
 * \a text as it may reach a terminal: line breaks stay, other control characters and those that
 * turn the direction of writing become spaces. With \a ownColours the codes of `TextPage` stay too.
 */
QString forTerminal(const QString &text, bool ownColours = false);

//! \a text, or as much of its beginning as fits \a width columns with an ellipsis at the end.
QString elided(const QString &text, int width);

//! \a text with each line that is wider than \a columns broken at blanks; what goes on is indented
//! like its beginning. A word that is longer stays whole; codes of `TextPage` take no columns.
QString wrapped(const QString &text, int columns);

//! \a text with spaces behind it up to \a width columns; longer texts as they stand.
QString leftAligned(const QString &text, int width);

//! \a text with spaces before it up to \a width columns; longer texts as they stand.
QString rightAligned(const QString &text, int width);

} // namespace till

#endif // TILL_VIEW_DISPLAYTEXT_H
