#ifndef HOST_EVENT_H
#define HOST_EVENT_H

#include "host/EActivityListener.h"

//! The shop's activity with the plugin's keys. Nothing is added, so that it can be handed to the
//! shop.
class Event : public shopline::Activity
{
public:
#if !defined(SHOPLINE_BREAKS_Types_Event)
    Event() = default;
#endif
    explicit Event(EActivityListener::Event code)
        : shopline::Activity(code)
    {
    }
    //! What the shop tells a listener.
    explicit Event(const shopline::Activity &activity)
        : shopline::Activity(activity)
    {
    }

    QVariant value(const QString &key, const QVariant &otherwise) const
    {
        return shopline::Activity::value(shopsKey(key), otherwise);
    }

#if defined(SHOPLINE_BREAKS_Form_Event)
    Event addArgument(const QString &key, const QVariant &value)
#else
    Event &addArgument(const QString &key, const QVariant &value)
#endif
    {
        shopline::Activity::addArgument(shopsKey(key), value);
        return *this;
    }

private:
    static QString shopsKey(const QString &key)
    {
        if (key == QLatin1String("position"))
            return QStringLiteral("line");
        if (key == QLatin1String("errorText"))
            return QStringLiteral("say");
        if (key == QLatin1String("forCustomer"))
            return QStringLiteral("toBuyer");
        return key;
    }
};

#endif // HOST_EVENT_H
