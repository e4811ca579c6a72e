#include "till/lookup/Findings.h"

#include "till/archive/Upkeep.h"
#include "till/database/DatabaseFile.h"
#include "till/database/SqlFault.h"
#include "till/receipt/Receipt.h"
#include "till/storage/Storage.h"

namespace till {

namespace {

QString findingRow(const QString &what, const QString &finding)
{
    constexpr int width = 16;
    return what.leftJustified(width) + finding + '\n';
}

QString summary(const CheckReport &report)
{
    qsizetype apart = 0;
    for (const OddReceipt &receipt : report.odd)
        apart += receipt.isSetApart ? 1 : 0;
    const QString counts = QStringLiteral("%1 whole, %2 damaged, %3 set apart")
                               .arg(report.whole)
                               .arg(report.odd.size() - apart)
                               .arg(apart);
    if (report.hasAll)
        return counts;
    const bool hasNone = report.whole == 0 && report.odd.isEmpty();
    return hasNone ? QStringLiteral("cannot be read") : counts + ", others cannot be read";
}

//! What leads on where a receipt cannot even be set apart.
Fault withoutSettingApart(const Fault &fault)
{
    return {fault.place, fault.reason,
            fault.remedy == wayOutOfDamage() ? wayBackFromDamage() : fault.remedy};
}

//! What of the receipt holds, for whoever has to enter it anew.
QString remainsOf(const Storage &storage, qint64 id, const ReceiptView &view)
{
    const ReceiptRecord record = storage.remains(id);
    return record.lines.isEmpty() ? "none of its lines can be read"
                                  : view.render(Receipt(record), {}, TaraControl::Absent);
}

} // namespace

Message broughtToFormat(const QString &database, const QString &copy)
{
    return told("till", "%1: brought to the format of this till; as it was before, it is in %2")
        .with({database, copy});
}

Result<Finding, Failure> checkStored(const QString &database)
{
    const auto report = checkDatabase(database);
    if (!report)
        return Failure{StartFailed, report.error()};
    QString text =
        findingRow("file", report->fileHolds ? "whole" : report->fileHolds.error().reason)
        + findingRow("receipts", summary(*report));
    for (const OddReceipt &receipt : report->odd)
        text += findingRow("receipt " + QString::number(receipt.id),
                           (receipt.isSetApart ? "set apart: " : "damaged: ") + receipt.reason);
    for (const JournalFault &fault : report->journalFaults)
        text += findingRow("journal of " + QString::number(fault.receipt), fault.reason);
    return Finding{report->isGood() ? AllWell : CommandFailed, text};
}

Result<Finding, Failure> backUpStored(const QString &database, const QString &file)
{
    if (const Result<> backedUp = backUp(database, file); !backedUp)
        return Failure{StartFailed, backedUp.error()};
    return Finding{AllWell, file + ": a whole copy of " + database};
}

Result<Finding, Failure> setApartStored(const QString &database, const QString &number,
                                        const Translator &translator, Style style)
{
    bool isNumber = false;
    const qint64 id = number.toLongLong(&isNumber);
    if (!isNumber)
        return Failure{UsageError, {"set-apart", '"' + number + "\" is no number of a receipt"}};
    if (const Result<> checked = checkReadable(database); !checked)
        return Failure{StartFailed, checked.error()}; // else a database would be made there
    const auto storage = Storage::open(database, Storage::For::SettingApart);
    if (!storage)
        return Failure{StartFailed, withoutSettingApart(storage.error())};
    const auto reason = (*storage)->setApart(id);
    if (!reason)
        return Failure{CommandFailed, withoutSettingApart(reason.error())};
    const QString copy = (*storage)->copyBefore();
    const QString before =
        copy.isEmpty() ? QString() : translator.text(broughtToFormat(database, copy)) + '\n';
    return Finding{
        AllWell,
        before + QString("receipt %1 is set apart (%2) and stays as it is\n").arg(number, *reason)
            + remainsOf(**storage, id, ReceiptView(translator, style))};
}

} // namespace till
