#ifndef TESTS_MODEL_COMMAND_H
#define TESTS_MODEL_COMMAND_H

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace model {

//! What happens at the register.
enum class Verb : std::uint8_t {
    Open,     //!< another receipt takes the place of the current one; shape 1: a return
    Add,      //!< article `which`, `quantity` pieces
    Quantity, //!< position `which` becomes `quantity` pieces
    Modify,   //!< modifiers other than the quantity are applied to position `which`
    Storno,   //!< position `which`
    Split,    //!< `parts` pieces are taken off position `which`; see `shape`
    Unite,    //!< positions `which`, `other` and, with parts, one more
    Subtotal, //!< the cashier says `yes` or no to what is asked
    Pay,      //!< likewise; when it is accepted the receipt is closed and a new one opened
    SoftCheck,
    Order,
    Setting, //!< selling empty tara is allowed: `yes`; the register restarts
    Restart,
    Reopen,  //!< the plugin is given the current receipt once more
    Switch,  //!< the register turns to the other of two receipts
    Forget,  //!< the plugin is given no receipt
    Publish, //!< an event, code by `shape`, about position `which`, stornoed ones and none included
};
inline constexpr int verbCount = 17;

//! How the host treats a request of the plugin.
enum class Reply : std::uint8_t {
    Obey,    //!< carries it out and says so
    Refuse,  //!< does nothing and says so
    Deny,    //!< carries it out and says that it did not
    Pretend, //!< does nothing and says that it did
};

//! The host gives up when the plugin's requests lead to requests without an end.
inline constexpr int deepestRequest = 6;

//! What else happens while the plugin waits for the answer to a request or a question.
enum class Meanwhile : std::uint8_t { Nothing, Storno, Quantity, Publish, Suspend, Reopen, Switch };
inline constexpr int meanwhileCount = 7;

/*!
 * One step at the register. Numbers that pick a position are taken modulo the number of positions
 * there are, so that every command means something in every receipt; where there is none to pick,
 * nothing happens.
 */
struct Command
{
    Verb verb = Verb::Restart;
    int which = 0;
    int other = 0;
    int shape = 0; //!< the form of an argument or event; 0 is what the till does
    bool yes = false;
    double quantity = 1;
    std::vector<double> parts;

    std::uint16_t replies = 0; //!< two bits a request, the first in the lowest; 0 obeys always
    int lateness = 0; //!< events of what the plugin asked for come 0: at once, 1: when the command
                      //!< is over, 2: later still, after a command that is not so late
    Meanwhile meanwhile = Meanwhile::Nothing;
    int meanwhileAt = 0; //!< while this request or question is open, counted from 0
    int meanwhileWhich = 0;
    double meanwhileQuantity = 1;

    Reply reply(int request) const;
    bool operator==(const Command &other) const = default;
};

//! A run of the register: settings, then commands on an opened sale.
struct Script
{
    std::uint64_t salt = 0; //!< of the identifiers
    bool allowSaleEmptyTara = false;
    std::vector<Command> commands;
};

//! \a quantity in the fewest digits that name it exactly.
std::string toText(double quantity);

/*!
 * The script as the till reads it. A command that the till or the plugin refuses is expected to be
 * refused, so that the script goes on. What a till cannot be told is said in a comment.
 */
std::ostream &operator<<(std::ostream &out, const Script &script);

} // namespace model

#endif // TESTS_MODEL_COMMAND_H
