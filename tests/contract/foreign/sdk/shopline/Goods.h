#ifndef SHOPLINE_GOODS_H
#define SHOPLINE_GOODS_H

#include "shopline/Api.h"

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace shopline {

enum Vessel { NoVessel = 0, Container = 1, Poured = 2, Loose = 3 };

//! An article of the shop.
class SHOPLINE_API Article
{
public:
    Article(Vessel vessel, double litres);

#if defined(SHOPLINE_BREAKS_Form_Article)
    long getTaraMode() const;
#else
    int getTaraMode() const;
#endif
    double litres() const;

private:
    Vessel m_vessel;
    double m_litres;
};

#if defined(SHOPLINE_BREAKS_Form_Bases)
using LineBase = Article;
#else
using LineBase = QObject;
#endif
#if defined(SHOPLINE_BREAKS_Form_Position)
using Weight = float;
#else
using Weight = double;
#endif

//! One line of a receipt.
class SHOPLINE_API Line : public LineBase
{
#if !defined(SHOPLINE_BREAKS_Form_Bases)
    Q_OBJECT
#endif

public:
    Line(int number, const Article &article);

    int getPosnum() const;
    Article *getTmc();
    QVariant getTmcTaraCapacity() const;
    Weight getBquant() const;
    double getCquant() const;
    QString getGroupId() const;
    void setGroupId(const QString &group);
    // Qt's keywords and a text that is converted unseen: both are this SDK's to use.
    bool isApart() const
    {
        return m_group != "";
    }

    void setQuantity(double quantity);
    //! What the shop does with the catalogue's data of a line that is no longer sold.
    void retire();

#if !defined(SHOPLINE_BREAKS_Form_Bases)
signals:
    void weighed();
#endif

private:
    int m_number;
    QSharedPointer<Article> m_article;
    double m_quantity = 0.0;
    QString m_group;
};

using LinePtr = QSharedPointer<Line>;

} // namespace shopline

#endif // SHOPLINE_GOODS_H
