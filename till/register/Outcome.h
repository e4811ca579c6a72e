#ifndef TILL_REGISTER_OUTCOME_H
#define TILL_REGISTER_OUTCOME_H

#include "till/course/Notes.h"
#include "till/goods/Money.h"

#include <QtCore/QString>

#include <functional>
#include <optional>

namespace till {

//! How a command ended.
struct Outcome
{
    enum Kind {
        Done,    //!< carried out, and durable
        Refused, //!< the plugin, the host or the cashier's answer stopped it, or it came too early
        Mistake, //!< the command itself is wrong: an unknown word, article, position, number
        Failed,  //!< it could not be stored; the receipt is as it was before
    };

    Kind kind = Done;
    QString text;                       //!< what to tell the cashier; may be empty when done
    std::optional<Kopecks> change = {}; //!< to give back, when money was named to pay with

    static Outcome done(const QString &text = {}) { return {Done, text}; }
    static Outcome refused(const QString &text) { return {Refused, text}; }
    static Outcome mistake(const QString &text) { return {Mistake, text}; }
    static Outcome failed(const QString &text) { return {Failed, text}; }
    //! Of what comes while a command is under way: from within a question, a message or a note.
    static Outcome busy() { return refused(QStringLiteral("a command is under way")); }

    explicit operator bool() const { return kind == Done; }
};

//! Carries out the command that is \a text in words, with \a notes that it begins and how it ended;
//! what happens in it is told one level deeper.
Outcome tellCommand(Notes &notes, const QString &text, const std::function<Outcome()> &carryOut);

} // namespace till

#endif // TILL_REGISTER_OUTCOME_H
