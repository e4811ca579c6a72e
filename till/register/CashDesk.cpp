#include "till/register/CashDesk.h"

#include "till/settings/SettingsFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QScopedValueRollback>

#include <utility>

namespace till {

Result<> readSettings(const Setup &setup, Config &config)
{
    Result<> read;
    if (!setup.settingsFile.isEmpty())
        read = readSettingsFile(setup.settingsFile, config);
    for (auto entry = setup.settings.cbegin(); entry != setup.settings.cend(); ++entry)
        config.set(entry.key(), entry.value());
    return read;
}

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

Result<> CashDesk::whenIdle(const std::function<Result<>()> &step)
{
    if (isBusy())
        return Fault{{}, QStringLiteral("a command is under way")};
    const QScopedValueRollback<bool> switching(m_isSwitching, true);
    return step();
}

Result<> CashDesk::start()
{
    return whenIdle([this]() -> Result<> {
        if (isOn())
            return Fault{{}, QStringLiteral("the till is on")};
        return switchOn();
    });
}

Result<> CashDesk::stop()
{
    return whenIdle([this] {
        switchOff();
        return Result<>();
    });
}

Result<> CashDesk::set(const QString &key, const QString &value)
{
    return whenIdle([&] {
        switchOff();
        m_setup.settings.insert(key, value);
        return switchOn();
    });
}

Result<> CashDesk::switchOn()
{
    struct Step
    {
        Result<> (CashDesk::*take)();
        const char *remedy; //!< where the fault names none of its own
    };
    constexpr Step steps[] = {
        {&CashDesk::readSettings, "see to it, or name other settings with --config"},
        {&CashDesk::readCatalogue, "see to it, or name another catalogue with --catalogue"},
        {&CashDesk::openDatabase, "see to it, or name another database with --db"},
        {&CashDesk::loadPlugin, "name another plugin with --plugin, or --no-plugin for none"},
        {&CashDesk::startRegister, ""},
    };
    for (const Step &step : steps) {
        const Result<> taken = (this->*step.take)();
        if (taken)
            continue;
        switchOff();
        Fault fault = taken.error();
        if (fault.remedy.isEmpty())
            fault.remedy = QLatin1String(step.remedy);
        return fault;
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

Result<> CashDesk::readSettings()
{
    return till::readSettings(m_setup, m_settings.emplace());
}

Result<> CashDesk::readCatalogue()
{
    if (m_catalogue)
        return {};
    auto loaded = Catalogue::load(m_setup.catalogue);
    if (!loaded)
        return loaded.error();
    m_catalogue = std::move(*loaded);
    return {};
}

Result<> CashDesk::openDatabase()
{
    if (m_storage)
        return {};
    auto opened = Storage::open(m_setup.database);
    if (!opened)
        return opened.error();
    m_storage = std::move(*opened);
    return {};
}

Result<> CashDesk::loadPlugin()
{
    if (m_setup.plugin.isEmpty())
        return {};
    const auto loaded = m_loader.load(m_setup.plugin);
    if (!loaded)
        return loaded.error().fault();
    m_plugin = *loaded;
    return {};
}

QJsonObject CashDesk::describeStart() const
{
    QJsonObject inForce;
    const QStringList all = settings();
    for (const QString &setting : all) // KEY=true or KEY=false
        inForce.insert(setting.section('=', 0, 0), setting.section('=', 1) == "true");
    return {{"version", QCoreApplication::applicationVersion()},
            {"qt", qVersion()},
            {"time", QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs)},
            {"database", m_setup.database},
            {"catalogue", m_setup.catalogue},
            {"plugin", m_setup.plugin},
            {"settings", inForce}};
}

Result<> CashDesk::startRegister()
{
    m_notes.add("start", describeStart());
    m_register = std::make_unique<Register>(Register::Parts{
        *m_catalogue, *m_storage, m_plugin ? &*m_plugin : nullptr, *m_settings, m_notes, &m_front});
    m_receiptSeen = m_register->onReceiptChanged([this] { m_receiptObservers.tell(); });
    return m_register->start();
}

} // namespace till
