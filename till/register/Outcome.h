#ifndef TILL_REGISTER_OUTCOME_H
#define TILL_REGISTER_OUTCOME_H

#include <QtCore/QString>

namespace till {

//! How a command ended.
struct Outcome
{
    enum Kind {
        Done,    //!< carried out, and durable
        Refused, //!< the plugin, the host or the cashier's answer stopped it
        Mistake, //!< the command itself is wrong: an unknown word, article, position, number
        Failed,  //!< it could not be stored; the receipt is as it was before
    };

    Kind kind = Done;
    QString text; //!< what to tell the cashier; may be empty when done

    static Outcome done(const QString &text = {}) { return {Done, text}; }
    static Outcome refused(const QString &text) { return {Refused, text}; }
    static Outcome mistake(const QString &text) { return {Mistake, text}; }
    static Outcome failed(const QString &text) { return {Failed, text}; }

    explicit operator bool() const { return kind == Done; }
};

} // namespace till

#endif // TILL_REGISTER_OUTCOME_H
