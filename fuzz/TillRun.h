#ifndef FUZZ_TILLRUN_H
#define FUZZ_TILLRUN_H

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace fuzz {

/*!
 * Plays \a bytes as a script of the till over the sample catalogue, with receipts in memory and
 * the plugin loaded; without the plugin when the script begins with "#-". Empty text, or what the
 * till must never do and did.
 */
QString playScript(QByteArrayView bytes);

} // namespace fuzz

#endif // FUZZ_TILLRUN_H
