#include "host/EActionType.h"
#include "tests/till/console/ProgramFixture.h"

#include <QtCore/QRegularExpression>

// docs/till.md says what the program can do, word for word as the program itself does.

namespace {

class Page : public ProgramTest
{
protected:
    const QString page = QString::fromUtf8(contents(QStringLiteral(DOCS_DIR "/till.md")));

    //! Whether the page has \a usage in a row of a table.
    bool hasRow(const QString &usage) const
    {
        return page.contains("| `" + QString(usage).replace("|", "\\|") + "` |");
    }

    QStringList linesOf(const QByteArray &command) const
    {
        const std::string out = run({"--db", ":memory:", "--lang", "en"}, command).out;
        return QString::fromStdString(out).split('\n', Qt::SkipEmptyParts);
    }
};

TEST_F(Page, EachCommand_IsThere)
{
    // Two spaces at least lie between a usage and its explanation, which may go on in more lines.
    const QRegularExpression row("^  (\\S.*?)(  |$)");
    int commands = 0;
    const QStringList lines = linesOf("help\n");
    for (const QString &line : lines) {
        const auto found = row.match(line);
        if (!found.hasMatch())
            continue;
        ++commands;
        EXPECT_TRUE(hasRow(found.captured(1))) << found.captured(1).toStdString();
    }
    EXPECT_GT(commands, 20);
}

TEST_F(Page, EachExpectation_IsThere)
{
    int expectations = 0;
    const QStringList lines = linesOf("help expect\n");
    for (const QString &line : lines) {
        if (!line.startsWith("  expect ") || line.contains("accepted|refused|mistake"))
            continue;
        ++expectations;
        EXPECT_TRUE(hasRow(line.trimmed())) << line.toStdString();
    }
    EXPECT_GT(expectations, 10);
    for (const QString end : {"accepted", "refused", "mistake"})
        EXPECT_TRUE(hasRow("expect " + end + " COMMAND..."));
}

TEST_F(Page, EachOption_IsThere)
{
    const QStringList lines = QString::fromStdString(run({"--help"}).out).split('\n');
    int options = 0;
    for (const QString &line : lines) {
        const QString option = line.trimmed().section(' ', 0, 0).remove(',');
        if (!line.startsWith("  --"))
            continue;
        ++options;
        EXPECT_TRUE(page.contains('`' + option + ' ') || page.contains('`' + option + '`'))
            << option.toStdString();
    }
    EXPECT_GE(options, 10);
}

TEST_F(Page, Example_Holds)
{
    const QString script = page.section("    # A bottle", 1).section("## Options", 0, 0);
    EXPECT_FALSE(script.isEmpty());
    play(("# A bottle" + script).toUtf8());
}

//! What the pages say of receipts, played.
TEST_F(Page, Facts_AreSo)
{
    play("open\nadd CHIPS 3\nsplit 1 1 2\nexpect position 1 stornoed quantity 3 sum 389.70\n"
         "expect total 389.70\nsubtotal\norder 7\nsoftcheck 8\nexpect state subtotal\n");
    play("open\nadd CAN3\nadd BEER 2\nqty 2 1\nexpect goods 2 unplaced -1\n");
    const QString packs =
        write("c.csv", "CODE\tЦена\tname\tTara_Mode\tёмкость тары\tpack\tunit\tx\n"
                       "T\t1\tT\t1\t1\t1\t\t\nG\t1,5\tG\t2\t\t3\tl\t\n");
    play("open\nadd T\nadd T\nadd G\nanswer yes\nstorno 2\n"
         "expect position 3 quantity 0.667 base 2 sum 1\n",
         {"--catalogue", packs});
    const QString other = write("c.csv", "code,name,price,tara mode,tara capacity,pack,unit\n"
                                         "T,T,1,3,,1,\n");
    EXPECT_EQ(run({"--catalogue", other}).status, 3);
}

TEST_F(Page, TakeUpInTheTrace_IsSo)
{
    run({"--db", database()}, "open\nadd CHIPS\nsubtotal\nsoftcheck 8\n");
    const auto notes =
        trace(QByteArray::fromStdString(run({"--db", database(), "--trace", "-"}, "say\n").out));
    QStringList kinds;
    for (const QJsonObject &note : notes) {
        const QString kind = note.value("kind").toString();
        kinds.append(kind);
        if (kind == "receipt") {
            EXPECT_EQ(note.value("recomputations").toInt(), 1);
            EXPECT_EQ(note.value("state").toInt(), 0);
        }
        if (kind == "trigger") {
            EXPECT_EQ(note.value("type").toInt(), control::AddSoftCheck);
        }
    }
    EXPECT_TRUE(kinds.contains("receipt"));
    EXPECT_TRUE(kinds.contains("trigger"));
    EXPECT_FALSE(kinds.contains("action"));
}

} // namespace
