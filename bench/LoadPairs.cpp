#include "bench/Pairs.h"

#include <QtCore/QPluginLoader>

#include <dlfcn.h>
#include <optional>

namespace bench {

namespace {

//! Load and instance. Between two calls the library is unloaded, so that each loads it anew.
class Load
{
public:
    explicit Load(int) {}

    void measured() { load(BENCH_UNMAPPED_PLUGIN); }
    void byHand() { load(BENCH_EMPTY_PLUGIN); }
    void rearm() { m_loader->unload(); }

    bool same()
    {
        measured();
        const bool isPlugin = isLoadedAndGoes(BENCH_UNMAPPED_PLUGIN, "PackagingControl");
        byHand();
        return isPlugin && isLoadedAndGoes(BENCH_EMPTY_PLUGIN, "EmptyPlugin");
    }

private:
    void load(const char *path)
    {
        m_loader.emplace();
        m_loader->setLoadHints({}); // first, or Qt would keep the library for ever
        m_loader->setFileName(QString::fromUtf8(path));
        m_object = m_loader->instance();
    }

    bool isLoadedAndGoes(const char *path, const char *className)
    {
        const bool isLoaded =
            m_object && qstrcmp(m_object->metaObject()->className(), className) == 0;
        rearm();
        return isLoaded && !dlopen(path, RTLD_NOLOAD | RTLD_LAZY);
    }

    std::optional<QPluginLoader> m_loader;
    QObject *m_object = nullptr;
};

} // namespace

void addLoads(Pairs &pairs)
{
    addPair<Load>(pairs, "load", 1, 10);
}

} // namespace bench
