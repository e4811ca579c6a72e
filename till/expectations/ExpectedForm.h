#ifndef TILL_EXPECTATIONS_EXPECTEDFORM_H
#define TILL_EXPECTATIONS_EXPECTEDFORM_H

#include "till/register/Outcome.h"
#include "till/result/Result.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

namespace till {

//! How the words of an expectation follow each other, whatever the receipt is like.
struct ExpectedForm
{
    //! What a word is.
    enum Kind {
        PartName, //!< the name of a part, or "none" in place of all parts
        PositionNumber,
        PositionOrNone, //!< the number of a position, or "none"
        Count,          //!< a whole number, 0 or more
        Quantity,
        Money,
        Code, //!< of an article
        Text  //!< any words, up to the end
    };

    //! A name, and what follows it.
    struct Part
    {
        QString name;
        QList<Kind> values = {};
    };

    //! What can follow some words.
    struct Next
    {
        Kind kind = PartName;
        QStringList names = {}; //!< of the parts, where it is one
        bool isWhole = false;   //!< nothing need follow
    };

    QList<Kind> first;      //!< before the parts
    QList<Part> parts = {}; //!< where there are any, at least one follows, in any order
    bool mayBeNone = false; //!< "none" may stand instead

    //! What can follow \a words, or the mistake in them: \a usage where no single word is wrong.
    Result<Next, Outcome> behind(const QStringList &words, const Outcome &usage) const;
};

} // namespace till

#endif // TILL_EXPECTATIONS_EXPECTEDFORM_H
