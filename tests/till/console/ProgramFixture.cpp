#include "tests/till/console/ProgramFixture.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QProcessEnvironment>

QString ProgramTest::write(const QString &name, const QByteArray &contents) const
{
    overwrite(path(name), contents);
    return path(name);
}

void ProgramTest::start(QProcess &process, const QStringList &arguments,
                        const QString &program) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", directory.path());
    environment.insert("XDG_DATA_HOME", path("data"));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    ASSERT_TRUE(process.waitForStarted(patience));
}

void ProgramTest::startRegister(QProcess &process, const QByteArray &lines) const
{
    start(process, {"--db", database()});
    process.write(lines + "say ready\n");
    QByteArray said;
    while (!said.contains("ready") && process.waitForReadyRead(patience))
        said += process.readAllStandardOutput();
}

void ProgramTest::endRegister(QProcess &process, const QByteArray &lines)
{
    process.write(lines);
    process.closeWriteChannel();
    ASSERT_TRUE(process.waitForFinished(patience));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
}

RunResult ProgramTest::run(const QStringList &arguments, const QByteArray &input) const
{
    QProcess process;
    start(process, arguments);
    process.write(input);
    return resultOf(process);
}

RunResult ProgramTest::runInShell(const QString &line, const QStringList &arguments) const
{
    QProcess process;
    start(process, QStringList{"-c", line, "sh", TILL_PROGRAM} + arguments, "sh");
    return resultOf(process);
}

//! What the process leaves when it has nothing more to read.
RunResult ProgramTest::resultOf(QProcess &process)
{
    process.closeWriteChannel();
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAllStandardOutput().toStdString(), "did not end by itself"};
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

std::string ProgramTest::play(const QByteArray &script, const QStringList &options) const
{
    const RunResult done = run(options + QStringList{"play", write("script.till", script)});
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    return done.out;
}

QList<QJsonObject> ProgramTest::trace(const QByteArray &lines)
{
    QList<QJsonObject> notes;
    const auto split = lines.trimmed().split('\n');
    for (const QByteArray &line : split) {
        const QJsonDocument note = QJsonDocument::fromJson(line);
        EXPECT_TRUE(note.isObject()) << line.toStdString();
        notes.append(note.object());
    }
    return notes;
}
