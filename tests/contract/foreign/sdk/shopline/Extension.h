#ifndef SHOPLINE_EXTENSION_H
#define SHOPLINE_EXTENSION_H

#include "shopline/Task.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSet>

namespace shopline {

class Worker;

//! Base of what extends the shop's program.
class SHOPLINE_API Extension
{
public:
    virtual ~Extension();
#if defined(SHOPLINE_BREAKS_Table_Plugin)
    virtual void deinit();
#endif
    virtual bool init();
#if !defined(SHOPLINE_BREAKS_Table_Plugin)
    virtual void deinit();
#endif
    virtual bool isFeatureMatched(const QString &feature) const;
    virtual void setFeature(const QString &feature);
    virtual void addHandler(const Worker &worker);
#if defined(SHOPLINE_BREAKS_Form_Plugin)
    virtual void addTrigger(Hook &hook);
#else
    virtual void addTrigger(const Hook &hook);
#endif
    virtual void disableTriggers(const QSet<int> &kinds);
    virtual void enableTriggers();
#if defined(SHOPLINE_BREAKS_Table_PluginEnd)
    virtual void more();
#endif

    //! Those at a task, in the order in which they are called.
    QList<Hook> hooks(TaskKind kind, Hook::Moment moment) const;

private:
    QList<Hook> m_hooks;
};

} // namespace shopline

#if defined(SHOPLINE_BREAKS_Types_Interface)
#    define shopline_Extension_iid ""
#else
#    define shopline_Extension_iid "org.shopline.Extension/3"
#endif
Q_DECLARE_INTERFACE(shopline::Extension, shopline_Extension_iid)

#endif // SHOPLINE_EXTENSION_H
