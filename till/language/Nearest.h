#ifndef TILL_LANGUAGE_NEAREST_H
#define TILL_LANGUAGE_NEAREST_H

#include <QtCore/QStringList>

namespace till {

//! That of \a known which \a word was most likely meant to be, in any letter case: by the fewest
//! letters wrong, missing or too many, at most a third of them. Empty when none is near.
QString nearest(const QString &word, const QStringList &known);

} // namespace till

#endif // TILL_LANGUAGE_NEAREST_H
