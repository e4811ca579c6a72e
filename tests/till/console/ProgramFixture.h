#ifndef TESTS_TILL_CONSOLE_PROGRAMFIXTURE_H
#define TESTS_TILL_CONSOLE_PROGRAMFIXTURE_H

#include "tests/support/Patience.h"
#include "tests/till/support/FolderTest.h"
#include "tests/till/support/Sql.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QStringList>

#include <gmock/gmock.h>

#include <string>

//! What a run of the program left.
struct RunResult
{
    int status = -1; //!< -1 when it did not end by itself
    std::string out;
    std::string err;
};

//! Runs the till's program, at home in a directory of the test's.
class ProgramTest : public till::FolderTest
{
protected:
    QString database() const { return path("till.sqlite"); }

    //! Writes a file into the directory; its path.
    QString write(const QString &name, const QByteArray &contents) const;

    //! Starts the program, or another; its standard input stays open.
    void start(QProcess &process, const QStringList &arguments,
               const QString &program = QStringLiteral(TILL_PROGRAM)) const;
    //! Starts a register on the database, and waits until it has carried out \a lines.
    void startRegister(QProcess &process, const QByteArray &lines) const;
    //! Ends it after \a lines, all of which must hold.
    static void endRegister(QProcess &process, const QByteArray &lines);
    //! Runs \a sql on the database.
    void query(const QString &sql) const { till::rowsOf(database(), sql); }
    //! Runs the program on \a input to its end.
    RunResult run(const QStringList &arguments, const QByteArray &input = {}) const;
    //! Lets a shell run \a line, in which "$@" is the program with \a arguments, to its end.
    RunResult runInShell(const QString &line, const QStringList &arguments) const;
    //! Plays \a script, which must be done with nothing on standard error; what it prints.
    std::string play(const QByteArray &script, const QStringList &options = {}) const;

    //! The objects of a trace.
    static QList<QJsonObject> trace(const QByteArray &lines);

private:
    static RunResult resultOf(QProcess &process);
};

#endif // TESTS_TILL_CONSOLE_PROGRAMFIXTURE_H
