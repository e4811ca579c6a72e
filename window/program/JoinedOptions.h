#ifndef WINDOW_PROGRAM_JOINEDOPTIONS_H
#define WINDOW_PROGRAM_JOINEDOPTIONS_H

#include <QtCore/QByteArrayList>

namespace till {

//! The names of the program's options that take a value.
QByteArrayList optionsWithValue();

/*!
 * \a words, the first of which names the program, with each of those options in one word with its
 * value: "--plugin=FILE" of "--plugin FILE". Of two words the toolkit takes some for options of its
 * own. Where there is no value it is empty. Behind "--" all stays.
 */
QByteArrayList withJoinedOptions(const QByteArrayList &words);

} // namespace till

#endif // WINDOW_PROGRAM_JOINEDOPTIONS_H
