#include "tests/till/console/ProgramFixture.h"

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
    const QStringList lines = linesOf("help\n");
    EXPECT_GT(lines.size(), 20);
    for (const QString &line : lines) {
        const QString usage = line.mid(2, 28).trimmed();
        if (usage.isEmpty())
            continue; // the explanation goes on
        EXPECT_TRUE(hasRow(usage)) << usage.toStdString();
    }
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

} // namespace
