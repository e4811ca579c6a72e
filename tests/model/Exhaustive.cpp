#include "tests/model/Exhaustive.h"

#include "tests/model/Difference.h"

#include <sstream>
#include <utility>

namespace model {

namespace {

constexpr std::uint64_t hostSalt = 7;
constexpr bool isEmptyTaraSold = false;

enum ArticleIndex { Beer = 0, Pet1 = 1, Can3 = 2, Dark = 3 };

Command commandOf(Verb verb, int which, double quantity = 1)
{
    Command command;
    command.verb = verb;
    command.which = which;
    command.quantity = quantity;
    return command;
}

//! The host refuses the first of what the plugin asks for.
Command refusedOnce(Command command)
{
    command.replies = static_cast<std::uint16_t>(Reply::Refuse);
    return command;
}

Command split(int which, std::vector<double> parts)
{
    Command command = commandOf(Verb::Split, which);
    command.parts = std::move(parts);
    return command;
}

Command unite(int which)
{
    Command command = commandOf(Verb::Unite, which);
    command.other = 1;
    return command;
}

Command subtotal(bool yes)
{
    Command command = commandOf(Verb::Subtotal, 0);
    command.yes = yes;
    return command;
}

} // namespace

std::vector<Command> smallAlphabet()
{
    std::vector<Command> commands{commandOf(Verb::Add, Pet1), commandOf(Verb::Add, Can3)};
    for (const double quantity : {0.0, 0.0004, 0.0005, 0.0006, 0.5, 1.0, 5.0})
        commands.push_back(commandOf(Verb::Add, Beer, quantity));
    commands.push_back(commandOf(Verb::Add, Dark, 0.5));
    for (const int which : {0, 1, 2}) {
        for (const double quantity : {0.0, 0.0005, 0.5, 1.0004, 5.0})
            commands.push_back(commandOf(Verb::Quantity, which, quantity));
        commands.push_back(commandOf(Verb::Storno, which));
        commands.push_back(unite(which));
    }
    for (const Command &refused : {commandOf(Verb::Quantity, 0, 2), commandOf(Verb::Storno, 0),
                                   commandOf(Verb::Storno, 1), subtotal(true)})
        commands.push_back(refusedOnce(refused));
    commands.insert(commands.end(), {split(1, {0.5}), split(2, {0.5, 1}), subtotal(true),
                                     subtotal(false), commandOf(Verb::Reopen, 0)});
    return commands;
}

std::vector<Command> sharedOpening()
{
    return {commandOf(Verb::Add, Pet1), commandOf(Verb::Add, Can3), commandOf(Verb::Add, Beer, 1.5),
            commandOf(Verb::Add, Dark, 1)};
}

Exhaustive::Exhaustive(const RealHost::MakePlugin &makePlugin, std::vector<Command> alphabet)
    : m_alphabet(std::move(alphabet))
    , m_real(hostSalt, isEmptyTaraSold, makePlugin)
    , m_expected(hostSalt, isEmptyTaraSold)
    , m_realStart(m_real.moment())
    , m_expectedStart(m_expected.moment())
{
    m_found = difference(m_real, m_expected);
}

std::string Exhaustive::compare(const std::vector<Command> &opening, int longest)
{
    m_real.returnTo(m_realStart);
    m_expected.returnTo(m_expectedStart);
    m_commands.clear();
    for (const Command &command : opening) {
        if (m_found.empty())
            step(command);
    }
    goOn(longest);
    return m_found;
}

//! Runs \a command on both.
void Exhaustive::step(const Command &command)
{
    m_commands.push_back(command);
    m_real.journal.clear();
    m_expected.journal().clear();
    m_real.run(command);
    m_expected.run(command);
    const std::string found = difference(m_real, m_expected);
    if (found.empty())
        return;
    std::ostringstream out;
    out << Script{hostSalt, isEmptyTaraSold, m_commands} << found;
    m_found = out.str();
}

//! Every command from here, and after each of them every command again.
void Exhaustive::goOn(int left)
{
    if (left == 0)
        return;
    const RealHost::Moment real = m_real.moment();
    const ModelHost::Moment expected = m_expected.moment();
    for (const Command &command : m_alphabet) {
        if (!m_found.empty())
            return;
        step(command);
        ++m_sequences;
        goOn(left - 1);
        m_commands.pop_back();
        m_real.returnTo(real);
        m_expected.returnTo(expected);
    }
}

} // namespace model
