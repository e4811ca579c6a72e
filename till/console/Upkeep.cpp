#include "till/console/Upkeep.h"

#include "till/receipt/Receipt.h"
#include "till/storage/Storage.h"
#include "till/storage/Upkeep.h"

namespace till {

namespace {

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
    const auto read = storage.lines(id);
    if (!read)
        return read.error().text() + '\n';
    return *read ? view.render(Receipt(**read), {}, TaraControl::Absent) : QString();
}

} // namespace

Result<Finding, Failure> checkStored(const QString &database)
{
    const auto report = checkDatabase(database);
    if (!report)
        return Failure{StartFailed, report.error()};
    QString text = row("file", report->fileFault.isEmpty() ? "whole" : report->fileFault)
                   + row("receipts", summary(*report));
    for (const OddReceipt &receipt : report->odd)
        text += row("receipt " + QString::number(receipt.id),
                    (receipt.isSetApart ? "set apart: " : "damaged: ") + receipt.reason);
    return Finding{report->isGood() ? AllWell : CommandFailed, text};
}

Result<Finding, Failure> backUpStored(const QString &database, const QString &file)
{
    if (const Result<> backedUp = backUp(database, file); !backedUp)
        return Failure{StartFailed, backedUp.error()};
    return Finding{AllWell, file + ": a whole copy of " + database};
}

Result<Finding, Failure> setApartStored(const QString &database, const QString &number,
                                        const ReceiptView &view)
{
    bool isNumber = false;
    const qint64 id = number.toLongLong(&isNumber);
    if (!isNumber)
        return Failure{UsageError, {"set-apart", '"' + number + "\" is no number of a receipt"}};
    const auto opened = Storage::open(database);
    if (!opened)
        return Failure{StartFailed, opened.error()};
    const auto &storage = *opened;
    if (const Result<> apart = storage->setApart(id); !apart)
        return Failure{CommandFailed, apart.error()};
    return Finding{AllWell, "receipt " + QString::number(id) + " is set apart and stays as it is\n"
                                + linesOf(*storage, id, view)};
}

} // namespace till
