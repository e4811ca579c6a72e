#ifndef TESTS_TILL_RUNNER_PLAYFIXTURE_H
#define TESTS_TILL_RUNNER_PLAYFIXTURE_H

#include "tests/till/console/ProgramFixture.h"

#include <QtCore/QDir>

//! Plays scripts from a folder of the test's.
class PlayTest : public ProgramTest
{
protected:
    //! Writes a script into a folder of the test's.
    QString script(const QString &name, const QByteArray &text) const
    {
        EXPECT_TRUE(QDir().mkpath(path(name.section('/', 0, -2))));
        return write(name, text);
    }
    //! Plays with \a arguments, quietly and in English.
    RunResult played(const QStringList &arguments, const QByteArray &input = {}) const
    {
        return run(QStringList{"--lang", "en", "--quiet", "play"} + arguments, input);
    }

    const QByteArray good = "open\nadd CHIPS\nexpect total 129.90\nexpect positions 1\n";
    const QByteArray bad = "open\nadd CHOPS\n";
};

#endif // TESTS_TILL_RUNNER_PLAYFIXTURE_H
