#include "host/ActivityNotifier.h"
#include "host/BasicPlugin.h"
#include "host/Document.h"
#include "host/DocumentWatcher.h"
#include "host/Event.h"

#include <QtCore/QFile>
#include <QtCore/QPluginLoader>

#include <cstdlib>
#include <iostream>

// Loads the plugin that the first argument names, sells a tara through it, and makes sure that the
// host's library is the one below the second argument. Ends with 0 when all of it worked.

namespace {

int fail(const std::string &text)
{
    std::cerr << text << '\n';
    return EXIT_FAILURE;
}

//! Paths of the host library that are mapped into this process and not below \a prefix.
QByteArrayList strayHosts(const QByteArray &prefix)
{
    QFile maps("/proc/self/maps");
    if (!maps.open(QIODevice::ReadOnly))
        return {"/proc/self/maps cannot be read"};
    QByteArrayList strays;
    const QByteArrayList lines = maps.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const QByteArray path = line.mid(line.indexOf('/'));
        if (path.contains("libPackagingHost") && !path.startsWith(prefix + '/'))
            strays << path;
    }
    return strays;
}

QSharedPointer<GoodsItem> barrel()
{
    const auto tmc = QSharedPointer<Tmc>::create(Tmc::Tara, 50.0);
    const auto position = QSharedPointer<GoodsItem>::create(1, tmc);
    position->setCquant(2);
    return position;
}

//! Capacity of the one tara that the plugin noted in \a receipt; 0 when it noted none.
double notedCapacity(const Document &receipt)
{
    const QVariantList taras = receipt.getPluginData("PackagingControl", "taraInfo", {}).toList();
    return taras.isEmpty() ? 0.0 : taras.first().toMap().value("capacity").toDouble();
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3)
        return fail("usage: host_program PLUGIN PREFIX");
    QPluginLoader loader(QString::fromLocal8Bit(argv[1]));
    QObject *const object = loader.instance();
    auto *const plugin = qobject_cast<BasicPlugin *>(object);
    if (!plugin)
        return fail("no plugin: " + loader.errorString().toStdString());
    const QByteArrayList strays = strayHosts(argv[2]);
    if (!strays.isEmpty())
        return fail("another host library is in use: " + strays.first().toStdString());

    const auto receipt = QSharedPointer<Document>::create();
    const auto position = barrel();
    receipt->addPosition(position);
    plugin->init();
    static_cast<DocumentWatcher *>(object->qt_metacast("DocumentWatcher"))->setDocument(receipt);
    Singleton<ActivityNotifier>::instance()->notify(
        Event(EActivityListener::eventPositionAdded)
            .addArgument("position", QVariant::fromValue(position)));
    if (notedCapacity(*receipt) != 100.0)
        return fail("the plugin did not note the tara");
    return EXIT_SUCCESS;
}
