#include "tests/till/kill/KillFixture.h"

#include "tests/support/Chance.h"
#include "till/receipt/Receipt.h"

#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>
#include <iostream>
#include <utility>

namespace till {

namespace {

const QString pluginId = QStringLiteral("PackagingControl");

//! The bytes of a variant tree, which tell types apart that compare as equal.
QByteArray bytesOf(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

//! The plugin's lists in the form of the trace.
QJsonObject recordsOf(const TestPlugin &plugin)
{
    QJsonArray taras;
    for (const auto &tara : plugin.taraList)
        taras.append(QJsonObject{{"posnum", tara->posnum},
                                 {"id", tara->id},
                                 {"capacity", tara->capacity},
                                 {"freeCapacity", tara->freeCapacity}});
    QJsonArray goods;
    for (const auto &info : plugin.packagingList) {
        QJsonObject used;
        for (auto entry = info->usedTara.cbegin(); entry != info->usedTara.cend(); ++entry)
            used.insert(entry.key(), entry.value());
        goods.append(QJsonObject{{"posnum", info->posnum}, {"usedTara", used}});
    }
    return {{"taraInfo", taras}, {"packagingInfo", goods}};
}

//! As a failed comparison can show it.
std::string textOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace

KilledTill::KilledTill()
    : m_cashier(static_cast<quint32>(testSeed()))
{
}

QStringList KilledTill::arguments(const QString &database)
{
    return {"--db", database, "--set", "PackagingControl:allowSaleEmptyTara=false"};
}

void KilledTill::start()
{
    m_trace.restart();
    m_cashier.forget();
    m_sent.clear();
    m_isUnderWay = false;
    m_saved = m_trace.acknowledged().data.value(
        pluginId, {{"taraInfo", QJsonArray()}, {"packagingInfo", QJsonArray()}});
}

void KilledTill::killUntilTelling(int kills)
{
    const int most = 20 * kills;
    measure();
    while ((m_tally.all() < kills || !m_tally.isTelling()) && m_tally.all() < most
           && !HasFailure()) {
        SCOPED_TRACE(testing::Message() << repeatedBy(testSeed()) << " round " << m_tally.all());
        playAndKill();
        checkStored();
    }
    checkEveryReceipt();
    std::cout << m_tally.all() << " kills, seed " << testSeed() << '\n'
              << m_tally << "receipts: " << receipts() << std::endl;
    EXPECT_TRUE(m_tally.isTelling());
}

void KilledTill::measure()
{
    start();
    const auto started = Clock::now();
    TillProcess till(arguments(path()));
    for (int command = 0; command < 12; ++command) {
        const auto sent = Clock::now();
        send(till);
        ASSERT_TRUE(follow(till)) << m_sent.constLast().toStdString();
        if (command == 0)
            m_startTime = Clock::now() - started;
        else
            m_times.push_back(Clock::now() - sent);
    }
    till.kill();
}

void KilledTill::playAndKill()
{
    start();
    const int commands = m_cashier.number(-1, 8); // below 0: not even the first is awaited
    auto end = Clock::now() + partOf(m_startTime);
    TillProcess till(arguments(path()));
    for (int command = 0; command < commands; ++command) {
        const auto sent = Clock::now();
        send(till);
        ASSERT_TRUE(follow(till)) << m_sent.constLast().toStdString();
        m_times.push_back(Clock::now() - sent);
    }
    if (commands >= 0) {
        end = Clock::now() + partOf(commands == 0 ? m_startTime : usualTime());
        send(till);
    }
    while (follow(till, end) && commands >= 0)
        send(till);
    till.kill();
    while (follow(till)) {
    }
    EXPECT_EQ(till.strayOutput(), QByteArray());
}

void KilledTill::killWhileItMakes(const QString &name)
{
    const auto end = Clock::now() + partOf(m_startTime);
    TillProcess till(arguments(path(name)));
    while (till.nextNote(end)) {
    }
    till.kill();
    while (till.nextNote()) {
    }
    EXPECT_EQ(till.strayOutput(), QByteArray());
}

void KilledTill::checkUsable(const QString &name)
{
    TraceReader trace;
    TillProcess till(arguments(path(name)));
    till.send("open");
    while (const auto note = till.nextNote()) {
        trace.read(*note);
        if ((*note)["kind"] == "outcome")
            break;
    }
    EXPECT_EQ(trace.acknowledged().record.id, 1);
    EXPECT_EQ(till.finish(), 0);
}

void KilledTill::send(TillProcess &till)
{
    m_sent.append(thinkOfCommand());
    m_isUnderWay = true;
    till.send(m_sent.constLast());
}

QByteArray KilledTill::thinkOfCommand()
{
    const ToldReceipt &receipt = m_trace.acknowledged();
    // The first line is an ordinary article: the plugin only saves what it had restored.
    m_savesAgain = m_sent.isEmpty() && receipt.isOpen() && receipt.isWatched()
                   && !receipt.record.lines.isEmpty();
    return m_savesAgain ? "qty 1 1" : m_cashier.next(receipt);
}

//! Reads the trace until a command is acknowledged. False when \a end comes before.
bool KilledTill::follow(TillProcess &till, Clock::time_point end)
{
    while (const auto note = till.nextNote(end)) {
        read(*note);
        if ((*note)["kind"] == "outcome")
            return true;
    }
    return false;
}

void KilledTill::read(const QJsonObject &note)
{
    const QString kind = note["kind"].toString();
    if (kind == "command" && m_sent.size() == 1)
        checkTakenUp();
    m_trace.read(note);
    if (kind != "outcome")
        return;
    m_isUnderWay = false;
    const QStringList expected{"done", "refused"};
    EXPECT_TRUE(expected.contains(note["outcome"].toString()))
        << m_sent.constLast().toStdString() << ": " << note["text"].toString().toStdString();
    if (std::exchange(m_savesAgain, false)) {
        EXPECT_EQ(textOf(m_trace.acknowledged().data.value(pluginId)), textOf(m_saved));
        ++m_tally.restored;
    }
}

//! The restarted till told that it took up what the one before had acknowledged.
void KilledTill::checkTakenUp() const
{
    EXPECT_EQ(m_trace.takenUp(), m_trace.toTakeUp());
}

void KilledTill::checkStored()
{
    const auto storage = opened();
    const TraceReader::Found found = m_trace.foundIn(*storage);
    const bool isStored = found == TraceReader::Found::Whole;
    EXPECT_NE(found, TraceReader::Found::Half)
        << "stage " << static_cast<int>(m_trace.stage())
        << " of: " << m_sent.join("; ").toStdString() << "\nfound: "
        << testing::PrintToString(ToldReceipt::stored(*storage, m_trace.underWay().record.id))
        << "\nacknowledged: " << testing::PrintToString(m_trace.acknowledged())
        << "\nwhole: " << testing::PrintToString(m_trace.underWay());
    count(isStored);
    if (isStored)
        m_trace.acceptUnderWay();
    EXPECT_EQ(ToldReceipt::stored(*storage, m_trace.acknowledged().record.id + 1), ToldReceipt());
    checkRegistry(*storage);
}

void KilledTill::count(bool isStored)
{
    if (!m_isUnderWay) {
        ++(m_sent.isEmpty() ? m_tally.starting : m_tally.between);
        return;
    }
    ++m_tally.stage[static_cast<size_t>(m_trace.stage())];
    ++(isStored ? m_tally.stored : m_tally.notStored);
}

//! The plugin restores from the unfinished receipt what was saved last, and would save it the same.
void KilledTill::checkRegistry(const Storage &storage) const
{
    const ToldReceipt &told = m_trace.acknowledged();
    const auto record = unfinished(storage);
    ASSERT_EQ(record ? record->id : 0, told.isOpen() ? told.record.id : 0);
    const QJsonObject saved = told.data.value(pluginId);
    if (!record || record->type != Document::Sale || !record->order.isEmpty() || saved.isEmpty())
        return;
    FakeHost host;
    TestPlugin plugin;
    const auto receipt = QSharedPointer<Receipt>::create(*record);
    plugin.setDocument(receipt);
    EXPECT_EQ(textOf(recordsOf(plugin)), textOf(saved));
    plugin.savePluginData();
    EXPECT_EQ(bytesOf(receipt->pluginData().value(pluginId)),
              bytesOf(record->pluginData.value(pluginId)));
}

void KilledTill::checkEveryReceipt() const
{
    const auto storage = opened();
    for (const ToldReceipt &receipt : m_trace.finished())
        EXPECT_EQ(ToldReceipt::stored(*storage, receipt.record.id), receipt);
    const ToldReceipt &last = m_trace.acknowledged();
    EXPECT_EQ(ToldReceipt::stored(*storage, last.record.id), last);
}

//! The median, which one slow command does not shift.
KilledTill::Clock::duration KilledTill::usualTime() const
{
    auto times = m_times;
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

//! A random part, sometimes a little more than all of it. Small parts come more often: the receipt
//! is changed early in a command, and then most of the time goes to the disk.
KilledTill::Clock::duration KilledTill::partOf(Clock::duration usual)
{
    const double root = m_cashier.fraction();
    return std::chrono::duration_cast<Clock::duration>(usual * 1.3 * root * root);
}

} // namespace till
