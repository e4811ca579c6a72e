#ifndef HOST_BASICPLUGIN_H
#define HOST_BASICPLUGIN_H

#include "host/ActionTrigger.h"
#include "host/HostGlobal.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>

class ActionHandler;

/*!
 * Base of every plugin: its life cycle and its triggers.
 *
 * The order of the virtual operations is binary contract between the host and plugins built
 * earlier.
 */
class HOST_EXPORT BasicPlugin
{
public:
    BasicPlugin();
    Q_DISABLE_COPY_MOVE(BasicPlugin)
    virtual ~BasicPlugin();

    //! Called once by the host after loading. False means that the plugin must not be used.
    virtual bool init();
    //! Called by the host before the plugin is unloaded.
    virtual void deinit();
    //! Whether the plugin offers \a feature: whether `setFeature` was called with it.
    virtual bool isFeatureMatched(const QString &feature) const;
    //! Notes that the plugin offers \a feature.
    virtual void setFeature(const QString &feature);
    //! Reserved for handlers that carry out actions; this host has none and ignores them.
    virtual void addHandler(const ActionHandler &handler);
    //! Adds \a trigger behind those added before. Adding the same trigger twice keeps both.
    virtual void addTrigger(const ActionTrigger &trigger);
    //! From now on the triggers of these action types are left out of `activeTriggers`.
    virtual void disableTriggers(const QSet<int> &actionTypes);
    //! Ends the effect of every `disableTriggers`.
    virtual void enableTriggers();

    //! Every trigger, in the order of registration, disabled ones too.
    QList<ActionTrigger> triggers() const;

    /*!
     * The enabled triggers of \a context, \a actionType and \a order, as the host has to call them:
     * by priority, the smallest number first, and among equals in the order of registration.
     */
    QList<ActionTrigger> activeTriggers(EContext::Code context, control::EActionType actionType,
                                        ActionTrigger::Order order) const;

private:
    QList<ActionTrigger> m_triggers;
    QSet<int> m_disabledTypes;
    QSet<QString> m_features;
};

//! Interface identifier that `qt_metacast` of a plugin object answers with its `BasicPlugin` part.
#define BasicPlugin_iid "pos.host.BasicPlugin/1.0"
Q_DECLARE_INTERFACE(BasicPlugin, BasicPlugin_iid)

#endif // HOST_BASICPLUGIN_H
