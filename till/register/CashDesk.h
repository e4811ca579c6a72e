#ifndef TILL_REGISTER_CASHDESK_H
#define TILL_REGISTER_CASHDESK_H

#include "host/Config.h"
#include "till/goods/Catalogue.h"
#include "till/plugins/PluginLoader.h"
#include "till/register/Register.h"
#include "till/settings/SettingsFile.h"
#include "till/storage/Storage.h"

#include <QtCore/QMap>

#include <functional>
#include <memory>
#include <optional>

namespace till {

//! Where a register finds what it is made of.
struct Setup
{
    QString database;                //!< a file, or ":memory:"
    QString catalogue;               //!< a CSV file
    QString plugin;                  //!< the plugin's file; empty to work without one
    QString settingsFile;            //!< an INI file; empty for none
    QMap<QString, QString> settings; //!< further settings, over those of the file
};

//! Puts the settings of \a setup into \a config: those of its file, then its own.
Result<> readSettings(const Setup &setup, Config &config);

/*!
 * A register with all its parts, switched on and off as a whole: the till that a front is given.
 *
 * While it is busy, in a question say, it is not switched: start(), stop() and set() change nothing
 * and say so.
 */
class CashDesk
{
public:
    //! \a notes must outlive the till.
    CashDesk(Setup setup, Notes &notes);
    ~CashDesk();
    Q_DISABLE_COPY_MOVE(CashDesk)

    /*!
     * Switches the till on: reads the settings, for the first time also the catalogue, and opens
     * the database; loads the plugin and takes up the receipt that was current. When
     * anything is missing the till stays off. One that is on stays as it is, and its start says so.
     */
    Result<> start();

    //! Switches the till off: the register and the plugin, which is unloaded. The receipt
    //! stays in the database, which stays open for a next start, as does the catalogue.
    Result<> stop();

    //! Changes a setting, which plugins read when they start: the till is switched off and on.
    Result<> set(const QString &key, const QString &value);

    //! The register; only while the till is on.
    Register &cashRegister() { return *m_register; }
    const Register &cashRegister() const { return *m_register; }
    bool isOn() const { return m_register != nullptr; }

    //! Whether a command is under way, or the till is just being switched.
    bool isBusy() const { return m_isSwitching || (m_register && m_register->isBusy()); }

    const Catalogue &catalogue() const { return *m_catalogue; }
    const Setup &setup() const { return m_setup; }
    //! The settings that plugins are given, "KEY=VALUE"; only after a start.
    QStringList settings() const { return settingsInForce(*m_settings); }
    //! The note that the till was switched on so; only after a start.
    QJsonObject describeStart() const;
    //! The copy that was made of a database of the format before; empty when there was none.
    QString copyBefore() const { return m_storage ? m_storage->copyBefore() : QString(); }

    //! Where a front is installed that answers questions and shows messages, over restarts.
    FrontPlace &front() { return m_front; }

    //! As `Register::onReceiptChanged()`, over restarts; also told when the till was switched off.
    [[nodiscard]] Subscription onReceiptChanged(std::function<void()> observer)
    {
        return m_receiptObservers.subscribe(std::move(observer));
    }

private:
    //! Does \a step unless the till is busy.
    Result<> whenIdle(const std::function<Result<>()> &step);
    Result<> switchOn();
    void switchOff();
    Result<> readSettings();
    Result<> readCatalogue();
    Result<> openDatabase();
    Result<> loadPlugin();
    Result<> startRegister();

    Setup m_setup;
    Notes &m_notes;
    FrontPlace m_front;
    Observers<> m_receiptObservers;
    std::optional<Config> m_settings; //!< made anew at each start
    std::optional<Catalogue> m_catalogue;
    std::unique_ptr<Storage> m_storage;
    PluginLoader m_loader;
    std::optional<LoadedPlugin> m_plugin;
    std::unique_ptr<Register> m_register;
    Subscription m_receiptSeen; //!< the register's
    bool m_isSwitching = false;
};

} // namespace till

#endif // TILL_REGISTER_CASHDESK_H
