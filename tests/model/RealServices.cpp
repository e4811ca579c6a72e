#include "tests/model/RealServices.h"

#include "host/Event.h"

#include <algorithm>

namespace model {

namespace {

QString toLine(const tr::Tr &text)
{
    return text.key() + '|' + text.text();
}

} // namespace

class RealHost::Services::Notifier : public ActivityNotifier
{
public:
    explicit Notifier(RealHost &host)
        : m_host(host)
    {
    }

    void subscribe(BaseActivityListener *listener, const QSet<int> &codes) override
    {
        QList<int> sorted = codes.values();
        std::sort(sorted.begin(), sorted.end());
        QString line = "subscribe";
        for (const int code : std::as_const(sorted))
            line += ' ' + QString::number(code);
        m_host.say(line);
        ActivityNotifier::subscribe(listener, codes);
    }

    void disableListener(BaseActivityListener *listener) override
    {
        m_host.say("disable");
        ActivityNotifier::disableListener(listener);
    }

    void enableListener(BaseActivityListener *listener) override
    {
        m_host.say("enable");
        ActivityNotifier::enableListener(listener);
    }

private:
    RealHost &m_host;
};

class RealHost::Services::Settings : public Config
{
public:
    explicit Settings(RealHost &host)
        : m_host(host)
    {
    }

    bool getBool(const QString &key, bool defaultValue) const override
    {
        m_host.say("setting " + key + (defaultValue ? " true" : " false"));
        return m_host.m_config.getBool(key, defaultValue);
    }

private:
    RealHost &m_host;
};

class RealHost::Services::Queue : public ActionQueueController
{
public:
    explicit Queue(RealHost &host)
        : m_host(host)
    {
    }

    int runAction(const control::Action &action) override { return m_host.runQueued(action); }

private:
    RealHost &m_host;
};

class RealHost::Services::Loyalty : public LoyaltySystemLayer
{
public:
    explicit Loyalty(RealHost &host)
        : m_host(host)
    {
    }

    void updateDocument(const QSharedPointer<AbstractDocument> &document) override
    {
        m_host.say(QStringLiteral("loyalty %1").arg(document.staticCast<RealReceipt>()->number));
    }

private:
    RealHost &m_host;
};

class RealHost::Services::Logic : public DocumentLogic
{
public:
    explicit Logic(RealHost &host)
        : m_host(host)
    {
    }

    bool stornoPosition(const control::Action &action) override
    {
        m_host.storno(action);
        return false; // nobody may look at it
    }

private:
    RealHost &m_host;
};

class RealHost::Services::Question : public Dialog
{
public:
    explicit Question(RealHost &host)
        : m_host(host)
    {
    }

    bool showQuestion(const tr::Tr &question, int kind, const tr::Tr &confirm, const tr::Tr &cancel,
                      int flags) override
    {
        m_host.say("ask " + toLine(question) + '|' + QString::number(kind) + '|' + toLine(confirm)
                   + '|' + toLine(cancel) + '|' + QString::number(flags));
        return m_host.ask();
    }

private:
    RealHost &m_host;
};

class RealHost::Services::Messages : public BaseActivityListener
{
public:
    explicit Messages(RealHost &host)
        : BaseActivityListener(nullptr)
        , m_host(host)
    {
    }

    void handleEvent(const Event &event) override
    {
        const QVariant forCustomer = event.value("forCustomer", {});
        m_host.say("error " + toLine(event.value("errorText", {}).value<tr::Tr>()) + '|'
                   + QString::number(event.arguments().size()) + '|'
                   + (forCustomer == QVariant(false) ? "false" : "other"));
    }

private:
    RealHost &m_host;
};

RealHost::Services::Services(RealHost &host)
    : m_notifier(new Notifier(host))
    , m_settings(new Settings(host))
    , m_queue(new Queue(host))
    , m_loyalty(new Loyalty(host))
    , m_messages(new Messages(host))
    , m_installed(m_notifier.get(), m_settings.get(), &host.m_session, m_queue.get(),
                  m_loyalty.get(), new Question(host), new Logic(host))
    , m_log([&host](const QString &line) { host.say(line); })
{
    // What the messages listen to is no part of the journal.
    m_notifier->ActivityNotifier::subscribe(m_messages.get(), {EActivityListener::eventError});
}

} // namespace model
