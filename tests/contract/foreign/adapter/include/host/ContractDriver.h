#ifndef HOST_CONTRACTDRIVER_H
#define HOST_CONTRACTDRIVER_H

#include "contract/Driver.h"

#include <shopline/Shop.h>

namespace shopline {

//! The shop's program, driven by the kit.
class Driver : public contract::Driver
{
public:
    void start(bool allowSaleEmptyTara) override
    {
        m_shop.start();
        Settings::current->set(QStringLiteral("PackagingControl:allowSaleEmptyTara"),
                               allowSaleEmptyTara);
    }
    bool attach(QObject *plugin) override { return m_shop.take(plugin); }
    QSharedPointer<AbstractDocument> open() override { return m_shop.open(); }

    int addTara(double capacity, double count) override
    {
        return m_shop.sell(Article(Container, capacity), count);
    }
    int addGoods(double amount) override
    {
        return m_shop.sell(Article(breaks("Document.Goods") ? Loose : Poured, 0.0), amount);
    }
    bool change(int posnum, double quantity) override { return m_shop.setByHand(posnum, quantity); }
    bool storno(int posnum) override { return m_shop.cancel(posnum); }
    bool split(int posnum, const QList<double> &parts) override
    {
        return m_shop.cut(posnum, parts);
    }
    bool unite(const QList<int> &posnums) override { return m_shop.join(posnums); }
    bool subtotal() override { return m_shop.total(); }
    bool addSoftCheck() override { return m_shop.addChit(); }

    void answer(bool confirm) override { m_shop.saysYes = confirm; }
    int questions() const override { return m_shop.questions; }
    QString message() const override { return m_shop.shown; }

    QSharedPointer<AbstractDocument> storeAndLoad() override
    {
        return Receipt::load(m_shop.receipt->store());
    }

private:
    Shop m_shop;
};

} // namespace shopline

std::unique_ptr<contract::Driver> contract::makeDriver()
{
    return std::make_unique<shopline::Driver>();
}

#endif // HOST_CONTRACTDRIVER_H
