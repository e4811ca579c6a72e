#ifndef FUZZ_CATALOGUERUN_H
#define FUZZ_CATALOGUERUN_H

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace fuzz {

//! Reads \a bytes as a catalogue. Empty text, or what the reader must never do and did.
QString readCatalogue(QByteArrayView bytes);

} // namespace fuzz

#endif // FUZZ_CATALOGUERUN_H
