#include "fuzz/UnrulyHost.h"

#include <utility>

namespace fuzz {

template <typename Answer>
auto UnrulyHost::surrounded(Answer answer)
{
    if (m_bytes.seldom(6))
        m_meanwhile();
    const auto result = answer();
    if (m_bytes.seldom(6))
        m_meanwhile();
    return result;
}

class UnrulyHost::Queue : public ActionQueueController
{
public:
    explicit Queue(UnrulyHost &host)
        : m_host(host)
    {
    }

    int runAction(const control::Action &action) override
    {
        return m_host.surrounded([&] {
            if (m_host.m_bytes.seldom(16))
                return m_host.m_bytes.raw<int>();
            const EContext::Result before = m_host.m_before(action);
            return before == EContext::Continue ? m_installed.before().runAction(action)
                                                : int(before);
        });
    }

private:
    UnrulyHost &m_host;
    const Installed<ActionQueueController> m_installed{this};
};

class UnrulyHost::Logic : public DocumentLogic
{
public:
    explicit Logic(UnrulyHost &host)
        : m_host(host)
        , m_ruly(MockFactory<DocumentLogic>::mocked)
    {
    }

    bool stornoPosition(const control::Action &action) override
    {
        return m_host.surrounded([&] {
            return m_host.m_bytes.seldom(16) ? m_host.m_bytes.seldom(2)
                                             : m_ruly->stornoPosition(action);
        });
    }

private:
    UnrulyHost &m_host;
    QSharedPointer<DocumentLogic> m_ruly;
};

class UnrulyHost::Asking : public Dialog
{
public:
    explicit Asking(UnrulyHost &host)
        : m_host(host)
    {
    }

    bool showQuestion(const tr::Tr &, int, const tr::Tr &, const tr::Tr &, int) override
    {
        return m_host.surrounded([&] { return !m_host.m_bytes.seldom(4); });
    }

private:
    UnrulyHost &m_host;
};

UnrulyHost::UnrulyHost(Bytes &bytes, std::function<void()> meanwhile,
                       std::function<EContext::Result(const control::Action &)> before)
    : m_bytes(bytes)
    , m_meanwhile(std::move(meanwhile))
    , m_before(std::move(before))
    , m_queue(new Queue(*this))
{
    MockFactory<DocumentLogic>::mocked.reset(new Logic(*this));
    MockFactory<Dialog>::mocked.reset(new Asking(*this));
}

} // namespace fuzz
