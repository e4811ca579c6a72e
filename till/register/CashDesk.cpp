#include "till/register/CashDesk.h"

#include "till/register/SettingsFile.h"

#include <QtCore/QScopedValueRollback>

#include <utility>

namespace till {

CashDesk::CashDesk(Setup setup, Notes &notes)
    : m_setup(std::move(setup))
    , m_notes(notes)
{
}

CashDesk::~CashDesk()
{
    m_isSwitching = true;
    m_receiptObservers = {};
    switchOff();
}

QString CashDesk::whenIdle(const std::function<QString()> &step)
{
    if (isBusy())
        return Outcome::busy().text();
    const QScopedValueRollback<bool> switching(m_isSwitching, true);
    return step();
}

QString CashDesk::start()
{
    return whenIdle([this] { return isOn() ? QStringLiteral("the till is on") : switchOn(); });
}

QString CashDesk::stop()
{
    return whenIdle([this] {
        switchOff();
        return QString();
    });
}

QString CashDesk::set(const QString &key, const QString &value)
{
    return whenIdle([&] {
        switchOff();
        m_setup.settings.insert(key, value);
        return switchOn();
    });
}

QString CashDesk::switchOn()
{
    using Step = QString (CashDesk::*)();
    constexpr Step steps[] = {&CashDesk::readSettings, &CashDesk::readCatalogue,
                              &CashDesk::openDatabase, &CashDesk::loadPlugin,
                              &CashDesk::startRegister};
    for (const Step step : steps) {
        if (const QString error = (this->*step)(); !error.isEmpty()) {
            switchOff();
            return error;
        }
    }
    return {};
}

void CashDesk::switchOff()
{
    const bool wasOn = isOn();
    m_register.reset();
    if (std::exchange(m_plugin, std::nullopt))
        m_loader.unload();
    if (wasOn)
        m_receiptObservers.tell();
}

QString CashDesk::readSettings()
{
    m_settings.emplace();
    if (!m_setup.settingsFile.isEmpty()) {
        if (const QString error = readSettingsFile(m_setup.settingsFile, *m_settings);
            !error.isEmpty())
            return error;
    }
    for (auto entry = m_setup.settings.cbegin(); entry != m_setup.settings.cend(); ++entry)
        m_settings->set(entry.key(), entry.value());
    return {};
}

QString CashDesk::readCatalogue()
{
    if (m_catalogue)
        return {};
    auto loaded = Catalogue::load(m_setup.catalogue);
    if (!loaded)
        return loaded.error().text();
    m_catalogue = std::move(*loaded);
    return {};
}

QString CashDesk::openDatabase()
{
    if (m_storage)
        return {};
    auto opened = Storage::open(m_setup.database);
    if (!opened)
        return opened.error().text();
    m_storage = std::move(*opened);
    return {};
}

QString CashDesk::loadPlugin()
{
    if (m_setup.plugin.isEmpty())
        return {};
    const auto loaded = m_loader.load(m_setup.plugin);
    if (!loaded)
        return loaded.error().text();
    m_plugin = *loaded;
    return {};
}

QString CashDesk::startRegister()
{
    m_notes.add("start", {{"database", m_setup.database}, {"plugin", m_setup.plugin}});
    m_register = std::make_unique<Register>(Register::Parts{
        *m_catalogue, *m_storage, m_plugin ? &*m_plugin : nullptr, *m_settings, m_notes, &m_front});
    m_receiptSeen = m_register->onReceiptChanged([this] { m_receiptObservers.tell(); });
    return m_register->start();
}

} // namespace till
