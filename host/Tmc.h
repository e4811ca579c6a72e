#ifndef HOST_TMC_H
#define HOST_TMC_H

#include "host/HostGlobal.h"

#include <QtCore/QVariant>

//! Catalogue record of an article, as far as tara is concerned.
class HOST_EXPORT Tmc
{
public:
    //! Values of `getTaraMode`; any other number means neither.
    enum TaraMode : int {
        NoTara = 0,         //!< has nothing to do with tara
        Tara = 1,           //!< the article is a tara (a container)
        PackagingGoods = 2, //!< the article is goods sold into tara
    };

    //! \a taraCapacity is that of one unit, in the unit in which goods are poured.
    explicit Tmc(int taraMode = NoTara, const QVariant &taraCapacity = QVariant());

    int getTaraMode() const;
    QVariant getTaraCapacity() const;

private:
    int m_taraMode;
    QVariant m_taraCapacity;
};

#endif // HOST_TMC_H
