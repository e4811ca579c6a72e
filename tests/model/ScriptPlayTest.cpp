#include "tests/model/Generate.h"
#include "tests/model/ModelHost.h"
#include "tests/support/Chance.h"

#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <charconv>
#include <cmath>
#include <iostream>
#include <set>
#include <sstream>

// Scripts that the model prints, played by the till: what a tester is given must lead to where the
// model was.

namespace {

using namespace model;

constexpr std::size_t shortest = 5; //!< commands
constexpr int patience = 120'000;   //!< milliseconds, for a till that hangs

const std::string rowMark = "# catalogue: ";

std::string printed(const Script &script)
{
    std::ostringstream out;
    out << script;
    return out.str();
}

std::vector<std::string> linesOf(const std::string &text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

bool startsWith(const std::string &line, const std::string &beginning)
{
    return line.compare(0, beginning.size(), beginning) == 0;
}

//! Whether the text says something that a till cannot be told.
bool isMarked(const std::string &text)
{
    for (const std::string &line : linesOf(text)) {
        if (startsWith(line, "#") && !startsWith(line, "# identifiers: ")
            && !startsWith(line, rowMark))
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

class ScriptPlay : public testing::Test
{
protected:
    //! Takes up \a text as one more script.
    void add(const std::string &text)
    {
        files.append(write(QString("%1.till").arg(files.size() + 1), text));
        for (const std::string &line : linesOf(text)) {
            if (startsWith(line, rowMark))
                rows.insert(line.substr(rowMark.size()));
            commands += startsWith(line, "#") || line.empty() ? 0 : 1;
            refusals += startsWith(line, "expect refused ") ? 1 : 0;
            mistakes += startsWith(line, "expect mistake ") ? 1 : 0;
        }
    }

    //! Plays all scripts; empty when the till says that all held, or else what it complains of.
    std::string play() const
    {
        QProcess process;
        process.start(TILL_PROGRAM,
                      QStringList{"--quiet", "--lang", "en", "--catalogue", catalogue(), "play"}
                          + files);
        if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
            return "the till did not end by itself";
        const std::string complaint = process.readAllStandardError().toStdString();
        const QString held = QString("\n%1 of %1 scripts held; ").arg(files.size());
        const bool isWell = process.exitCode() == 0 && complaint.empty()
                            && process.readAllStandardOutput().contains(held.toUtf8());
        return isWell ? "" : "status " + std::to_string(process.exitCode()) + ": " + complaint;
    }

    QStringList files;
    long commands = 0;
    long refusals = 0;
    long mistakes = 0;

private:
    QString write(const QString &name, const std::string &text) const
    {
        QFile file(directory.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(QByteArray::fromStdString(text)), static_cast<qint64>(text.size()));
        return file.fileName();
    }

    //! The sample shop's articles, and those that the scripts bring.
    QString catalogue() const
    {
        QFile sample(TILL_SHARE_DIR "/catalogue.csv");
        EXPECT_TRUE(sample.open(QIODevice::ReadOnly));
        std::string text = sample.readAll().toStdString();
        for (const std::string &row : rows)
            text += row + '\n';
        return write("catalogue.csv", text);
    }

    QTemporaryDir directory;
    std::set<std::string> rows;
};

TEST_F(ScriptPlay, PrintedScripts_PlayToTheEndAndLeaveTheModelsRecords)
{
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
    EXPECT_NE(play().find("1.till:4: qty 1 2: refused"), std::string::npos);
}

} // namespace
