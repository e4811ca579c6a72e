#include "contract/Checks.h"
#include "contract/Stage.h"

#include <QtCore/QMap>
#include <QtCore/QPluginLoader>
#include <QtCore/QStringList>

namespace contract {

namespace {

QString three(double value)
{
    return QString::number(value, 'g', 6);
}

//! The plugin's records in \a receipt: "1:free/capacity … | 3:1=used,2=used …", taras by number.
QString records(const AbstractDocument &document)
{
    auto &receipt = const_cast<AbstractDocument &>(document);
    const QString plugin = QStringLiteral("PackagingControl");
    const auto read = [&](const char *key) {
        return receipt.getPluginData(plugin, QString::fromLatin1(key), {}).toList();
    };
    QMap<QString, QString> names;
    QStringList texts;
    const QVariantList taras = read("taraInfo");
    for (const QVariant &stored : taras) {
        const QVariantMap tara = stored.toMap();
        names.insert(tara.value("id").toString(), tara.value("posnum").toString());
        texts.append(QStringLiteral("%1:%2/%3")
                         .arg(tara.value("posnum").toString(),
                              three(tara.value("freeCapacity").toDouble()),
                              three(tara.value("capacity").toDouble())));
    }
    texts.append(QStringLiteral("|"));
    const QVariantList goods = read("packagingInfo");
    for (const QVariant &stored : goods) {
        const QVariantMap used = stored.toMap().value("usedTara").toMap();
        QStringList parts;
        for (auto entry = used.cbegin(); entry != used.cend(); ++entry)
            parts.append(names.value(entry.key(), QStringLiteral("gone")) + QLatin1Char('=')
                         + three(entry->toDouble()));
        parts.sort();
        texts.append(stored.toMap().value("posnum").toString() + QLatin1Char(':')
                     + parts.join(QLatin1Char(',')));
    }
    return texts.join(QLatin1Char(' '));
}

//! Stops a receipt at its first step that differs.
struct Differs
{
    QString seen;
};

//! A receipt that is told step by step. Numbers stand for the positions in order of their making.
class Story
{
public:
    Story(Driver &driver, const QSharedPointer<AbstractDocument> &receipt)
        : m_driver(driver)
        , m_receipt(receipt)
    {
    }

    void tell(const char *step, bool isDone, const char *needed)
    {
        const QString seen = records(*m_receipt);
        if (!isDone)
            throw Differs{QStringLiteral("%1: not done").arg(QString::fromLatin1(step))};
        if (seen != QLatin1String(needed)) {
            throw Differs{QStringLiteral("%1: records \"%2\" and not \"%3\"")
                              .arg(QString::fromLatin1(step), seen, QString::fromLatin1(needed))};
        }
    }

    void run()
    {
        fill();
        change();
        splitAndUnite();
        finish();
    }

private:
    void fill()
    {
        tell("tara of 2 l twice", m_driver.addTara(2.0, 2.0) == 1, "1:4/4 |");
        tell("tara of 1.5 l", m_driver.addTara(1.5, 1.0) == 2, "1:4/4 2:1.5/1.5 |");
        tell("5 l poured", m_driver.addGoods(5.0) == 3, "1:0/4 2:0.5/1.5 | 3:1=4,2=1");
    }

    void change()
    {
        tell("one tara of 2 l less", m_driver.change(1, 1.0), "1:0/2 2:0.5/1.5 | 3:1=2,2=1");
        tell("a partly filled tara refused", !m_driver.change(2, 2.0),
             "1:0/2 2:0.5/1.5 | 3:1=2,2=1");
        tell("the refusal shown", m_driver.message().startsWith(QStringLiteral("Тара частично")),
             "1:0/2 2:0.5/1.5 | 3:1=2,2=1");
        tell("the goods follow", isSame(m_receipt->getPositionByPosnum(3)->getBquant(), 3.0),
             "1:0/2 2:0.5/1.5 | 3:1=2,2=1");
    }

    void splitAndUnite()
    {
        tell("1 l split off", m_driver.split(3, {1.0}), "1:0/2 2:0.5/1.5 | 3:1=2 4:2=1");
        tell("both of one group",
             m_receipt->getPositionByPosnum(3)->getGroupId()
                     == m_receipt->getPositionByPosnum(4)->getGroupId()
                 && m_receipt->getPositionByPosnum(3)->getGroupId().size() == 38,
             "1:0/2 2:0.5/1.5 | 3:1=2 4:2=1");
        tell("put together again", m_driver.unite({3, 4}), "1:0/2 2:0.5/1.5 | 3:1=2,2=1");
        tell("the goods stornoed", m_driver.storno(3), "1:2/2 2:1.5/1.5 |");
        tell("1 l poured", m_driver.addGoods(1.0) == 5, "1:1/2 2:1.5/1.5 | 5:1=1");
    }

    void finish()
    {
        m_driver.answer(false);
        tell("no subtotal on no", !m_driver.subtotal(), "1:1/2 2:1.5/1.5 | 5:1=1");
        m_driver.answer(true);
        tell("empty tara stornoed at subtotal", m_driver.subtotal(), "1:1/2 | 5:1=1");
        tell("the tara stornoed with its goods", m_driver.storno(1), "|");
        tell("nothing left", m_receipt->getPositionList().isEmpty(), "|");
    }

    Driver &m_driver;
    QSharedPointer<AbstractDocument> m_receipt;
};

Finding wholeReceipt()
{
    if (pluginFile().isEmpty())
        return unchecked(QStringLiteral("no plugin file was named (--plugin FILE)"));
    const std::unique_ptr<Driver> driver = makeDriver();
    if (!driver)
        return unchecked(QStringLiteral("the adapter has no host/ContractDriver.h"));
    driver->start(false);
    QPluginLoader loader(pluginFile());
    QObject *const plugin = loader.instance();
    if (!plugin)
        return broken(loader.errorString());
    if (!driver->attach(plugin))
        return broken(QStringLiteral("the host did not take the plugin"));
    try {
        Story(*driver, driver->open()).run();
    } catch (const Differs &differs) {
        return broken(differs.seen);
    }
    return held();
}

} // namespace

Checks receiptChecks()
{
    return {
        {"Receipt.Whole", "a receipt with the plugin in it leaves the records that it has to",
         "as told", wholeReceipt},
    };
}

} // namespace contract
