#ifndef TILL_TERMINAL_OUTPUT_H
#define TILL_TERMINAL_OUTPUT_H

#include "till/result/Result.h"

#include <QtCore/QString>

namespace till {

/*!
 * The one way by which texts reach standard output and standard error. Whatever would steer a
 * terminal becomes spaces on it, but for the till's own colours where there are any. On a terminal
 * what is for a person to read is broken at blanks where it is wider.
 */
class Output
{
public:
    //! For lines as they stand, which programs read too.
    Output() = default;
    //! For texts for a person.
    explicit Output(bool hasColours)
        : m_isText(true)
        , m_hasColours(hasColours)
    {
    }

    //! Columns of the terminal at standard output, as far as a receipt can follow them; those of a
    //! pipe where there is none.
    static int columns();

    //! Prints whole lines; a last line break is added where there is none.
    void print(const QString &text) const;

    //! Shows \a line on a terminal until something else is printed there.
    static void printPassing(const QString &line);

    //! Passes on what came on the standard error of another process.
    static void passOn(const QString &complaints);

    //! Tells on standard error what is wrong, in one line.
    static void error(const QString &text);

    //! Lets what Qt and plugins have to say on standard error pass the same way.
    static void installMessageHandler();

    //! Whether all of standard output could be written so far.
    static Result<> written();

private:
    bool m_isText = false;
    bool m_hasColours = false;
};

} // namespace till

#endif // TILL_TERMINAL_OUTPUT_H
