#include "till/console/Upkeep.h"

#include "till/receipt/Receipt.h"
#include "till/storage/Storage.h"
#include "till/storage/Upkeep.h"

namespace till {

namespace {

UpkeepResult failed(ExitStatus status, const QString &error)
{
    return {status, error, true};
}

QString row(const QString &what, const QString &finding)
{
    constexpr int width = 16;
    return what.leftJustified(width) + finding + '\n';
}

QString summary(const CheckReport &report)
{
    qsizetype apart = 0;
    for (const OddReceipt &receipt : report.odd)
        apart += receipt.isSetApart ? 1 : 0;
    return QStringLiteral("%1 whole, %2 damaged, %3 set apart")
        .arg(report.whole)
        .arg(report.odd.size() - apart)
        .arg(apart);
}

//! The lines of the receipt, for whoever has to enter them anew.
QString linesOf(const Storage &storage, qint64 id, const ReceiptView &view)
{
    QString error;
    const auto record = storage.lines(id, &error);
    if (!record)
        return error.isEmpty() ? QString() : error + '\n';
    return view.render(Receipt(*record), {}, TaraControl::Absent);
}

} // namespace

UpkeepResult checkStored(const QString &database)
{
    QString error;
    const auto report = checkDatabase(database, &error);
    if (!report)
        return failed(StartFailed, error);
    QString text = row("file", report->fileFault.isEmpty() ? "whole" : report->fileFault)
                   + row("receipts", summary(*report));
    for (const OddReceipt &receipt : report->odd)
        text += row("receipt " + QString::number(receipt.id),
                    (receipt.isSetApart ? "set apart: " : "damaged: ") + receipt.reason);
    return {report->isGood() ? AllWell : CommandFailed, text};
}

UpkeepResult backUpStored(const QString &database, const QString &file)
{
    const QString error = backUp(database, file);
    return error.isEmpty() ? UpkeepResult{AllWell, file + ": a whole copy of " + database}
                           : failed(StartFailed, error);
}

UpkeepResult setApartStored(const QString &database, const QString &number, const ReceiptView &view)
{
    bool isNumber = false;
    const qint64 id = number.toLongLong(&isNumber);
    if (!isNumber)
        return failed(UsageError, "set-apart: \"" + number + "\" is no number of a receipt");
    QString error;
    const auto storage = Storage::open(database, &error);
    if (!storage)
        return failed(StartFailed, error);
    error = storage->setApart(id);
    if (!error.isEmpty())
        return failed(CommandFailed, error);
    return {AllWell, "receipt " + QString::number(id) + " is set apart and stays as it is\n"
                         + linesOf(*storage, id, view)};
}

} // namespace till
