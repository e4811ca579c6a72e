#ifndef HOST_EVENT_H
#define HOST_EVENT_H

#include "host/EActivityListener.h"

#include <vendor/Event.h>

// Where the SDK's keys are the plugin's ("position", "errorText", "forCustomer"), an alias does:
using Event = vendor::Event;

// Where they are others, translate them here, and hand the result on in BaseActivityListener.h. Add
// no member, so that the plugin's event can be given to the host as it is:
//
//     class Event : public vendor::Event
//     {
//     public:
//         Event() = default;                               // for the metatype
//         explicit Event(EActivityListener::Event code) : vendor::Event(code) {}
//         explicit Event(const vendor::Event &event) : vendor::Event(event) {}
//         QVariant value(const QString &key, const QVariant &otherwise) const
//         {
//             return vendor::Event::value(theirs(key), otherwise);
//         }
//         Event &addArgument(const QString &key, const QVariant &value)
//         {
//             vendor::Event::addArgument(theirs(key), value);
//             return *this;
//         }
//
//     private:
//         static QString theirs(const QString &key);       // "position" -> the SDK's key, ...
//     };

#endif // HOST_EVENT_H
