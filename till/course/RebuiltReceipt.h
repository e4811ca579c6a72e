#ifndef TILL_COURSE_REBUILTRECEIPT_H
#define TILL_COURSE_REBUILTRECEIPT_H

#include "till/receipt/ReceiptRecord.h"

#include <QtCore/QJsonObject>
#include <QtCore/QMap>

namespace till {

//! The current receipt, rebuilt from notes alone by the rules of docs/trace.md.
struct RebuiltReceipt
{
    ReceiptRecord record;            //!< all but the plugin data
    QMap<QString, QJsonObject> data; //!< what plugins saved, by plugin, with the keys inside

    bool operator==(const RebuiltReceipt &other) const = default;

    //! Follows a note; what is no state says nothing of the receipt.
    void read(const QJsonObject &note);

    //! The receipt with its plugin data.
    ReceiptRecord whole() const;

private:
    void readHeader(const QJsonObject &note);
    void readLine(const QJsonObject &note);
    void readData(const QJsonObject &note);
};

} // namespace till

#endif // TILL_COURSE_REBUILTRECEIPT_H
