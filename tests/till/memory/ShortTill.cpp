#include "tests/till/memory/ShortTill.h"

#include <QtCore/QFile>

#include <sys/resource.h>

namespace till {

namespace {

//! Sets variables of the processes that are started while it lives.
class Environment
{
public:
    explicit Environment(QMap<QByteArray, QByteArray> variables)
        : m_variables(std::move(variables))
    {
        for (auto entry = m_variables.cbegin(); entry != m_variables.cend(); ++entry)
            qputenv(entry.key(), entry.value());
    }
    ~Environment()
    {
        for (auto entry = m_variables.cbegin(); entry != m_variables.cend(); ++entry)
            qunsetenv(entry.key());
    }
    Q_DISABLE_COPY_MOVE(Environment)

private:
    QMap<QByteArray, QByteArray> m_variables;
};

Environment preloaded(const Shortage &shortage)
{
    QMap<QByteArray, QByteArray> variables{{"LD_PRELOAD", SHORT_MEMORY}, {"QT_HASH_SEED", "0"}};
    if (shortage.at != 0)
        variables.insert("TILL_MEMORY_FAILS_AT", QByteArray::number(qlonglong(shortage.at)));
    if (!shortage.isOver)
        variables.insert("TILL_MEMORY_FAILS_ON", "1");
    return Environment(variables);
}

QByteArrayList readSteps()
{
    QFile file(SHORT_MEMORY_SCRIPT);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArrayList steps;
    QByteArray answers;
    const QByteArrayList lines = file.readAll().trimmed().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith('#'))
            continue;
        if (line.startsWith("answer"))
            answers = line + '\n';
        else
            steps.append(std::exchange(answers, {}) + line);
    }
    return steps;
}

//! A library may make nothing of a shortage but that it finds nothing: a number is then none, and
//! its command a mistake. The script has no mistakes.
bool isNotCarriedOut(const QString &outcome)
{
    return outcome == "failed" || outcome == "mistake";
}

} // namespace

ShortTill::ShortTill()
    : m_steps(readSteps())
{
    const rlimit none{0, 0}; // a till that aborts is not worth a core file
    setrlimit(RLIMIT_CORE, &none);
}

QSet<QByteArray> ShortTill::commands() const
{
    QSet<QByteArray> commands;
    const QByteArrayList lines = m_steps.join('\n').split('\n');
    for (const QByteArray &line : lines)
        commands.insert(line.split(' ').constFirst());
    return commands;
}

long ShortTill::countAllocations()
{
    const QString counted = path("count");
    const Environment counting({{"TILL_MEMORY_COUNT", counted.toLocal8Bit()}});
    m_usual = play({});
    checkStored();
    checkNextStart();
    QFile file(counted);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toLong() : 0;
}

void ShortTill::playAndLook(const Shortage &shortage)
{
    Course course = play(shortage);
    checkStored();
    checkNextStart();
    if (!course.isEnded) {
        EXPECT_EQ(course.outcomes, m_usual.outcomes);
        course.isEnded = course.status != m_usual.status; // after the last command
    }
    if (course.isEnded) {
        EXPECT_NE(course.status, 0);
    }
    count(course);
}

Course ShortTill::play(const Shortage &shortage)
{
    m_trace = {};
    m_database = path(QStringLiteral("%1.db").arg(++m_databases));
    const Environment environment = preloaded(shortage);
    TillProcess till({"--db", m_database, "--set", "PackagingControl:allowSaleEmptyTara=false"});
    Course course;
    for (const QByteArray &step : std::as_const(m_steps)) {
        QString outcome = carryOut(till, step);
        if (isNotCarriedOut(outcome)) {
            ++course.failed;
            outcome = shortage.isOver ? carryOut(till, step) : QString();
        }
        course.isEnded = outcome.isEmpty();
        if (course.isEnded)
            break;
        course.outcomes.append(outcome);
    }
    course.status = till.finish();
    readRest(till);
    return course;
}

//! The outcome of a step's last line; nothing when the till ended before.
QString ShortTill::carryOut(TillProcess &till, const QByteArray &step)
{
    till.send(step);
    qsizetype lines = step.count('\n') + 1;
    while (const auto note = till.nextNote()) {
        m_trace.read(*note);
        if ((*note)["kind"] == "outcome" && --lines == 0)
            return (*note)["outcome"].toString();
    }
    return {};
}

void ShortTill::readRest(TillProcess &till)
{
    while (const auto note = till.nextNote())
        m_trace.read(*note);
}

void ShortTill::checkStored()
{
    const auto storage = opened(m_database);
    const TraceReader::Found found = m_trace.foundIn(*storage);
    EXPECT_NE(found, TraceReader::Found::Half)
        << "found: "
        << testing::PrintToString(ToldReceipt::stored(*storage, m_trace.underWay().record.id))
        << "\nacknowledged: " << testing::PrintToString(m_trace.acknowledged())
        << "\nunder way: " << testing::PrintToString(m_trace.underWay());
    if (found == TraceReader::Found::Whole)
        m_trace.acceptUnderWay();
    for (const ToldReceipt &receipt : m_trace.finished())
        EXPECT_EQ(ToldReceipt::stored(*storage, receipt.record.id), receipt);
}

//! A till that is started with all the memory it wants takes up what was acknowledged.
void ShortTill::checkNextStart()
{
    m_trace.restart();
    TillProcess till({"--db", m_database});
    EXPECT_EQ(till.finish(), 0);
    readRest(till);
    EXPECT_EQ(till.strayOutput(), QByteArray());
    EXPECT_EQ(m_trace.takenUp(), m_trace.toTakeUp());
}

void ShortTill::count(const Course &course)
{
    if (course.failed > 0)
        ++m_tally.failed;
    else
        ++(course.isEnded ? m_tally.ended : m_tally.unnoticed);
}

} // namespace till
