#include "till/runner/ScriptFiles.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>

namespace till {

namespace {

QStringList scriptsBelow(const QString &folder)
{
    QStringList scripts;
    QDirIterator below(folder, {"*.till"}, QDir::Files, QDirIterator::Subdirectories);
    while (below.hasNext())
        scripts.append(QDir::cleanPath(below.next()));
    scripts.sort();
    return scripts;
}

} // namespace

Result<QStringList> scriptsAt(const QStringList &paths)
{
    QStringList scripts;
    for (const QString &path : paths) {
        const QStringList named = QFileInfo(path).isDir() ? scriptsBelow(path) : QStringList{path};
        if (named.isEmpty())
            return Fault{path, "no scripts there"};
        scripts += named;
    }
    return scripts;
}

} // namespace till
