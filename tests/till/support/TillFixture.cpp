#include "tests/till/support/TillFixture.h"

#include "tests/till/support/SampleShop.h"

namespace till {

void PrintTo(const Outcome &outcome, std::ostream *out)
{
    static const char *const names[] = {"done",
                                        "refused by the plugin",
                                        "refused by the register",
                                        "declined",
                                        "mistake",
                                        "failed",
                                        "unexpected"};
    *out << names[outcome.kind] << " \"" << outcome.text().toStdString() << '"';
}

TillTest::TillTest()
    : hearing(notes.subscribe([this](const QJsonObject &note) { heard.append(note); },
                              Notes::Of::CourseAndStates))
{
    start();
}

TillTest::~TillTest()
{
    commands.reset();
    till.reset();
}

till::Setup TillTest::setup() const
{
    return sampleShop(path("till.sqlite"));
}

void TillTest::start(const till::Setup &setup, const QString &language)
{
    commands.reset();
    till.reset();
    translator = std::make_unique<Translator>(language);
    till = std::make_unique<CashDesk>(setup, notes);
    must(till->start());
    const auto print = [this](const QString &text) { printed.append(text); };
    commands = std::make_unique<CommandLine>(*till, notes, *translator, Style(),
                                             CommandLine::Person{print, {}});
}

void TillTest::done(const QStringList &lines)
{
    for (const QString &line : lines)
        ends(Outcome::Done, line);
}

QString TillTest::refused(const QString &line)
{
    const Outcome outcome = run(line);
    EXPECT_TRUE(outcome.isRefusal())
        << line.toStdString() << ": " << testing::PrintToString(outcome);
    return outcome.reason.key();
}

QString TillTest::mistake(const QString &line)
{
    return ends(Outcome::Mistake, line).text(Translator(QStringLiteral("en")));
}

QString TillTest::unexpected(const QString &line)
{
    return ends(Outcome::Unexpected, line).text(Translator(QStringLiteral("en")));
}

Outcome TillTest::ends(Outcome::Kind kind, const QString &line)
{
    const Outcome outcome = run(line);
    EXPECT_EQ(outcome.kind, kind) << line.toStdString() << ": " << testing::PrintToString(outcome);
    return outcome;
}

void TillTest::expect(const QStringList &expectations)
{
    for (const QString &expectation : expectations)
        ends(Outcome::Done, "expect " + expectation);
}

QList<QJsonObject> TillTest::notesOf(const QString &kind) const
{
    QList<QJsonObject> found;
    for (const QJsonObject &note : heard) {
        if (note.value("kind").toString() == kind)
            found.append(note);
    }
    return found;
}

QVariantList TillTest::noted(const QString &kind, const QString &field) const
{
    QVariantList values;
    const QList<QJsonObject> found = notesOf(kind);
    for (const QJsonObject &note : found)
        values.append(note.value(field).toVariant());
    return values;
}

} // namespace till
