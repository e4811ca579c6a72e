#include "contract/Checks.h"
#include "contract/Stage.h"

#include <QtCore/QFile>
#include <QtCore/QJsonObject>
#include <QtCore/QPluginLoader>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtCore/QStringList>

namespace contract {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool isSanitized = true;
#elif defined(__has_feature)
constexpr bool isSanitized = __has_feature(address_sanitizer);
#else
constexpr bool isSanitized = false;
#endif

//! \a check of the plugin's file, if one was named.
template <Finding (*check)(const QString &)>
Finding onFile()
{
    if (pluginFile().isEmpty())
        return unchecked(QStringLiteral("no plugin file was named (--plugin FILE)"));
    return check(pluginFile());
}

//! What a program says, its errors too; null when the program is not installed here.
QString output(const QString &program, const QStringList &arguments)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return {};
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(path, arguments);
    process.waitForFinished();
    return QString::fromLocal8Bit(process.readAll()) + QLatin1Char('\n');
}

QStringList lines(const QString &text, const QString &pattern)
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    QStringList found;
    const QStringList all = text.split(QLatin1Char('\n'));
    for (const QString &line : all) {
        if (line.contains(QRegularExpression(pattern)))
            found.append(QString(line).replace(blanks, QStringLiteral(" ")).trimmed());
    }
    return found;
}

Finding needs(const QString &file)
{
    if (isSanitized)
        return unchecked(QStringLiteral("a build with sanitizers does not load alone"));
    const QString report = output(QStringLiteral("ldd"), {QStringLiteral("-r"), file});
    if (report.isNull())
        return unchecked(QStringLiteral("there is no ldd here"));
    const QStringList missing =
        lines(report, QStringLiteral("not found|undefined symbol|not a dynamic|No such file"));
    return judge({{missing.isEmpty(), missing.join(QStringLiteral(", "))}});
}

Finding ownsNoService(const QString &file)
{
    QString symbols = output(QStringLiteral("nm"), {QStringLiteral("-C"), file});
    if (symbols.isNull())
        return unchecked(QStringLiteral("there is no nm here"));
    if (symbols.contains(QLatin1String("no symbols")))
        symbols = output(QStringLiteral("nm"), {QStringLiteral("-DC"), file});
    // Data only: the code that asks for a service may be anywhere.
    const QStringList own =
        lines(symbols, QStringLiteral(" [bBdDuvVgGsS] (Singleton|MockFactory)<[^ ]*>::"));
    return judge({{own.isEmpty(), own.join(QStringLiteral(", "))}});
}

Finding metadata(const QString &file)
{
    const QJsonObject record = QPluginLoader(file).metaData();
    const QString interface = record.value(QLatin1String("IID")).toString();
    const QString name = record.value(QLatin1String("className")).toString();
    return judge(
        {{interface == QLatin1String("PackagingControl"),
          QStringLiteral("interface \"%1\"").arg(interface)},
         {name == QLatin1String("PackagingControl"), QStringLiteral("class \"%1\"").arg(name)}});
}

Finding basesByName(const QString &file)
{
    QPluginLoader loader(file);
    QObject *const object = loader.instance();
    if (!object)
        return broken(loader.errorString());
    const auto answers = [object](const char *name) {
        return Row{object->qt_metacast(name) != nullptr,
                   QStringLiteral("nothing by the name \"%1\"").arg(QString::fromLatin1(name))};
    };
    return judge(
        {answers("PackagingControl"), answers("BasicPlugin"), answers("DocumentWatcher"),
         answers(qobject_interface_iid<BasicPlugin *>()),
         flag(dynamic_cast<BaseActivityListener *>(object) != nullptr, "no BaseActivityListener"),
         flag(qobject_cast<BasicPlugin *>(object) != nullptr, "no BasicPlugin by qobject_cast")});
}

} // namespace

Checks fileChecks()
{
    return {
        {"Plugin.Needs", "every library and symbol that the plugin's file asks for is found",
         "the host does not load the plugin", onFile<needs>},
        {"Plugin.OwnsNoService", "the slots of the services are in the host's library",
         "the plugin has settings and a notifier of its own", onFile<ownsNoService>},
        {"Plugin.Metadata", "interface and class of the file are \"PackagingControl\"",
         "the host does not take the file for this plugin", onFile<metadata>},
        {"Plugin.Bases", "the plugin's object answers to its three bases and the identifier",
         "the host finds no way to hand over a receipt", onFile<basesByName>},
    };
}

} // namespace contract
