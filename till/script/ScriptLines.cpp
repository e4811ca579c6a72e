#include "till/script/ScriptLines.h"

#include "till/words/Words.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStringDecoder>

namespace till {

namespace {

Result<QString> readText(const QString &path)
{
    QFile file(path);
    if (path == "-" ? !file.open(stdin, QIODevice::ReadOnly) : !file.open(QIODevice::ReadOnly))
        return Fault{path, file.errorString()};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) // what came before it is no script
        return Fault{path, file.errorString()};
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return Fault{path, "not UTF-8 text"};
    return text;
}

//! Takes the lines of a file up, and of those that it includes.
class LineReader
{
public:
    Result<> read(const QString &path, const QString &text)
    {
        m_within.append(QFileInfo(path).canonicalFilePath());
        const QStringList texts = text.split('\n');
        for (qsizetype i = 0; i < texts.size(); ++i) {
            const ScriptLine line{texts[i], path, i + 1};
            if (line.command() != QLatin1String("include"))
                m_lines.append(line);
            else if (Result<> included = include(line); !included)
                return included;
        }
        m_within.removeLast();
        return {};
    }

    QList<ScriptLine> lines() const { return m_lines; }

private:
    Result<> include(const ScriptLine &line)
    {
        const QStringList words = splitWords(line.text).value_or(QStringList());
        if (words.size() != 2)
            return Fault{line.place(), "include: one FILE has to be named"};
        const QString path = QDir::cleanPath(QFileInfo(line.file).dir().filePath(words[1]));
        const auto fault = [&](const QString &reason) {
            return Fault{line.place(), "include " + brief(words[1]) + ": " + reason};
        };
        if (QFileInfo::exists(path) && !QFileInfo(path).isFile()) // a device may never end
            return fault("no file");
        if (m_within.contains(QFileInfo(path).canonicalFilePath()))
            return fault("it is being read already: a circle");
        const Result<QString> text = readText(path);
        return text ? read(path, *text) : fault(text.error().reason);
    }

    QList<ScriptLine> m_lines;
    QStringList m_within; //!< the files that are being read, each included by the one before
};

} // namespace

bool ScriptLine::isCommand() const
{
    const QString trimmed = text.trimmed();
    return !trimmed.isEmpty() && !trimmed.startsWith('#');
}

QString ScriptLine::command() const
{
    return text.trimmed().section(' ', 0, 0).toLower();
}

Result<QList<ScriptLine>> readScript(const QString &path)
{
    const Result<QString> text = readText(path);
    if (!text)
        return text.error();
    LineReader reader;
    if (const Result<> read = reader.read(path, *text); !read)
        return read.error();
    return reader.lines();
}

} // namespace till
