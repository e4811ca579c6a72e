#include "till/plugins/PluginLoader.h"

#include "host/BaseActivityListener.h"
#include "host/BasicPlugin.h"
#include "host/DocumentWatcher.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QPluginLoader>

#include <link.h>

#include <cstring>
#include <optional>
#include <utility>

namespace till {
namespace {

using ElfHeader = ElfW(Ehdr);

QString interfaceId()
{
    return QStringLiteral("PackagingControl");
}

QString inQuotes(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

std::optional<ElfHeader> readElfHeader(QFile &file)
{
    ElfHeader header{};
    const bool complete =
        file.read(reinterpret_cast<char *>(&header), sizeof header) == qint64(sizeof header);
    if (!complete || std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0)
        return std::nullopt;
    return header;
}

//! Length that a library needs to be whole: linkers write the section table at the end.
qint64 wholeLength(const ElfHeader &header)
{
    return qint64(header.e_shoff) + qint64(header.e_shnum) * header.e_shentsize;
}

Result<void, PluginError> checkFile(const QFileInfo &file)
{
    if (file.isFile())
        return {};
    return PluginError{
        PluginError::NoSuchFile, file.absoluteFilePath(), QStringLiteral("a plugin file"),
        file.exists() ? QStringLiteral("a directory or a device") : QStringLiteral("no such file")};
}

//! Whether it is a library that is there to its end.
Result<void, PluginError> checkWhole(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return PluginError{PluginError::NoSuchFile, path, QStringLiteral("a readable file"),
                           file.errorString()};
    const auto header = readElfHeader(file);
    if (!header)
        return PluginError{
            PluginError::NotALibrary, path, QStringLiteral("a shared library"),
            QStringLiteral("a file of another kind, %1 bytes long").arg(file.size())};
    if (file.size() >= wholeLength(*header))
        return {};
    return PluginError{PluginError::Truncated, path,
                       QStringLiteral("a shared library of %1 bytes").arg(wholeLength(*header)),
                       QStringLiteral("only its first %1 bytes").arg(file.size())};
}

Result<PluginMetadata, PluginError> readRecord(const QPluginLoader &library, const QString &path)
{
    const QJsonObject record = library.metaData();
    if (record.isEmpty())
        return PluginError{PluginError::NoMetadata, path,
                           QStringLiteral("the metadata of a Qt plugin"),
                           QStringLiteral("none (%1)").arg(library.errorString())};
    const PluginMetadata metadata{path, record.value(QLatin1String("IID")).toString(),
                                  record.value(QLatin1String("className")).toString(), record};
    if (metadata.interfaceId == interfaceId())
        return metadata;
    return PluginError{PluginError::WrongInterface, path,
                       QStringLiteral("interface ") + inQuotes(interfaceId()),
                       QStringLiteral("interface ") + inQuotes(metadata.interfaceId)};
}

//! The missing part, or null when \a loaded has them all.
const char *missingPart(const LoadedPlugin &loaded)
{
    if (!loaded.plugin)
        return BasicPlugin_iid;
    if (!loaded.listener)
        return "BaseActivityListener";
    return loaded.watcher ? nullptr : "DocumentWatcher";
}

LoadedPlugin parts(QObject *object, const PluginMetadata &metadata)
{
    if (!object)
        return {metadata};
    return {metadata, object, qobject_cast<BasicPlugin *>(object),
            qobject_cast<BaseActivityListener *>(object),
            static_cast<DocumentWatcher *>(object->qt_metacast("DocumentWatcher"))};
}

PluginError wrongObject(const QString &path, const LoadedPlugin &loaded)
{
    const QString found =
        loaded.object ? QStringLiteral("an object of class ")
                            + inQuotes(QString::fromUtf8(loaded.object->metaObject()->className()))
                      : QStringLiteral("no object");
    return {PluginError::WrongObject, path,
            QStringLiteral("an object that answers to ")
                + inQuotes(QString::fromLatin1(missingPart(loaded))),
            found};
}

Result<LoadedPlugin, PluginError> instantiate(QPluginLoader &library, const QString &path,
                                              const PluginMetadata &metadata)
{
    if (!library.load())
        return PluginError{PluginError::NotLoadable, path,
                           QStringLiteral("a library that this system can load"),
                           library.errorString()};
    const LoadedPlugin loaded = parts(library.instance(), metadata);
    if (!missingPart(loaded))
        return loaded;
    const PluginError error = wrongObject(path, loaded);
    library.unload();
    return error;
}

std::unique_ptr<QPluginLoader> open(const QString &path)
{
    auto library = std::make_unique<QPluginLoader>(path);
    // Symbols are resolved at once, so that a missing one shows here and not at its first use.
    library->setLoadHints(library->loadHints() | QLibrary::ResolveAllSymbolsHint);
    return library;
}

} // namespace

Fault PluginError::fault() const
{
    return {
        path,
        QStringLiteral("cannot be loaded as a plugin: expected %1, found %2").arg(expected, found)};
}

Result<void, PluginError> LoadedPlugin::initialise() const
{
    if (plugin->init())
        return {};
    return PluginError{PluginError::NotReady, metadata.path,
                       QStringLiteral("a plugin that init() makes ready"),
                       QStringLiteral("one whose init() answers false")};
}

PluginLoader::PluginLoader() = default;
PluginLoader::~PluginLoader() = default;

Result<PluginMetadata, PluginError> PluginLoader::readMetadata(const QString &path)
{
    const QString file = QFileInfo(path).absoluteFilePath();
    return checkFile(QFileInfo(path)).then([&] { return checkWhole(file); }).then([&] {
        return readRecord(*open(file), file);
    });
}

Result<LoadedPlugin, PluginError> PluginLoader::load(const QString &path)
{
    m_library.reset();
    const auto checked = readMetadata(path);
    if (!checked)
        return checked.error();
    // An absolute path, or Qt looks for the file in its own folders.
    const QString file = QFileInfo(path).absoluteFilePath();
    auto library = open(file);
    auto result = instantiate(*library, file, *checked);
    if (result)
        m_library = std::move(library);
    return result;
}

bool PluginLoader::unload()
{
    const auto library = std::exchange(m_library, nullptr);
    return library && library->unload();
}

} // namespace till
