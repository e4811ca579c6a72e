#include "tests/model/Generate.h"

#include "tests/model/Shop.h"

#include <array>
#include <utility>

namespace model {

namespace {

//! Random numbers of one command. RapidCheck seeds it, which keeps a run reproducible.
class Dice
{
public:
    explicit Dice(std::uint64_t seed)
        : m_state(seed)
    {
    }

    //! A number from 0 to below \a sides.
    int roll(int sides)
    {
        m_state += 0x9e3779b97f4a7c15U;
        std::uint64_t bits = m_state;
        bits = (bits ^ (bits >> 30U)) * 0xbf58476d1ce4e5b9U;
        bits = (bits ^ (bits >> 27U)) * 0x94d049bb133111ebU;
        bits ^= bits >> 31U;
        return static_cast<int>(bits % static_cast<std::uint64_t>(sides));
    }

    bool oneIn(int sides) { return roll(sides) == 0; }

    template <std::size_t Size>
    double pick(const std::array<double, Size> &values)
    {
        return values[static_cast<std::size_t>(roll(Size))];
    }

private:
    std::uint64_t m_state;
};

/*!
 * How varied the commands of a receipt are. In a small world the same few things happen to the same
 * few positions again and again, which leads further than variety does.
 */
enum class WorldSize { Small, Large };

double randomQuantity(Dice &dice, WorldSize world)
{
    if (world == WorldSize::Small) {
        constexpr std::array few{1.0, 2.0, 1.0, 2.0, 3.0, 0.0};
        return dice.pick(few);
    }
    constexpr std::array usual{1.0, 2.0, 3.0, 0.5, 1.5, 1.0, 2.0, 4.0, 4.5, 6.0};
    constexpr std::array edges{0.0004, 0.0005, 0.0006, 0.001,  0.00049999, 0.00050001,
                               0.4995, 0.4996, 0.9995, 1.0005, 1.4994,     1.9996,
                               2.0004, 3.0005, 0.5004, 0.0001};
    constexpr std::array odd{0.0, 0.0,           -1.0, -0.5,   -0.0004,
                             1e6, 123456789.125, 1e15, 0.0625, 1.0 / 3};
    const int kind = dice.roll(100);
    if (kind < 60)
        return dice.pick(usual);
    if (kind < 84)
        return (1 + dice.roll(5000)) / 1000.0;
    return kind < 95 ? dice.pick(edges) : dice.pick(odd);
}

//! What stays 0 mostly.
int rarely(Dice &dice, int sides, int values)
{
    return dice.oneIn(sides) ? dice.roll(values) : 0;
}

Verb randomVerb(Dice &dice)
{
    // Of a thousand commands, by and large.
    constexpr std::array<std::pair<Verb, int>, verbCount> weights{{
        {Verb::Add, 270},
        {Verb::Quantity, 250},
        {Verb::Storno, 90},
        {Verb::Split, 80},
        {Verb::Unite, 60},
        {Verb::Publish, 70},
        {Verb::Modify, 20},
        {Verb::Subtotal, 45},
        {Verb::Pay, 12},
        {Verb::Open, 6},
        {Verb::Reopen, 30},
        {Verb::Restart, 20},
        {Verb::Setting, 12},
        {Verb::Switch, 25},
        {Verb::Forget, 8},
        {Verb::SoftCheck, 5},
        {Verb::Order, 4},
    }};
    int sum = 0;
    for (const auto &[verb, weight] : weights)
        sum += weight;
    int roll = dice.roll(sum);
    for (const auto &[verb, weight] : weights) {
        if (roll < weight)
            return verb;
        roll -= weight;
    }
    return Verb::Restart;
}

int randomArticle(Dice &dice, WorldSize world)
{
    constexpr int tara = 1;
    if (world == WorldSize::Small)
        return dice.oneIn(12) ? tara + 1 : dice.roll(tara + 1);
    // The first articles of the shop are the ones that the others are beside.
    const int kind = dice.roll(100);
    if (kind < 38)
        return 0;
    if (kind < 60)
        return 1 + dice.roll(2);
    return dice.roll(static_cast<int>(articles.size()));
}

void addCircumstances(Command &command, Dice &dice, WorldSize world)
{
    if (world == WorldSize::Small && !dice.oneIn(4))
        return;
    if (dice.oneIn(5))
        command.replies = static_cast<std::uint16_t>(dice.roll(1 << 16) & dice.roll(1 << 16));
    command.lateness = rarely(dice, 6, 3);
    if (dice.oneIn(6)) {
        command.meanwhile = static_cast<Meanwhile>(dice.roll(meanwhileCount));
        command.meanwhileAt = dice.roll(2);
        command.meanwhileWhich = dice.roll(6);
        command.meanwhileQuantity = randomQuantity(dice, world);
    }
}

Command randomCommand(std::uint64_t seed, WorldSize world)
{
    Dice dice(seed);
    Command command;
    command.verb = randomVerb(dice);
    command.which = command.verb == Verb::Add ? randomArticle(dice, world)
                                              : dice.roll(world == WorldSize::Small ? 4 : 12);
    command.other = 1 + dice.roll(3);
    command.yes = !dice.oneIn(4);
    command.quantity = randomQuantity(dice, world);
    const bool hasForms = command.verb == Verb::Split || command.verb == Verb::Unite;
    if (hasForms)
        command.shape = rarely(dice, 4, 6);
    if (command.verb == Verb::Publish)
        command.shape = dice.roll(6);
    if (command.verb == Verb::Open)
        command.shape = dice.oneIn(4) ? 1 : 0;
    if (hasForms) {
        for (int parts = dice.roll(4); parts > 0; --parts)
            command.parts.push_back(randomQuantity(dice, world));
    }
    addCircumstances(command, dice, world);
    return command;
}

rc::Shrinkable<Command> shrinkable(const Command &command)
{
    return rc::shrinkable::shrinkRecur(
        command, [](const Command &c) { return rc::seq::fromContainer(simpler(c)); });
}

rc::Gen<std::vector<Command>> commandsOf(WorldSize world)
{
    const rc::Gen<Command> command([world](const rc::Random &random, int) {
        return shrinkable(randomCommand(rc::Random(random).next(), world));
    });
    constexpr int longest = 120;
    return rc::gen::resize(longest, rc::gen::container<std::vector<Command>>(command));
}

} // namespace

std::vector<Command> simpler(const Command &command)
{
    std::vector<Command> found;
    const auto with = [&](auto member, auto value) {
        Command changed = command;
        changed.*member = value;
        if (!(changed == command))
            found.push_back(std::move(changed));
    };
    with(&Command::meanwhile, Meanwhile::Nothing);
    with(&Command::lateness, 0);
    with(&Command::replies, std::uint16_t{0});
    for (int request = 0; request < 8; ++request)
        with(&Command::replies, static_cast<std::uint16_t>(command.replies & ~(3 << 2 * request)));
    if (command.verb != Verb::Open && command.verb != Verb::Publish)
        with(&Command::shape, 0);
    if (!command.parts.empty())
        with(&Command::parts, std::vector<double>(command.parts.begin(), command.parts.end() - 1));
    if (command.which > 0) {
        with(&Command::which, 0);
        with(&Command::which, command.which / 2);
        with(&Command::which, command.which - 1);
    }
    if (command.quantity != 1) {
        with(&Command::quantity, 1.0);
        if (command.quantity != 2)
            with(&Command::quantity, 2.0);
    }
    if (command.meanwhile != Meanwhile::Nothing && command.meanwhileQuantity != 1)
        with(&Command::meanwhileQuantity, 1.0);
    return found;
}

rc::Gen<Script> scripts()
{
    const auto commands = rc::gen::weightedOneOf<std::vector<Command>>(
        {{1, commandsOf(WorldSize::Small)}, {2, commandsOf(WorldSize::Large)}});
    return rc::gen::map(
        rc::gen::tuple(rc::gen::noShrink(rc::gen::arbitrary<std::uint64_t>()),
                       rc::gen::weightedElement<bool>({{1, true}, {3, false}}), commands),
        [](std::tuple<std::uint64_t, bool, std::vector<Command>> &&drawn) {
            return Script{std::get<0>(drawn), std::get<1>(drawn), std::move(std::get<2>(drawn))};
        });
}

} // namespace model
