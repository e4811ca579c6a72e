#ifndef HOST_BASEACTIVITYLISTENER_H
#define HOST_BASEACTIVITYLISTENER_H

#include "host/Event.h"

#include <vendor/BaseActivityListener.h>

// The first base of the plugin; a QObject, made with a parent.
using BaseActivityListener = vendor::BaseActivityListener;

// With an Event of the adapter's, a class in between:
//
//     class BaseActivityListener : public vendor::BaseActivityListener // no Q_OBJECT needed
//     {
//     public:
//         explicit BaseActivityListener(QObject *parent) : vendor::BaseActivityListener(parent) {}
//         virtual void handleEvent(const Event &event) = 0;
//
//     private:
//         void onEvent(const vendor::Event &event) final { handleEvent(Event(event)); }
//     };

#endif // HOST_BASEACTIVITYLISTENER_H
