#include "host/ActivityNotifier.h"
#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/DocumentWatcher.h"
#include "host/Event.h"
#include "host/GoodsItem.h"
#include "host/Singleton.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

//! Leaves a process that holds the file "alive" at home open for writing.
void leaveAProcess()
{
    const int file = open((qgetenv("HOME") + "/alive").constData(), O_WRONLY | O_CLOEXEC);
    if (fork() == 0) {
        for (;;)
            pause();
    }
    close(file);
}

void goOn()
{
    std::fputs("the plugin goes on and on\n", stdout);
}

//! A plugin of the host's that goes wrong when so many pieces are added.
class Faulty : public BaseActivityListener, public BasicPlugin, public DocumentWatcher
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "PackagingControl")
    Q_INTERFACES(BasicPlugin)

public:
    Faulty()
        : BaseActivityListener(nullptr)
    {
    }

    bool init() override
    {
        Singleton<ActivityNotifier>::instance()->subscribe(this,
                                                           {EActivityListener::eventPositionAdded});
        return true;
    }

    void handleEvent(const Event &event) override
    {
        switch (qRound(event.value("position", {}).value<GoodsItemPtr>()->getCquant())) {
        case 11:
            std::fputs("the plugin's last words\n", stderr);
            std::signal(SIGSEGV, SIG_DFL); // a sanitizer has its own way of ending
            std::raise(SIGSEGV);
            break;
        case 12:
            std::abort();
        case 13:
            for (;;)
                pause();
        case 14:
            std::exit(EXIT_SUCCESS);
        case 15:
            leaveAProcess();
            break;
        case 16:
            for (;;)
                goOn();
        case 17:
            for (int line = 0; line < 700'000; ++line) // more than there is room for
                goOn();
            std::abort();
        default:
            break;
        }
    }
};

#include "Faulty.moc"
