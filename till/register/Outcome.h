#ifndef TILL_REGISTER_OUTCOME_H
#define TILL_REGISTER_OUTCOME_H

#include "till/course/Notes.h"
#include "till/goods/Money.h"
#include "till/language/Translator.h"

#include <QtCore/QString>

#include <functional>
#include <optional>

namespace till {

//! How a command ended.
struct Outcome
{
    enum Kind {
        Done,              //!< carried out, and durable
        RefusedByPlugin,   //!< a trigger of the plugin stopped it with an error
        RefusedByRegister, //!< the receipt does not allow it as it stands, or it came too early
        Declined,          //!< the cashier's answer to a question stopped it
        Mistake,    //!< the command itself is wrong: an unknown word, article, position, number
        Failed,     //!< it could not be stored; the receipt is as it was before
        Unexpected, //!< what was expected does not hold
    };

    Kind kind = Done;
    Message reason; //!< what to tell the cashier; of a plugin what it told, which may be nothing
    QString detail; //!< of a failure: what is wrong with a file; in English
    std::optional<Kopecks> change = {};  //!< to give back, when money was named to pay with
    std::optional<Kopecks> missing = {}; //!< when that was not enough

    static Outcome done(const Message &reason = {}) { return {Done, reason, {}}; }
    static Outcome refused(const tr::Tr &reason) { return {RefusedByRegister, {reason, {}}, {}}; }
    static Outcome mistake(const tr::Tr &reason, const QStringList &values = {})
    {
        return mistake(Message{reason, values});
    }
    //! The words in \a reason are cut where they are long.
    static Outcome mistake(Message reason)
    {
        for (QString &value : reason.values)
            value = brief(value);
        return {Mistake, reason, {}};
    }
    static Outcome failed(const Message &reason, const QString &detail)
    {
        return {Failed, reason, detail};
    }
    //! Of what comes while a command is under way: from within a question, a message or a note.
    static Outcome busy();

    bool isRefusal() const { return kind >= RefusedByPlugin && kind <= Declined; }
    //! Reason and detail, as far as there are any, in the language of \a translator.
    QString text(const Translator &translator = Translator()) const;

    explicit operator bool() const { return kind == Done; }
};

//! Carries out the command that is \a text in words, with \a notes that it begins and how it ended;
//! what happens in it is told one level deeper.
Outcome tellCommand(Notes &notes, const QString &text, const std::function<Outcome()> &carryOut);

} // namespace till

#endif // TILL_REGISTER_OUTCOME_H
