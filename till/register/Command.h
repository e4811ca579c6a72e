#ifndef TILL_REGISTER_COMMAND_H
#define TILL_REGISTER_COMMAND_H

#include "host/Document.h"
#include "till/goods/Money.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>
#include <variant>

namespace till {

// What a cashier can ask of the register. Counts are pieces, as the cashier counts; `posnum` is the
// number of a position. Whatever is wrong with a value is the register's to say.
namespace command {

struct Open
{
    Document::Type type = Document::Sale;
    bool operator==(const Open &) const = default;
};

//! Adds an article of the catalogue as a new position.
struct Add
{
    QString article; //!< its code
    double count = 1.0;
    bool operator==(const Add &) const = default;
};

struct ChangeCount
{
    int posnum = 0;
    double count = 0.0;
    bool operator==(const ChangeCount &) const = default;
};

struct Storno
{
    int posnum = 0;
    bool operator==(const Storno &) const = default;
};

//! Takes `parts` off as new positions; what is left stays in the old one.
struct Split
{
    int posnum = 0;
    QList<double> parts;
    bool operator==(const Split &) const = default;
};

//! Puts everything into the first of `posnums`. All must be of one article.
struct Unite
{
    QList<int> posnums;
    bool operator==(const Unite &) const = default;
};

struct AttachOrder
{
    QString number;
    bool operator==(const AttachOrder &) const = default;
};

struct AddSoftCheck
{
    QString number;
    bool operator==(const AddSoftCheck &) const = default;
};

struct Subtotal
{
    bool operator==(const Subtotal &) const = default;
};

//! Pays, from subtotal or at once, and closes.
struct Pay
{
    std::optional<Kopecks> tendered; //!< without it the sum is paid exactly
    bool operator==(const Pay &) const = default;
};

struct Cancel
{
    bool operator==(const Cancel &) const = default;
};

} // namespace command

using Command =
    std::variant<command::Open, command::Add, command::ChangeCount, command::Storno, command::Split,
                 command::Unite, command::AttachOrder, command::AddSoftCheck, command::Subtotal,
                 command::Pay, command::Cancel>;

//! \a text as one word of a line: in quotes where it holds spaces, each quote in it three times.
QString asWord(const QString &text);

/*!
 * \a command as a cashier types it: "qty 2 1.5". The script language reads the same command back,
 * unless nobody can type it: a count with more than three decimals, an empty code, a line break.
 */
QString toText(const Command &command);

} // namespace till

#endif // TILL_REGISTER_COMMAND_H
