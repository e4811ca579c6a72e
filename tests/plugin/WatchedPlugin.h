#ifndef TESTS_PLUGIN_WATCHEDPLUGIN_H
#define TESTS_PLUGIN_WATCHEDPLUGIN_H

#include "tests/plugin/RecordingHost.h"

// What happens to a plugin that is given a document, one text each in a journal.

//! A document that notes what it is asked.
class AskedDocument : public Document
{
public:
    AskedDocument(QStringList &journal, int type, bool withOrder)
        : Document(type)
        , m_journal(journal)
    {
        if (withOrder)
            setOrder(QSharedPointer<Order>::create());
    }

    int getType() const override
    {
        m_journal << "type";
        return Document::getType();
    }

    QSharedPointer<Order> getOrder() const override
    {
        m_journal << "order";
        return Document::getOrder();
    }

private:
    QStringList &m_journal;
};

//! A plugin that notes its own virtual operations, and which document it holds meanwhile.
class WatchedPlugin : public TestPlugin
{
public:
    explicit WatchedPlugin(QStringList &journal)
        : m_journal(journal)
    {
    }

    void restorePluginData() override
    {
        m_journal << "restore";
        heldAtRestore = heldDocument();
        TestPlugin::restorePluginData();
    }

    void disablePlugin() override
    {
        m_journal << "disablePlugin";
        TestPlugin::disablePlugin();
    }

    void savePluginData() const override { m_journal << "save"; }

    QSharedPointer<AbstractDocument> heldAtRestore;

private:
    QStringList &m_journal;
};

//! Notes what the plugin holds at the moment in which delivery is enabled.
class EnableWatcher : public RecordingNotifier
{
public:
    EnableWatcher(QStringList &journal, const TestPlugin &plugin)
        : RecordingNotifier(journal)
        , m_plugin(plugin)
    {
    }

    void enableListener(BaseActivityListener *enabled) override
    {
        heldAtEnable = m_plugin.heldDocument();
        RecordingNotifier::enableListener(enabled);
    }

    QSharedPointer<AbstractDocument> heldAtEnable;

private:
    const TestPlugin &m_plugin;
};

#endif // TESTS_PLUGIN_WATCHEDPLUGIN_H
