#ifndef FUZZ_RECEIPTRUN_H
#define FUZZ_RECEIPTRUN_H

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace fuzz {

/*!
 * Reads \a bytes as what a document has stored and what then happens: events, triggers and a host
 * that refuses, answers late, acts in between or hands over other documents. Empty text, or what
 * the plugin must never do and did.
 */
QString playReceipt(QByteArrayView bytes);

} // namespace fuzz

#endif // FUZZ_RECEIPTRUN_H
