#ifndef TILL_PLUGINS_PLUGINLOADER_H
#define TILL_PLUGINS_PLUGINLOADER_H

#include "till/result/Result.h"

#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <memory>

class BaseActivityListener;
class BasicPlugin;
class DocumentWatcher;

QT_BEGIN_NAMESPACE
class QObject;
class QPluginLoader;
QT_END_NAMESPACE

namespace till {

//! What a plugin file says of itself, without its code being loaded.
struct PluginMetadata
{
    QString path;        //!< of the file, absolute
    QString interfaceId; //!< always "PackagingControl" for a file that the loader accepts
    QString className;   //!< class of the object that the plugin creates
    QJsonObject record;  //!< the whole record, as Qt reads it
};

//! Why a plugin file was not taken.
struct PluginError
{
    enum Kind {
        NoSuchFile,     //!< nothing at that path, or no regular file, or one that may not be read
        NotALibrary,    //!< no shared library of this machine
        Truncated,      //!< a shared library whose end is missing
        NoMetadata,     //!< a shared library, but not a Qt plugin
        WrongInterface, //!< a Qt plugin for something else
        NotLoadable,    //!< the system cannot load it: an unresolved symbol, a newer Qt
        WrongObject,    //!< its object lacks a part that every plugin has
        NotReady,       //!< its `init()` answered false
    };

    Kind kind;
    QString path;     //!< absolute
    QString expected; //!< what the till needs
    QString found;    //!< what is there instead

    //! For a person: path, expected and found.
    Fault fault() const;
    QString text() const { return fault().text(); }
};

//! A plugin's object, by each part of it that a host talks to. All belong to the plugin.
struct LoadedPlugin
{
    PluginMetadata metadata;
    QObject *object = nullptr;
    BasicPlugin *plugin = nullptr;            //!< life cycle and triggers
    BaseActivityListener *listener = nullptr; //!< receives events
    DocumentWatcher *watcher = nullptr;       //!< is told of the current document

    //! Initialises the plugin, which may answer that it is not ready. To be called once.
    Result<void, PluginError> initialise() const;
};

/*!
 * Loads one plugin file into this process.
 *
 * The file's metadata is read and checked first; the code of a file that is not meant for the till
 * is never run. One thread only.
 */
class PluginLoader
{
public:
    PluginLoader();
    //! Leaves a loaded plugin loaded, as its object may still be in use.
    ~PluginLoader();
    Q_DISABLE_COPY_MOVE(PluginLoader)

    //! Reads and checks what the file \a path says of itself. Loads nothing.
    static Result<PluginMetadata, PluginError> readMetadata(const QString &path);

    /*!
     * Loads the file \a path and creates its object, or finds the one that an earlier load of this
     * file created. With an error no object is left. A plugin that this loader loaded before is
     * left loaded and no longer reached by `unload`.
     */
    Result<LoadedPlugin, PluginError> load(const QString &path);

    /*!
     * Deletes the plugin's object, which nobody may use any more; its code stays in the process.
     * False when nothing was loaded, or when somebody else loaded the same file too; then the
     * object lives on.
     */
    bool unload();

private:
    std::unique_ptr<QPluginLoader> m_library;
};

} // namespace till

#endif // TILL_PLUGINS_PLUGINLOADER_H
