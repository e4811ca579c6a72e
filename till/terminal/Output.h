#ifndef TILL_TERMINAL_OUTPUT_H
#define TILL_TERMINAL_OUTPUT_H

#include <QtCore/QString>

namespace till {

/*!
 * The one way by which texts reach standard output and standard error. Whatever would steer a
 * terminal becomes spaces on it, but for the till's own colours where there are any.
 */
class Output
{
public:
    explicit Output(bool hasColours = false)
        : m_hasColours(hasColours)
    {
    }

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

    //! Why standard output could not be written; empty when all of it was.
    static QString fault();

private:
    bool m_hasColours;
};

} // namespace till

#endif // TILL_TERMINAL_OUTPUT_H
