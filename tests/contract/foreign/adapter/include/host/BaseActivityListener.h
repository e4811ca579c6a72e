#ifndef HOST_BASEACTIVITYLISTENER_H
#define HOST_BASEACTIVITYLISTENER_H

#include "host/Event.h"

//! Hears the shop's activities and hands them on with the plugin's keys.
class BaseActivityListener : public shopline::Listener
{
public:
    explicit BaseActivityListener(QObject *parent)
        : shopline::Listener(parent)
    {
    }

#if defined(SHOPLINE_BREAKS_Form_Listener)
    using Told = Event;
#else
    using Told = const Event;
#endif
#if defined(SHOPLINE_BREAKS_Table_Listener)
    void handleEvent(Told &) {}
#else
    virtual void handleEvent(Told &event) = 0;
#endif

private:
    void onActivity(const shopline::Activity &activity) final
    {
        Event event(activity);
        handleEvent(event);
    }
};

#endif // HOST_BASEACTIVITYLISTENER_H
