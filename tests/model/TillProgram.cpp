#include "tests/model/TillProgram.h"

#include "tests/support/Patience.h"

#include <QtCore/QProcess>

#include <sstream>

namespace model {

std::string printed(const Script &script)
{
    std::ostringstream out;
    out << script;
    return out.str();
}

std::vector<std::string> linesOf(const std::string &text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

QString TillProgram::write(const QString &name, const std::string &text) const
{
    overwrite(path(name), QByteArray::fromStdString(text));
    return path(name);
}

void TillProgram::takeRows(const std::string &script)
{
    for (const std::string &line : linesOf(script)) {
        if (line.starts_with(rowMark))
            rows.insert(line.substr(rowMark.size()));
    }
}

TillProgram::Run TillProgram::run(const QStringList &arguments, const std::string &input) const
{
    QProcess process;
    process.setStandardInputFile(write("input", input));
    process.start(TILL_PROGRAM,
                  QStringList{"--quiet", "--lang", "en", "--catalogue", catalogue()} + arguments);
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

std::string TillProgram::blamed(const Run &run, const QStringList &scripts)
{
    for (const QString &script : scripts) {
        if (run.err.find(script.toStdString() + ':') != std::string::npos)
            return script.toStdString() + ":\n" + contents(script).toStdString();
    }
    return {};
}

QString TillProgram::catalogue() const
{
    std::string text = contents(TILL_SHARE_DIR "/catalogue.csv").toStdString();
    for (const std::string &row : rows)
        text += row + '\n';
    return write("catalogue.csv", text);
}

} // namespace model
