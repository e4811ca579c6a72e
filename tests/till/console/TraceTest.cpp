#include "host/EActionType.h"
#include "tests/till/console/ProgramFixture.h"
#include "tests/till/support/SampleScripts.h"
#include "tests/till/support/StoredReceipts.h"
#include "till/course/RebuiltReceipt.h"
#include "till/receipt/Receipt.h"

#include <QtCore/QDateTime>

// The trace of the sample scripts, and receipts rebuilt from it alone.

namespace {

using testing::HasSubstr;

//! The receipts of a trace as they were last, and their totals, by their numbers.
struct Told
{
    QMap<qint64, till::ReceiptRecord> receipts;
    QMap<qint64, qint64> totals;
};

Told told(const QList<QJsonObject> &notes)
{
    Told told;
    till::RebuiltReceipt current;
    for (const QJsonObject &note : notes) {
        current.read(note);
        const qint64 id = current.record.id;
        if (note.value("kind") == "receipt" && id != 0) {
            told.receipts.insert(id, current.whole());
            told.totals.insert(id, note.value("total").toInteger());
        }
    }
    return told;
}

class Trace : public ProgramTest
{
protected:
    //! Plays the script into a trace; its notes.
    QList<QJsonObject> traced(const QString &script)
    {
        const RunResult done =
            run({"--db", database(), "--trace", path("trace"), "--quiet", "play", script});
        EXPECT_EQ(done.status, 0) << done.err;
        return trace(contents(path("trace")));
    }

    void expectRebuilt(const QList<QJsonObject> &notes) const
    {
        const auto [receipts, totals] = told(notes);
        EXPECT_FALSE(receipts.isEmpty());
        for (auto receipt = receipts.cbegin(); receipt != receipts.cend(); ++receipt) {
            const auto stored = storedReceipt(database(), receipt.key());
            ASSERT_TRUE(stored.has_value());
            EXPECT_TRUE(*receipt == *stored) << "receipt " << receipt.key();
            EXPECT_EQ(totals.value(receipt.key()), till::Receipt(*stored).total());
        }
    }
};

class SampleTrace : public Trace, public testing::WithParamInterface<till::SampleScript>
{
};

TEST_P(SampleTrace, Receipts_AreRebuiltFromItAlone)
{
    expectRebuilt(traced(GetParam().path));
}

TEST_P(SampleTrace, Lines_AreNumberedAndNested)
{
    const QList<QJsonObject> notes = traced(GetParam().path);
    int depth = 0;
    for (qsizetype i = 0; i < notes.size(); ++i) {
        EXPECT_EQ(notes[i].value("line").toInteger(), i + 1);
        const QString kind = notes[i].value("kind").toString();
        const int noted = notes[i].value("depth").toInt();
        EXPECT_LE(noted, depth + 2) << i + 1; // into a trigger or an action within an event
        if (kind == "command" || kind == "outcome") {
            EXPECT_EQ(noted, 0) << i + 1;
        }
        depth = noted;
    }
}

TEST_P(SampleTrace, Actions_EndInTheirResultAtTheirDepth)
{
    QList<QJsonObject> open;
    const QList<QJsonObject> notes = traced(GetParam().path);
    for (const QJsonObject &note : notes) {
        if (note.value("kind") == "action") {
            open.append(note);
        } else if (note.value("kind") == "result") {
            ASSERT_FALSE(open.isEmpty());
            const QJsonObject action = open.takeLast();
            EXPECT_EQ(action.value("type"), note.value("type"));
            EXPECT_EQ(action.value("depth"), note.value("depth"));
        }
    }
    EXPECT_TRUE(open.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Scripts, SampleTrace, testing::ValuesIn(till::sampleScripts()),
                         till::sampleName);

//! The last note of \a kind.
QJsonObject lastOf(const QList<QJsonObject> &notes, const QString &kind)
{
    QJsonObject last;
    for (const QJsonObject &note : notes)
        last = note.value("kind") == kind ? note : last;
    return last;
}

TEST_F(Trace, OfAnInterruptedReceipt_BeginsWithAllOfIt)
{
    ASSERT_EQ(run({"--db", database()}, "open\nadd CAN3\nadd BEER 3\nsplit 2 1\nadd PET1\n"
                                        "answer yes\nstorno 4\nsoftcheck 9\n")
                  .status,
              0);
    expectRebuilt(traced(write("s.till", "qty 2 1\n")));
}

TEST_F(Trace, Order_IsThatOfWhatHappened)
{
    const auto notes = traced(write("s.till", "open\nadd PET15\nadd BEER 1.5\nqty 1 2\n"));
    QStringList kinds;
    bool inChange = false;
    for (const QJsonObject &note : notes) {
        inChange = inChange || note.value("text") == "qty 1 2";
        const QString kind = note.value("kind").toString();
        if (inChange && kind != "log" && kind != "data")
            kinds.append(QString("%1 %2").arg(note.value("depth").toInt()).arg(kind));
    }
    EXPECT_EQ(
        kinds.join(", "),
        QString(
            "0 command, 1 action, 2 trigger, 2 position, 2 event, 3 action, 4 trigger, "
            "4 position, 4 event, 3 result, 1 result, 1 receipt, 0 outcome, 0 verdict, 0 takeup"));
}

TEST_F(Trace, Start_SaysWhatIsOnAndWhen)
{
    const QJsonObject start =
        lastOf(traced(write("s.till", "set PackagingControl:allowSaleEmptyTara no")), "start");
    EXPECT_EQ(start.value("qt"), qVersion());
    EXPECT_FALSE(start.value("version").toString().isEmpty());
    EXPECT_EQ(start.value("database"), database());
    EXPECT_TRUE(start.value("catalogue").toString().endsWith("catalogue.csv"));
    EXPECT_EQ(start.value("settings").toObject(),
              (QJsonObject{{"PackagingControl:allowSaleEmptyTara", false}}));
    const auto time = QDateTime::fromString(start.value("time").toString(), Qt::ISODateWithMs);
    EXPECT_TRUE(time.isValid());
    EXPECT_EQ(time.timeSpec(), Qt::UTC);
}

TEST_F(Trace, ReceiptThatIsNotTakenUpAgain_IsLetGo)
{
    const auto notes = traced(write("s.till", "open\nadd CHIPS\npay\nrestart\n"));
    QStringList takeups;
    for (const QJsonObject &note : notes) {
        const QString kind = note.value("kind").toString();
        if (kind == "takeup" || kind == "start")
            takeups.append(kind + QString::number(note.value("id").toInteger()));
    }
    EXPECT_EQ(takeups, (QStringList{"start0", "takeup0", "takeup0", "start0"}));
}

TEST_F(Trace, ChangeOfAQuantity_SaysWhichOne)
{
    const auto notes = traced(write("s.till", "open\nadd CAN3\nadd BEER3\nqty 1 2\n"));
    QStringList quantities;
    for (const QJsonObject &note : notes) {
        if (note.value("kind") == "action" && note.value("type") == control::ApplyModifiers)
            quantities.append(QString("%1 %2 %3")
                                  .arg(note.value("origin").toString())
                                  .arg(note.value("count").toDouble())
                                  .arg(note.value("base").toDouble()));
    }
    EXPECT_EQ(quantities, (QStringList{"cashier 2 2", "program 0 6"}));
}

TEST_F(Trace, ActionThatIsStopped_SaysWhy)
{
    const auto byPlugin =
        traced(write("s.till", "open\nadd CAN3\nadd BEER 1\nexpect refused qty 1 2\n"));
    EXPECT_EQ(lastOf(byPlugin, "result").value("result"), 1);
    EXPECT_EQ(lastOf(byPlugin, "result").value("key"), "packingControlTaraAlmostFull");
    EXPECT_FALSE(lastOf(byPlugin, "result").value("text").toString().isEmpty());
}

TEST_F(Trace, Script_IsToldLineByLineWithItsVerdict)
{
    const QString script = write("s.till", "# a comment\n\nopen\nexpect state closed\n");
    const RunResult done = run({"--trace", "-", "play", script});
    EXPECT_EQ(done.status, 1);
    const auto notes = trace(QByteArray::fromStdString(done.out));
    QList<int> lines;
    for (const QJsonObject &note : notes) {
        if (note.value("kind") == "script")
            lines.append(note.value("at").toInt());
    }
    EXPECT_EQ(lines, QList<int>({3, 4}));
    const QJsonObject verdict = lastOf(notes, "verdict");
    EXPECT_EQ(verdict.value("file"), script);
    EXPECT_EQ(verdict.value("held"), false);
    EXPECT_THAT(verdict.value("fault").toString().toStdString(), HasSubstr("s.till:4"));
    EXPECT_EQ(lastOf(notes, "outcome").value("outcome"), "unexpected");
}

TEST_F(Trace, CommandThatEndsOtherwiseThanExpected_HasItsOwnOutcomeAndThenThatOne)
{
    const auto notes = trace(QByteArray::fromStdString(
        run({"--trace", "-", "play", write("s.till", "expect refused open\n")}).out));
    QStringList outcomes;
    for (const QJsonObject &note : notes) {
        if (note.value("kind") == "command")
            outcomes.append(note.value("text").toString());
        if (note.value("kind") == "outcome")
            outcomes.append(note.value("outcome").toString());
    }
    EXPECT_EQ(outcomes, (QStringList{"open sale", "done", "expect refused open", "unexpected"}));
}

TEST_F(Trace, ToStandardOutput_IsAllThatStandsThere)
{
    const RunResult done =
        run({"--trace", "-", "play", write("s.till", "open\nadd CHIPS\nshow\n")});
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(trace(QByteArray::fromStdString(done.out)).last().value("kind").toString(),
              QString("takeup"));
}

//! The rows of the tables of docs/trace.md: kinds, then what is said of their fields.
QMap<QString, QString> documentedKinds(const QString &page)
{
    QMap<QString, QString> kinds;
    const QStringList lines = page.split('\n');
    for (const QString &line : lines) {
        if (line.startsWith("| `"))
            kinds.insert(line.section('`', 1, 1), line);
    }
    return kinds;
}

TEST_F(Trace, EachKindAndField_IsInTheDocument)
{
    const QString page = QString::fromUtf8(contents(QStringLiteral(DOCS_DIR "/trace.md")));
    const auto kinds = documentedKinds(page);
    const QList<till::SampleScript> scripts = till::sampleScripts();
    for (const till::SampleScript &script : scripts) {
        const auto notes =
            trace(QByteArray::fromStdString(run({"--trace", "-", "play", script.path}).out));
        for (const QJsonObject &note : notes) {
            const QString kind = note.value("kind").toString();
            ASSERT_TRUE(kinds.contains(kind)) << kind.toStdString();
            // An action has its arguments too, which have a paragraph of their own.
            const QString text = kind == "action" ? page : kinds.value(kind);
            const QStringList fields = note.keys();
            for (const QString &field : fields) {
                if (QStringList{"line", "kind", "depth"}.contains(field))
                    continue;
                EXPECT_TRUE(text.contains('`' + field + '`'))
                    << kind.toStdString() << ' ' << field.toStdString();
            }
        }
    }
}

} // namespace
