#ifndef TESTS_MODEL_REALSERVICES_H
#define TESTS_MODEL_REALSERVICES_H

#include "tests/model/RealHost.h"
#include "tests/support/InstalledServices.h"

#include "host/BaseActivityListener.h"

#include <log4qt/logger.h>

namespace model {

//! The host's services, as long as it lives. Each tells the host what it was asked.
class RealHost::Services
{
public:
    explicit Services(RealHost &host);
    ~Services();
    Q_DISABLE_COPY_MOVE(Services)

    ActivityNotifier &notifier() { return *m_notifier; }

private:
    class Notifier;
    class Settings;
    class Queue;
    class Loyalty;
    class Logic;
    class Question;
    class Messages;
    class Appender;

    std::unique_ptr<ActivityNotifier> m_notifier;
    std::unique_ptr<Config> m_settings;
    std::unique_ptr<ActionQueueController> m_queue;
    std::unique_ptr<LoyaltySystemLayer> m_loyalty;
    std::unique_ptr<BaseActivityListener> m_messages;
    Log4Qt::Logger *m_logger;
    Log4Qt::AppenderSharedPtr m_appender;
    const InstalledServices m_installed;
};

} // namespace model

#endif // TESTS_MODEL_REALSERVICES_H
