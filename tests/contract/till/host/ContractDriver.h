#ifndef HOST_CONTRACTDRIVER_H
#define HOST_CONTRACTDRIVER_H

#include "contract/Driver.h"
#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/Config.h"
#include "host/DocumentWatcher.h"
#include "till/register/Register.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <optional>

namespace till {

//! The till, driven by the kit. One receipt, of a shop that sells what the kit asks for.
class KitDriver : public contract::Driver, private Front
{
public:
    void start(bool allowSaleEmptyTara) override
    {
        m_storage = std::move(*Storage::open(QStringLiteral(":memory:")));
        m_settings.set(QStringLiteral("PackagingControl:allowSaleEmptyTara"), allowSaleEmptyTara);
        QFile file(m_folder.filePath(QStringLiteral("catalogue.csv")));
        if (file.open(QIODevice::WriteOnly))
            file.write("code;name;price;tara mode;tara capacity;pack;unit\n"
                       "5;t;1;1;5;1;l\n2;t;1;1;2;1;l\n1.5;t;1;1;1.5;1;l\nG;g;1;2;;1;l\n");
        file.close();
        m_catalogue = *Catalogue::load(file.fileName());
    }

    bool attach(QObject *plugin) override
    {
        m_plugin.object = plugin;
        m_plugin.plugin = qobject_cast<BasicPlugin *>(plugin);
        m_plugin.listener = qobject_cast<BaseActivityListener *>(plugin);
        m_plugin.watcher = static_cast<DocumentWatcher *>(plugin->qt_metacast("DocumentWatcher"));
        m_register.emplace(
            Register::Parts{*m_catalogue, *m_storage, &m_plugin, m_settings, m_notes, this});
        return m_register->start().has_value();
    }

    QSharedPointer<AbstractDocument> open() override
    {
        m_register->carryOut(command::Open{});
        return m_register->receipt().constCast<Receipt>();
    }

    int addTara(double capacity, double count) override
    {
        return add(QString::number(capacity), count);
    }
    int addGoods(double amount) override { return add(QStringLiteral("G"), amount); }

    bool change(int posnum, double quantity) override
    {
        return bool(m_register->carryOut(command::ChangeCount{posnum, quantity}));
    }
    bool storno(int posnum) override { return bool(m_register->carryOut(command::Storno{posnum})); }
    bool split(int posnum, const QList<double> &parts) override
    {
        return bool(m_register->carryOut(command::Split{posnum, parts}));
    }
    bool unite(const QList<int> &posnums) override
    {
        return bool(m_register->carryOut(command::Unite{posnums}));
    }
    bool subtotal() override { return bool(m_register->carryOut(command::Subtotal{})); }
    bool addSoftCheck() override
    {
        return bool(m_register->carryOut(command::AddSoftCheck{QStringLiteral("1")}));
    }

    void answer(bool confirm) override { m_confirms = confirm; }
    int questions() const override { return m_questions; }
    QString message() const override { return m_message; }

    QSharedPointer<AbstractDocument> storeAndLoad() override
    {
        m_register->carryOut(command::Subtotal{}); // every command stores the receipt
        const auto read = m_storage->unfinishedReceipt();
        return read && *read ? QSharedPointer<Receipt>::create(**read) : nullptr;
    }

private:
    bool ask(const Question &) override
    {
        ++m_questions;
        return m_confirms;
    }
    void show(const tr::Tr &message) override { m_message = message.text(); }

    int add(const QString &code, double quantity)
    {
        const qsizetype before = m_register->receipt()->getPositionList().size();
        m_register->carryOut(command::Add{code, quantity});
        const auto positions = m_register->receipt()->getPositionList();
        return positions.size() > before ? positions.constLast()->getPosnum() : 0;
    }

    QTemporaryDir m_folder;
    Config m_settings;
    Notes m_notes;
    std::unique_ptr<Storage> m_storage;
    std::optional<Catalogue> m_catalogue;
    LoadedPlugin m_plugin;
    std::optional<Register> m_register;
    bool m_confirms = true;
    int m_questions = 0;
    QString m_message;
};

} // namespace till

std::unique_ptr<contract::Driver> contract::makeDriver()
{
    return std::make_unique<till::KitDriver>();
}

#endif // HOST_CONTRACTDRIVER_H
