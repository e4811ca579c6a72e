#include "till/verdicts/Junit.h"

#include "till/verdicts/Report.h"

#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QXmlStreamWriter>

#include <algorithm>

namespace till {

namespace {

//! \a text of signs that XML can hold, without colours.
QString plain(QString text)
{
    static const QRegularExpression unfit("\x1b\\[[0-9;]*m|[\\x{fffe}\\x{ffff}]");
    return forTerminal(text.remove(unfit));
}

//! What programs read is in one language.
Translator english()
{
    return Translator(QStringLiteral("en"));
}

QString typeOf(Verdict::End end)
{
    return end == Verdict::Failed        ? "failed"
           : end == Verdict::Interrupted ? "interrupted"
                                         : "wrong";
}

class JunitWriter
{
public:
    explicit JunitWriter(QByteArray &bytes)
        : m_xml(&bytes)
    {
        m_xml.setAutoFormatting(true);
    }

    void write(const QList<Verdict> &verdicts, const QStringList &scripts)
    {
        m_xml.writeStartDocument();
        m_xml.writeStartElement("testsuites");
        m_xml.writeStartElement("testsuite");
        writeSums(verdicts, scripts.size());
        for (const Verdict &verdict : verdicts)
            write(verdict);
        for (const QString &script : scripts.mid(verdicts.size()))
            writeSkipped(script);
        m_xml.writeEndDocument();
    }

private:
    void writeSums(const QList<Verdict> &verdicts, qsizetype scripts)
    {
        double seconds = 0;
        qsizetype failed = 0;
        qsizetype held = 0;
        for (const Verdict &verdict : verdicts) {
            seconds += verdict.seconds;
            failed += verdict.end == Verdict::Failed ? 1 : 0;
            held += verdict.end == Verdict::Held ? 1 : 0;
        }
        write("name", "till play");
        write("tests", QString::number(scripts));
        write("failures", QString::number(failed));
        write("errors", QString::number(verdicts.size() - failed - held));
        write("skipped", QString::number(scripts - verdicts.size()));
        write("time", QString::number(seconds, 'f', 3));
    }

    void write(const Verdict &verdict)
    {
        begin(verdict.script);
        write("assertions", QString::number(verdict.expectations));
        write("time", QString::number(verdict.seconds, 'f', 3));
        if (verdict.end != Verdict::Held) {
            m_xml.writeStartElement(verdict.end == Verdict::Failed ? "failure" : "error");
            write("message", verdict.fault.text());
            write("type", typeOf(verdict.end));
            m_xml.writeCharacters(plain(rowsOf(verdict, english())));
            m_xml.writeEndElement();
            writeOutput("system-out", verdict.course);
        } else if (verdict.expectations == 0) {
            writeOutput("system-out", checksNothing(english()));
        }
        writeOutput("system-err", verdict.complaints);
        m_xml.writeEndElement();
    }

    void writeSkipped(const QString &script)
    {
        begin(script);
        write("time", "0");
        m_xml.writeEmptyElement("skipped");
        m_xml.writeEndElement();
    }

    void begin(const QString &script)
    {
        m_xml.writeStartElement("testcase");
        write("name", QFileInfo(script).fileName());
        write("classname", QFileInfo(script).path());
        write("file", script);
    }

    void write(const char *attribute, const QString &value)
    {
        m_xml.writeAttribute(attribute, plain(value));
    }

    void writeOutput(const char *element, const QString &text)
    {
        if (!text.isEmpty())
            m_xml.writeTextElement(element, plain(text));
    }

    QXmlStreamWriter m_xml;
};

} // namespace

QByteArray junit(const QList<Verdict> &verdicts, const QStringList &scripts)
{
    QByteArray bytes;
    JunitWriter(bytes).write(verdicts, scripts);
    return bytes;
}

} // namespace till
