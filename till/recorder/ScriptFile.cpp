#include "till/recorder/ScriptFile.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

namespace till {

namespace {

QByteArray lineOf(const QString &line)
{
    return line.toUtf8() + '\n';
}

} // namespace

QString recordedMark()
{
    return QStringLiteral("# Recorded by the till.");
}

Result<> checkScriptFile(const QString &path)
{
    if (!QFileInfo::exists(path))
        return {};
    const Fault other{path, "is there already and is no recorded script", "name another file"};
    QFile file(path);
    if (!QFileInfo(path).isFile())
        return other;
    if (!file.open(QIODevice::ReadOnly))
        return Fault{path, file.errorString()};
    const QByteArray mark = lineOf(recordedMark());
    return file.size() == 0 || file.read(mark.size()) == mark ? Result<>() : other;
}

Result<> saveScript(const QString &path, const QStringList &lines)
{
    if (const Result<> checked = checkScriptFile(path); !checked)
        return checked;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Fault{path, file.errorString()};
    file.write(lineOf(recordedMark()));
    for (const QString &line : lines)
        file.write(lineOf(line));
    if (!file.commit())
        return Fault{path, file.errorString()};
    return {};
}

Result<std::unique_ptr<GrowingScript>> GrowingScript::begin(const QString &path)
{
    if (const Result<> checked = checkScriptFile(path); !checked)
        return checked.error();
    std::unique_ptr<GrowingScript> script(new GrowingScript);
    script->m_file.setFileName(path);
    if (!script->m_file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return Fault{path, script->m_file.errorString()};
    script->write(recordedMark());
    return script;
}

void GrowingScript::write(const QString &line)
{
    const QByteArray bytes = lineOf(line);
    const bool isWritten = m_file.write(bytes) == bytes.size() && m_file.flush();
    if (!isWritten && m_error.isEmpty())
        m_error = path() + ": " + m_file.errorString();
}

} // namespace till
