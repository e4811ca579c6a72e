#ifndef BENCH_RECORDS_H
#define BENCH_RECORDS_H

#include "host/Document.h"
#include "plugin/PackagingControl.h"

#include <QtCore/QVariant>

#include <vector>

namespace Log4Qt {
class Logger;
}

namespace bench {

using TaraInfo = PackagingControl::TaraInfo;
using PackagingInfo = PackagingControl::PackagingInfo;

//! The plugin with what is measured in reach.
class Plugin : public PackagingControl
{
public:
    using PackagingControl::modifyPackagingUsedCapacity;
    using PackagingControl::packagingList;
    using PackagingControl::restorePluginData;
    using PackagingControl::savePluginData;
    using PackagingControl::taraList;
};

/*!
 * \a n records of a receipt, one half tara and one half goods: tara at the positions 1, 3, 5 ...,
 * each filled with the 0.5 of the goods at the position behind it. Only the last tara is empty: the
 * last goods are in the first tara, which is twice as large.
 */
struct Records
{
    explicit Records(int n);

    std::vector<TaraInfo> taras;
    std::vector<PackagingInfo> goods;
};

//! Whether the work by hand writes the plugin's log lines too.
enum class Floor { Bare, WithLogLines };

//! The logger that the plugin writes to.
Log4Qt::Logger &logger();

//! \a value as the plugin's log lines show it.
QString toLogText(double value);

//! A tree of variants as bytes, in which differences of types show too.
QByteArray toBytes(const Document &document);

//! The tree of variants that stands for \a taras, built as cheaply as Qt allows.
QVariantList toTree(const std::vector<TaraInfo> &taras);
QVariantList toTree(const std::vector<PackagingInfo> &goods);

//! Puts the tree of \a records into \a document, where the plugin looks for it.
void store(const Records &records, Document &document);

} // namespace bench

#endif // BENCH_RECORDS_H
