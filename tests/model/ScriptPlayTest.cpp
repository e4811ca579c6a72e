#include "tests/model/Generate.h"
#include "tests/model/ModelHost.h"
#include "tests/model/TillProgram.h"
#include "tests/support/Chance.h"

#include <charconv>
#include <cmath>
#include <iostream>

// Scripts that the model prints, played by the till: what a tester is given must lead to where the
// model was.

namespace {

using namespace model;

constexpr std::size_t shortest = 5; //!< commands

//! Whether the text says something that a till cannot be told.
bool isMarked(const std::string &text)
{
    for (const std::string &line : linesOf(text)) {
        if (line.starts_with("#") && !line.starts_with("# identifiers: ")
            && !line.starts_with(rowMark))
            return true;
    }
    return false;
}

//! \a drawn without the commands that a till cannot be told.
Script playable(const Script &drawn)
{
    Script kept{drawn.salt, drawn.allowSaleEmptyTara, {}};
    for (const Command &command : drawn.commands) {
        kept.commands.push_back(command);
        if (isMarked(printed(kept)))
            kept.commands.pop_back();
    }
    return kept;
}

// The records of the current receipt, as the till can be asked for them

/*!
 * Adds what is expected of a quantity, to the till's three decimals. One about halfway between two
 * thousandths is left out: the last bit, which the order of the identifiers decides, rounds it.
 */
void expectQuantity(std::string &expected, const std::string &what, double quantity)
{
    const double thousandths = std::fabs(quantity) * 1000;
    if (std::fabs(thousandths - std::floor(thousandths) - 0.5) < 0.01)
        return;
    char text[400];
    const auto end =
        std::to_chars(text, text + sizeof text, quantity, std::chars_format::fixed, 3).ptr;
    expected += ' ' + what + ' ' + std::string(text, end);
}

std::string expectedTara(const Tara &tara)
{
    std::string expected;
    expectQuantity(expected, "capacity", tara.capacity);
    expectQuantity(expected, "free", tara.free);
    return expected.empty() ? "" : "expect tara " + std::to_string(tara.posnum) + expected + '\n';
}

std::string expectedGoods(const Goods &goods, const std::vector<Tara> &taras)
{
    std::string expected;
    for (const Tara &tara : taras) {
        const auto used = goods.used.find(tara.id);
        expectQuantity(expected, "in " + std::to_string(tara.posnum),
                       used == goods.used.end() ? 0 : used->second);
    }
    return expected.empty() ? "" : "expect goods " + std::to_string(goods.posnum) + expected + '\n';
}

std::string expectedRecords(const Script &script)
{
    ModelHost host(script.salt, script.allowSaleEmptyTara);
    for (const Command &command : script.commands)
        host.run(command);
    const Receipt &receipt = host.receipt();
    std::string text = "expect records " + std::to_string(receipt.savedTara.size()) + ' '
                       + std::to_string(receipt.savedGoods.size()) + '\n';
    for (const Tara &tara : receipt.savedTara)
        text += expectedTara(tara);
    for (const Goods &goods : receipt.savedGoods)
        text += expectedGoods(goods, receipt.savedTara);
    return text;
}

class ScriptPlay : public TillProgram
{
protected:
    //! Takes up \a text as one more script.
    void add(const std::string &text)
    {
        files.append(write(QString("%1.till").arg(files.size() + 1), text));
        takeRows(text);
        for (const std::string &line : linesOf(text)) {
            commands += line.starts_with("#") || line.empty() ? 0 : 1;
            refusals += line.starts_with("expect refused ") ? 1 : 0;
            mistakes += line.starts_with("expect mistake ") ? 1 : 0;
        }
    }

    //! Plays all scripts; empty when the till says that all held, or else what it complains of and
    //! where.
    std::string play() const
    {
        const Run played = run(QStringList{"--plugin", pluginFile("Sound"), "play"} + files);
        const std::string all = std::to_string(files.size());
        const bool isWell =
            played.status == 0 && played.err.empty()
            && played.out.find('\n' + all + " of " + all + " scripts held; ") != std::string::npos;
        return isWell ? ""
                      : "status " + std::to_string(played.status) + ": " + played.err
                            + blamed(played, files);
    }

    QStringList files;
    long commands = 0;
    long refusals = 0;
    long mistakes = 0;
};

TEST_F(ScriptPlay, PrintedScripts_PlayToTheEndAndLeaveTheModelsRecords)
{
    SCOPED_TRACE(repeatedBy(testSeed()));
    const auto generator = scripts();
    const std::size_t wanted = 50U * static_cast<unsigned>(testEffort());
    rc::Random random(testSeed());
    while (static_cast<std::size_t>(files.size()) < wanted) {
        const Script script = playable(generator(random.split(), 0).value());
        if (script.commands.size() >= shortest)
            add(printed(script) + expectedRecords(script));
    }
    EXPECT_EQ(play(), "");
    std::cout << "model: " << files.size() << " scripts played, " << commands << " lines, "
              << refusals << " refusals, " << mistakes << " mistakes, seed " << testSeed()
              << std::endl;
    // There was something to stop at.
    EXPECT_GT(refusals, 0);
}

TEST_F(ScriptPlay, ScriptThatStops_IsNoticed)
{
    add("open\nadd PET1\nadd BEER 0.5\nqty 1 2\n");
    const std::string said = play();
    EXPECT_NE(said.find("1.till:4: qty 1 2: refused"), std::string::npos) << said;
    EXPECT_NE(said.find("\nadd BEER 0.5\nqty 1 2\n"), std::string::npos) << said;
}

} // namespace
