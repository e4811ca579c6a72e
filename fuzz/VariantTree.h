#ifndef FUZZ_VARIANTTREE_H
#define FUZZ_VARIANTTREE_H

#include "fuzz/Bytes.h"
#include "host/GoodsItem.h"

#include <QtCore/QVariant>

#include <functional>

namespace fuzz {

//! Any variant: every type that Qt converts and the host's own, lists and maps some levels deep.
QVariant anything(Bytes &bytes, int depth = 0);

//! What a document may hold under "taraInfo", now and then with something else at any place of it.
QVariant taraData(Bytes &bytes);
//! What a document may hold under "packagingInfo", likewise.
QVariant packagingData(Bytes &bytes);

//! A position of any article, in no receipt.
QSharedPointer<GoodsItem> loosePosition(Bytes &bytes);

//! \a make's value, or something else.
QVariant nearlyAlways(Bytes &bytes, const std::function<QVariant()> &make);

} // namespace fuzz

#endif // FUZZ_VARIANTTREE_H
