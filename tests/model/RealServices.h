#ifndef TESTS_MODEL_REALSERVICES_H
#define TESTS_MODEL_REALSERVICES_H

#include "tests/model/RealHost.h"
#include "tests/support/InstalledServices.h"
#include "tests/support/LogCapture.h"

#include "host/BaseActivityListener.h"

namespace model {

//! The host's services, as long as it lives. Each tells the host what it was asked.
class RealHost::Services
{
public:
    explicit Services(RealHost &host);
    ~Services() = default;
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

    std::unique_ptr<ActivityNotifier> m_notifier;
    std::unique_ptr<Config> m_settings;
    std::unique_ptr<ActionQueueController> m_queue;
    std::unique_ptr<LoyaltySystemLayer> m_loyalty;
    std::unique_ptr<BaseActivityListener> m_messages;
    const InstalledServices m_installed;
    LogListener m_log;
};

} // namespace model

#endif // TESTS_MODEL_REALSERVICES_H
