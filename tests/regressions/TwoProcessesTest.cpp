#include "tests/support/Patience.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QRegularExpression>

#include <cmath>

namespace {

QStringList scripts()
{
    QStringList files;
    for (const QString folder : {SAMPLE_SCRIPTS, REGRESSION_SCRIPTS}) {
        const auto entries = QDir(folder).entryInfoList({"*.till"}, QDir::Files, QDir::Name);
        for (const QFileInfo &entry : entries)
            files.append(entry.filePath());
    }
    return files;
}

QList<std::string> scriptPaths()
{
    QList<std::string> paths;
    const QStringList files = scripts();
    for (const QString &file : files)
        paths.append(file.toStdString());
    return paths;
}

using Variables = QMap<QString, QString>;

//! Hashes in the same order every time, and nothing of a place or a language.
const Variables plainMachine{{"QT_HASH_SEED", "0"}, {"TZ", "UTC"}, {"LC_ALL", "C.UTF-8"}};
//! Hashes in an order of their own, memory elsewhere; numbers are written with a comma here, by the
//! C library too, and it is another day.
const Variables germanMachine{{"TZ", "Pacific/Kiritimati"},
                              {"LANG", "de_DE.UTF-8"},
                              {"LOCPATH", LOCALES},
                              {"GLIBC_TUNABLES", "glibc.malloc.mmap_threshold=64"}};
const Variables russianMachine{{"TZ", "America/Los_Angeles"},
                               {"LANG", "ru_RU.UTF-8"},
                               {"LOCPATH", LOCALES},
                               {"GLIBC_TUNABLES", "glibc.malloc.tcache_count=0"}};

//! What the till prints when it plays \a script in a process with these variables.
QByteArray play(const std::string &script, const Variables &variables, const QStringList &options)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char *inherited : {"QT_HASH_SEED", "TZ", "LC_ALL", "LC_NUMERIC", "LANG", "LANGUAGE"})
        environment.remove(inherited);
    for (auto variable = variables.cbegin(); variable != variables.cend(); ++variable)
        environment.insert(variable.key(), variable.value());
    QProcess till;
    till.setProcessEnvironment(environment);
    till.start(TILL_PROGRAM, QStringList{"play"} + options + QStringList{script.c_str()});
    EXPECT_TRUE(till.waitForFinished(patience));
    EXPECT_EQ(till.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(till.exitCode(), 0) << till.readAllStandardError().toStdString();
    return till.readAllStandardOutput();
}

//! Gives identifiers the numbers of their first appearance.
class Renaming
{
public:
    QString operator()(QString text)
    {
        static const QRegularExpression identifier(
            "\\{[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}\\}");
        for (qsizetype at = 0; (at = text.indexOf(identifier, at)) != -1;)
            text.replace(at, identifierLength, nameOf(text.mid(at, identifierLength)));
        return text;
    }

private:
    QString nameOf(const QString &identifier)
    {
        const auto known = m_names.constFind(identifier);
        if (known != m_names.cend())
            return *known;
        return *m_names.insert(identifier,
                               QString("<%1>").arg(m_names.size() + 1, 3, 10, QChar('0')));
    }

    static constexpr qsizetype identifierLength = 38;
    QHash<QString, QString> m_names;
};

//! The trace of a play, a note a line, identifiers, the time and the place of the database aside.
QByteArrayList traceOf(const std::string &script, const Variables &variables)
{
    QByteArrayList notes;
    Renaming rename;
    const auto lines = play(script, variables, {"--trace", "-"}).split('\n');
    for (const QByteArray &line : lines) {
        // Read again after the renaming, as keys are sorted.
        if (line.isEmpty())
            continue;
        QJsonParseError error;
        auto note =
            QJsonDocument::fromJson(rename(QString::fromUtf8(line)).toUtf8(), &error).object();
        EXPECT_EQ(error.error, QJsonParseError::NoError) << line.toStdString();
        note.remove("database");
        note.remove("time");
        notes.append(QJsonDocument(note).toJson(QJsonDocument::Compact));
    }
    EXPECT_GT(notes.size(), 10);
    return notes;
}

QJsonValue rounded(const QJsonValue &value)
{
    if (value.isDouble())
        return std::round(value.toDouble() * 1e9) / 1e9 + 0.0; // no negative zero
    if (value.isArray()) {
        QJsonArray array;
        for (const QJsonValue &element : value.toArray())
            array.append(rounded(element));
        return array;
    }
    QJsonObject object = value.toObject();
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        entry.value() = rounded(entry.value());
    return value.isObject() ? object : value;
}

//! The same notes with nine decimals at most.
QByteArrayList rounded(const QByteArrayList &notes)
{
    QByteArrayList result;
    for (const QByteArray &note : notes) {
        const QJsonValue value = rounded(QJsonDocument::fromJson(note).object());
        result.append(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    }
    return result;
}

void compare(const QByteArrayList &one, const QByteArrayList &other)
{
    ASSERT_EQ(one.size(), other.size());
    for (qsizetype line = 0; line < one.size(); ++line)
        ASSERT_EQ(one[line].toStdString(), other[line].toStdString()) << "line " << line + 1;
}

//! The decimal separator of the C library in a process with these variables.
std::string decimalPoint(const Variables &variables)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (auto variable = variables.cbegin(); variable != variables.cend(); ++variable)
        environment.insert(variable.key(), variable.value());
    environment.remove("LC_ALL");
    environment.remove("LC_NUMERIC");
    QProcess locale;
    locale.setProcessEnvironment(environment);
    locale.start("locale", {"decimal_point"});
    EXPECT_TRUE(locale.waitForFinished(patience));
    return locale.readAllStandardOutput().trimmed().toStdString();
}

TEST(TwoProcessesMachines, NumbersInOtherLanguages_HaveAComma)
{
    EXPECT_EQ(decimalPoint(germanMachine), ",");
    EXPECT_EQ(decimalPoint(russianMachine), ",");
}

using TwoProcesses = testing::TestWithParam<std::string>;

TEST_P(TwoProcesses, WithOtherHashesPlaceAndLanguage_GiveTheSameTrace)
{
    const QByteArrayList plain = traceOf(GetParam(), plainMachine);
    compare(plain, traceOf(GetParam(), germanMachine));
    compare(plain, traceOf(GetParam(), russianMachine));
}

TEST_P(TwoProcesses, WithOtherHashesPlaceAndLanguage_PrintTheSame)
{
    EXPECT_EQ(play(GetParam(), plainMachine, {}).toStdString(),
              play(GetParam(), germanMachine, {}).toStdString());
}

// What goods use is summed in the order of the taras' identifiers, which are random: the last
// digits of a sum may differ between two processes, and nothing else may.
TEST(TwoProcessesWithTenths, SumsThatAreNotExact_DifferInTheLastDigitsAtMost)
{
    compare(rounded(traceOf(DECIMALS_SCRIPT, plainMachine)),
            rounded(traceOf(DECIMALS_SCRIPT, germanMachine)));
}

INSTANTIATE_TEST_SUITE_P(Scripts, TwoProcesses, testing::ValuesIn(scriptPaths()),
                         [](const auto &script) {
                             QString name = QFileInfo(script.param.c_str()).completeBaseName();
                             return name.replace('-', '_').toStdString();
                         });

} // namespace
