#include "till/core/PluginLoader.h"

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

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

std::optional<ElfHeader> readElfHeader(QFile &file)
{
    ElfHeader header;
    const bool complete =
        file.read(reinterpret_cast<char *>(&header), sizeof header) == qint64(sizeof header);
    if (!complete || std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0)
        return std::nullopt;
    return header;
}

//! Length that a library needs to be whole: linkers write the section table at the end.
qint64 lengthOf(const ElfHeader &header)
{
    return qint64(header.e_shoff) + qint64(header.e_shnum) * header.e_shentsize;
}

//! Why Qt found no metadata in the file; \a reason is Qt's own word on it.
PluginError diagnose(const QString &path, const QString &reason)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {PluginError::NoSuchFile, path, QStringLiteral("a readable file"),
                file.errorString()};
    const auto header = readElfHeader(file);
    if (!header)
        return {PluginError::NotALibrary, path, QStringLiteral("a shared library"),
                QStringLiteral("a file of another kind, %1 bytes long").arg(file.size())};
    if (file.size() < lengthOf(*header))
        return {PluginError::Truncated, path,
                QStringLiteral("a shared library of %1 bytes").arg(lengthOf(*header)),
                QStringLiteral("only its first %1 bytes").arg(file.size())};
    return {PluginError::NoMetadata, path, QStringLiteral("the metadata of a Qt plugin"),
            QStringLiteral("none (%1)").arg(reason)};
}

PluginLoader::MetadataResult check(const QPluginLoader &library)
{
    const QString path = library.fileName();
    const QJsonObject record = library.metaData();
    if (record.isEmpty())
        return diagnose(path, library.errorString());
    const PluginMetadata metadata{record.value(QLatin1String("IID")).toString(),
                                  record.value(QLatin1String("className")).toString(), record};
    if (metadata.interfaceId != interfaceId())
        return PluginError{PluginError::WrongInterface, path,
                           QStringLiteral("interface ") + quoted(interfaceId()),
                           QStringLiteral("interface ") + quoted(metadata.interfaceId)};
    return metadata;
}

std::optional<PluginError> missingFile(const QFileInfo &file)
{
    if (file.isFile())
        return std::nullopt;
    return PluginError{
        PluginError::NoSuchFile, file.absoluteFilePath(), QStringLiteral("a plugin file"),
        file.exists() ? QStringLiteral("a directory or a device") : QStringLiteral("no such file")};
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
                            + quoted(QString::fromUtf8(loaded.object->metaObject()->className()))
                      : QStringLiteral("no object");
    return {PluginError::WrongObject, path,
            QStringLiteral("an object that answers to ")
                + quoted(QString::fromLatin1(missingPart(loaded))),
            found};
}

PluginLoader::Result instantiate(QPluginLoader &library, const PluginMetadata &metadata)
{
    if (!library.load())
        return PluginError{PluginError::NotLoadable, library.fileName(),
                           QStringLiteral("a library that this system can load"),
                           library.errorString()};
    const LoadedPlugin loaded = parts(library.instance(), metadata);
    if (!missingPart(loaded))
        return loaded;
    const PluginError error = wrongObject(library.fileName(), loaded);
    library.unload();
    return error;
}

std::unique_ptr<QPluginLoader> open(const QFileInfo &file)
{
    // An absolute path, or Qt looks for the file in its own folders.
    auto library = std::make_unique<QPluginLoader>(file.absoluteFilePath());
    // Symbols are resolved at once, so that a missing one shows here and not at its first use. Qt
    // would keep the code in the process for ever were it not told otherwise.
    library->setLoadHints(QLibrary::ResolveAllSymbolsHint);
    return library;
}

} // namespace

QString PluginError::text() const
{
    return QStringLiteral("Cannot load the plugin %1: expected %2, found %3")
        .arg(path, expected, found);
}

PluginLoader::PluginLoader() = default;
PluginLoader::~PluginLoader() = default;

PluginLoader::MetadataResult PluginLoader::readMetadata(const QString &path)
{
    const QFileInfo file(path);
    if (auto error = missingFile(file))
        return *std::move(error);
    return check(*open(file));
}

PluginLoader::Result PluginLoader::load(const QString &path)
{
    m_library.reset();
    MetadataResult checked = readMetadata(path);
    if (const auto *error = std::get_if<PluginError>(&checked))
        return *error;
    auto library = open(QFileInfo(path));
    Result result = instantiate(*library, std::get<PluginMetadata>(checked));
    if (std::holds_alternative<LoadedPlugin>(result))
        m_library = std::move(library);
    return result;
}

bool PluginLoader::unload()
{
    const auto library = std::exchange(m_library, nullptr);
    return library && library->unload();
}

} // namespace till
