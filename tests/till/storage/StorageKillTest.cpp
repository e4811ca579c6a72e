#include "tests/support/Chance.h"
#include "tests/till/storage/StorageFixture.h"
#include "tests/till/storage/StorageWriterPlan.h"

#include <QtCore/QProcess>

#include <random>

namespace till {

namespace {

//! How far the writer has come.
struct Progress
{
    qint64 id = 0;
    int step = 0;

    bool operator==(const Progress &other) const = default;
    //! All steps until here, over all receipts.
    qint64 steps() const { return id == 0 ? 0 : (id - 1) * StepsOfAReceipt + step; }
};

void PrintTo(const Progress &progress, std::ostream *out)
{
    *out << "receipt " << progress.id << " step " << progress.step;
}

//! A register that is killed again and again while it saves.
class StorageKill : public StorageTest
{
protected:
    /*!
     * Lets the writer go on until it is killed in front of its \a call-th call of the disk, 1 the
     * first, and returns what it acknowledged last.
     */
    Progress runAndKill(const QString &file, int call)
    {
        QProcess writer;
        writer.start(STORAGE_WRITER, {"steps", file, QString::number(call)});
        EXPECT_TRUE(writer.waitForFinished(patience));
        const QByteArray output = writer.readAllStandardOutput();
        EXPECT_EQ(writer.readAllStandardError(), QByteArray());
        EXPECT_EQ(writer.exitStatus(), QProcess::CrashExit) << output.constData();
        return lastOf(output);
    }

    //! What is stored of the receipts from \a first on; each must be whole.
    Progress stored(const Storage &storage, qint64 first)
    {
        Progress progress;
        for (qint64 id = first; auto record = receipt(storage, id); ++id) {
            progress = {id, record->nextPosnum - 1};
            EXPECT_EQ(*record, plannedReceipt(id, progress.step));
            EXPECT_EQ(journalOf(storage.path(), id), journalUntil(progress.step));
            if (receipt(storage, id + 1)) {
                EXPECT_EQ(record->state, ReceiptState::Closed);
            }
        }
        return progress;
    }

    int random(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_random); }

private:
    static Progress lastOf(const QByteArray &output)
    {
        const qsizetype end = output.lastIndexOf('\n');
        const QByteArray line = output.left(end).split('\n').constLast();
        const QList<QByteArray> words = line.split(' ');
        return words.size() == 2 ? Progress{words[0].toLongLong(), words[1].toInt()} : Progress();
    }

    static std::optional<ReceiptRecord> receipt(const Storage &storage, qint64 id)
    {
        return must(storage.receipt(id));
    }

    static QList<JournalEntry> journalUntil(int step)
    {
        QList<JournalEntry> journal;
        for (int number = 1; number <= step; ++number)
            journal += plannedJournal(number);
        return journal;
    }

    std::mt19937_64 m_random{testSeed()};
};

TEST_F(StorageKill, KilledAgainAndAgainWhileSaving_NothingAcknowledgedIsMissingOrHalfThere)
{
    SCOPED_TRACE(repeatedBy(testSeed()));
    Progress last;
    const int rounds = 40 * testEffort();
    constexpr int mostCalls = 150; // of about ten saves
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        const Progress acknowledged = runAndKill(path(), random(1, mostCalls));
        const auto storage = opened();
        const Progress found = stored(*storage, std::max<qint64>(last.id, 1));
        // The step that was under way may be there, whole, or not.
        EXPECT_GE(found.steps(), std::max(acknowledged.steps(), last.steps())) << "round " << round;
        EXPECT_LE(found.steps(), std::max(acknowledged.steps(), last.steps()) + 1)
            << "round " << round;
        last = found;
    }
    EXPECT_EQ(stored(*opened(), 1), last);
    EXPECT_GT(last.steps(), rounds);
}

TEST_F(StorageKill, KilledAtEachCallWhileItMakesTheDatabase_TheNextMakesIt)
{
    Progress acknowledged;
    for (int call = 1; acknowledged == Progress() && !HasFailure(); ++call) {
        const QString file = QStringLiteral("%1.db").arg(call);
        acknowledged = runAndKill(path(file), call);
        EXPECT_NE(opened(path(file)), nullptr) << "call " << call;
    }
}

} // namespace

} // namespace till
