#include "tests/till/kill/ToldReceipt.h"

#include "tests/till/storage/StorageFixture.h"
#include "till/actions/ActionRunner.h"

#include <QtCore/QJsonDocument>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace till {

ToldReceipt ToldReceipt::asTakenUp() const
{
    ToldReceipt receipt = *this;
    if (receipt.record.state == ReceiptState::Subtotal)
        receipt.record.state = ReceiptState::Open;
    return receipt;
}

ToldReceipt ToldReceipt::stored(const Storage &storage, qint64 id)
{
    const auto record = must(storage.receipt(id));
    if (!record)
        return {};
    ToldReceipt receipt{{*record, {}}, {}};
    const auto pluginData = std::exchange(receipt.record.pluginData, {});
    for (auto plugin = pluginData.cbegin(); plugin != pluginData.cend(); ++plugin)
        receipt.data.insert(plugin.key(), QJsonObject::fromVariantMap(plugin.value()));
    const auto journal = journalOf(storage.path(), id);
    for (const JournalEntry &entry : journal)
        receipt.journal.append(entry.json);
    return receipt;
}

void PrintTo(const ToldReceipt &receipt, std::ostream *out)
{
    PrintTo(receipt.record, out);
    for (auto plugin = receipt.data.cbegin(); plugin != receipt.data.cend(); ++plugin)
        *out << "\n  " << plugin.key().toStdString() << ": "
             << QJsonDocument(plugin.value()).toJson(QJsonDocument::Compact).toStdString();
    *out << "\n  " << receipt.journal.size() << " notes in the journal, the last ones:";
    for (const QByteArray &note :
         receipt.journal.mid(std::max<qsizetype>(receipt.journal.size() - 6, 0)))
        *out << "\n    " << note.toStdString();
}

ToldReceipt TraceReader::toTakeUp() const
{
    ToldReceipt receipt = m_acknowledged.isOpen() ? m_acknowledged.asTakenUp() : ToldReceipt();
    receipt.journal.clear();
    return receipt;
}

void TraceReader::restart()
{
    forgetUnderWay();
    m_underWay = m_acknowledged.asTakenUp();
    m_takenUp = {};
    m_unstored.clear(); // what was only in the killed till's memory went with it
    m_command.clear();
}

void TraceReader::forgetUnderWay()
{
    m_underWay = m_acknowledged;
    m_actions.clear();
    m_stage = Stage::Idle;
    m_opens = false;
    m_takesUp = false;
}

void TraceReader::read(const QJsonObject &note)
{
    static const QStringList kept{"action", "trigger", "result", "question", "answer", "message"};
    const QString kind = note["kind"].toString();
    const auto keep = [this](QJsonObject entry) {
        entry.remove("line");
        m_unstored.append(QJsonDocument(entry).toJson(QJsonDocument::Compact));
    };
    if (note["depth"].toInt() == 1 && (kind == "question" || kind == "message")
        && !m_unkept.isEmpty())
        keep(std::exchange(m_unkept, {}));
    if (kept.contains(kind))
        keep(note);
    if (kind == "takeup")
        readTakeup(note);
    else if (kind == "outcome")
        note["outcome"] == "failed" ? forgetUnderWay() : acceptUnderWay();
    else if (m_takesUp || (note["depth"].toInt() == 0 && kind != "command"))
        readTakenUp(note, kind);
    else
        readCommand(note, kind);
}

void TraceReader::readTakeup(const QJsonObject &note)
{
    m_takesUp = note["id"].toInteger() != 0;
    if (m_takesUp)
        m_takenUp = {};
}

void TraceReader::readCommand(const QJsonObject &note, const QString &kind)
{
    if (kind == "command") {
        m_command = note["text"].toString();
        m_unkept = note;
        m_unstored.clear(); // what was told before it belongs to no command
        m_stage = Stage::Acting;
    } else if (m_actions.isEmpty() && (kind == "message" || kind == "answer")) {
        m_stage = Stage::Storing; // unless an action follows
    } else if (kind == "action") {
        readAction(note);
    } else if (kind == "result") {
        readResult(note);
    } else if (kind == "position" || kind == "data") {
        m_underWay.read(note);
        if (kind == "position")
            m_underWay.record.state = ReceiptState::Open;
    } else if (kind == "receipt" && note["id"].toInteger() != 0) { // 0: not stored yet
        readReceipt(note);
    }
}

void TraceReader::readTakenUp(const QJsonObject &note, const QString &kind)
{
    m_takenUp.read(note);
    if (kind == "receipt")
        m_takesUp = false;
}

void TraceReader::readAction(const QJsonObject &note)
{
    if (note["type"].toInt() == control::OpenReceipt) {
        const qint64 id = m_underWay.record.id + 1;
        m_opens = true;
        m_underWay = {};
        m_underWay.record.id = id;
        m_underWay.record.type = note["receiptType"].toInt();
    }
    m_stage = Stage::Acting;
    m_actions.append(note);
}

void TraceReader::readResult(const QJsonObject &note)
{
    const QJsonObject action = m_actions.takeLast();
    ReceiptRecord &record = m_underWay.record;
    if (note["result"].toInt() == EContext::Continue) {
        switch (note["type"].toInt()) {
        case control::Subtotal:
        case control::Payment:
            record.state = ReceiptState::Subtotal;
            break;
        case control::CloseReceipt:
            record.state = ReceiptState::Closed;
            break;
        case control::CancelReceipt:
            record.state = ReceiptState::Cancelled;
            break;
        case control::AddSoftCheck:
            record.order = action["order"].toString(record.order);
            if (action.contains("softCheck"))
                record.softChecks.append(action["softCheck"].toString());
            break;
        default:
            break;
        }
    }
    if (m_actions.isEmpty() && isEndOfCommand(note))
        m_stage = Stage::Storing;
}

//! Payment in full is followed by closing the receipt, which belongs to the same command.
bool TraceReader::isEndOfCommand(const QJsonObject &result) const
{
    return m_command != "pay" || result["type"].toInt() == control::CloseReceipt
           || result["result"].toInt() != EContext::Continue;
}

void TraceReader::readReceipt(const QJsonObject &note)
{
    ToldReceipt told = m_underWay;
    told.read(note);
    EXPECT_EQ(told, m_underWay);
    keepJournal();
    m_stage = Stage::Stored;
}

ToldReceipt TraceReader::underWay() const
{
    ToldReceipt receipt = m_underWay;
    if (m_stage == Stage::Storing)
        receipt.journal += m_unstored;
    return receipt;
}

void TraceReader::keepJournal()
{
    m_underWay.journal += std::exchange(m_unstored, {});
}

TraceReader::Found TraceReader::foundIn(const Storage &storage) const
{
    const ToldReceipt whole = underWay();
    const ToldReceipt found = ToldReceipt::stored(storage, whole.record.id);
    const bool isNew = whole.record.id != m_acknowledged.record.id;
    if (isNew && m_acknowledged.record.id != 0
        && ToldReceipt::stored(storage, m_acknowledged.record.id) != m_acknowledged)
        return Found::Half;
    if (m_stage >= Stage::Storing && found == whole)
        return Found::Whole;
    const bool isUntouched = isNew ? found.record.id == 0 : found == m_acknowledged;
    return isUntouched && m_stage != Stage::Stored ? Found::Nothing : Found::Half;
}

void TraceReader::acceptUnderWay()
{
    if (m_stage == Stage::Acting) { // "answer" and its like store nothing
        m_stage = Stage::Idle;
        return;
    }
    if (m_stage == Stage::Storing)
        keepJournal();
    if (m_opens && m_acknowledged.record.id != 0)
        m_finished.append(m_acknowledged);
    m_opens = false;
    m_acknowledged = m_underWay;
    m_stage = Stage::Idle;
}

} // namespace till
