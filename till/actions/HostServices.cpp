#include "till/actions/HostServices.h"

#include "host/ActionQueueController.h"
#include "host/ActivityNotifier.h"
#include "host/BaseActivityListener.h"
#include "host/Dialog.h"
#include "host/DocumentLogic.h"
#include "host/EContext.h"
#include "host/Event.h"
#include "host/GoodsItem.h"
#include "host/LoyaltySystemLayer.h"

#include <log4qt/appenderskeleton.h>
#include <log4qt/logger.h>
#include <log4qt/loggingevent.h>
#include <log4qt/logmanager.h>

namespace till {

namespace {

//! What is asked and shown outlives the call that brings it. A plugin's text may lie in memory that
//! does not (`QString::fromRawData`), so it is copied here, where it enters.
tr::Tr entered(const tr::Tr &text)
{
    const auto copied = [](const QString &part) { return QString(part.constData(), part.size()); };
    return {copied(text.key()), copied(text.text())};
}

class Queue : public ActionQueueController
{
public:
    explicit Queue(HostProgram &program)
        : m_program(program)
    {
    }

    int runAction(const control::Action &action) override { return m_program.runQueued(action); }

private:
    HostProgram &m_program;
};

class Logic : public DocumentLogic
{
public:
    explicit Logic(HostProgram &program)
        : m_program(program)
    {
    }

    bool stornoPosition(const control::Action &action) override
    {
        return m_program.runQueued(action) == EContext::Continue;
    }

private:
    HostProgram &m_program;
};

class QuestionDialog : public Dialog
{
public:
    explicit QuestionDialog(HostProgram &program)
        : m_program(program)
    {
    }

    bool showQuestion(const tr::Tr &question, int kind, const tr::Tr &confirm, const tr::Tr &cancel,
                      int flags) override
    {
        Q_UNUSED(kind)
        Q_UNUSED(flags)
        return m_program.ask({entered(question), entered(confirm), entered(cancel)});
    }

private:
    HostProgram &m_program;
};

class Loyalty : public LoyaltySystemLayer
{
public:
    explicit Loyalty(Notes &notes)
        : m_notes(notes)
    {
    }

    void updateDocument(const QSharedPointer<AbstractDocument> &document) override
    {
        Q_UNUSED(document)
        m_notes.add("loyalty", {});
    }

private:
    Notes &m_notes;
};

class LogAppender : public Log4Qt::AppenderSkeleton
{
public:
    explicit LogAppender(Notes &notes)
        : m_notes(notes)
    {
    }

    bool requiresLayout() const override { return false; }

protected:
    void append(const Log4Qt::LoggingEvent &event) override
    {
        m_notes.add("log", {{"logger", event.logger()->name()},
                            {"level", event.level().toString()},
                            {"text", event.message()}});
    }

private:
    Notes &m_notes;
};

const HostServices *inPlace = nullptr;

QJsonObject describe(const Event &event)
{
    QJsonObject fields{{"code", event.getCode()}};
    if (const auto position = event.value("position", {}).value<QSharedPointer<GoodsItem>>())
        fields.insert("position", position->getPosnum());
    return fields;
}

} // namespace

class HostServices::Notifier : public ActivityNotifier
{
public:
    explicit Notifier(Notes &notes)
        : m_notes(notes)
    {
    }

    void notify(const Event &event) override
    {
        m_notes.add("event", describe(event));
        const Notes::Nesting inside(m_notes);
        ActivityNotifier::notify(event);
    }

private:
    Notes &m_notes;
};

class HostServices::MessageListener : public BaseActivityListener
{
public:
    explicit MessageListener(HostProgram &program)
        : BaseActivityListener(nullptr)
        , m_program(program)
    {
    }

    void handleEvent(const Event &event) override
    {
        m_program.show(entered(event.value("errorText", {}).value<tr::Tr>()));
    }

private:
    HostProgram &m_program;
};

class HostServices::LogListener
{
public:
    explicit LogListener(Notes &notes)
        : m_logger(Log4Qt::LogManager::logger("packaging"))
        , m_appender(new LogAppender(notes))
    {
        m_logger->addAppender(m_appender);
    }

    ~LogListener() { m_logger->removeAppender(m_appender); }
    Q_DISABLE_COPY_MOVE(LogListener)

private:
    Log4Qt::Logger *m_logger;
    Log4Qt::AppenderSharedPtr m_appender;
};

HostServices::HostServices(HostProgram &program, Notes &notes, Config &settings)
    : m_notifier(new Notifier(notes))
    , m_messages(new MessageListener(program))
    , m_session(new Session)
    , m_queue(new Queue(program))
    , m_loyalty(new Loyalty(notes))
    , m_log(new LogListener(notes))
{
    m_notifier->subscribe(m_messages.get(), {EActivityListener::eventError});
    if (inPlace)
        return;
    inPlace = this;
    Singleton<ActivityNotifier>::instance = m_notifier.get();
    Singleton<Session>::instance = m_session.get();
    Singleton<ActionQueueController>::instance = m_queue.get();
    Singleton<LoyaltySystemLayer>::instance = m_loyalty.get();
    Singleton<Config>::instance = &settings;
    MockFactory<Dialog>::mocked.reset(new QuestionDialog(program));
    MockFactory<DocumentLogic>::mocked.reset(new Logic(program));
}

HostServices::~HostServices()
{
    if (!areInPlace())
        return;
    inPlace = nullptr;
    MockFactory<DocumentLogic>::mocked.reset();
    MockFactory<Dialog>::mocked.reset();
    Singleton<Config>::instance = nullptr;
    Singleton<LoyaltySystemLayer>::instance = nullptr;
    Singleton<ActionQueueController>::instance = nullptr;
    Singleton<Session>::instance = nullptr;
    Singleton<ActivityNotifier>::instance = nullptr;
}

bool HostServices::areInPlace() const
{
    return inPlace == this;
}

ActivityNotifier &HostServices::notifier()
{
    return *m_notifier;
}

ModifiersContainer &HostServices::modifiers()
{
    return *m_session->getModifiers();
}

} // namespace till
