#ifndef CONTRACT_STAGE_H
#define CONTRACT_STAGE_H

#include "contract/Check.h"
#include "contract/Driver.h"
#include "contract/Probe.h"

namespace contract {

/*!
 * The host program with the probe in it. What a check needs before it comes to its own question is
 * taken for granted: where the host fails already there, the check is left out, and another one
 * tells why.
 */
struct Stage
{
    Probe probe; //!< outlives the driver
    std::unique_ptr<Driver> driver;
    QSharedPointer<AbstractDocument> receipt;

    //! Has the host take up the probe and open a sale.
    void begin();
    //! A position of two pieces of tara, 5 each; its number.
    int tara() const;
    //! A position of 4 of goods; its number.
    int goods() const;
    //! The position of that number in the receipt, which must be there.
    GoodsItemPtr position(int posnum) const;
};

//! Quantities differ by less than what counts.
bool isSame(double one, double other);
//! \a seen is about \a needed, or else what \a what is.
Row amount(const char *what, double seen, double needed);
Row flag(bool holds, const char *otherwise);

Finding runOnStage(Finding (*check)(Stage &));

//! \a check as one of a host program's.
template <Finding (*check)(Stage &)>
Finding onStage()
{
    return runOnStage(check);
}

} // namespace contract

#endif // CONTRACT_STAGE_H
