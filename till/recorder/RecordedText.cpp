#include "till/recorder/RecordedText.h"

#include <utility>

namespace till {

namespace {

QString lastLine(const QByteArray &sum)
{
    return QStringLiteral("# Recorded to here; the sum of it is %1.")
        .arg(QString::fromLatin1(sum.toHex().left(16)));
}

} // namespace

RecordedText::RecordedText(Write write)
    : m_write(std::move(write))
{
    add(mark());
}

void RecordedText::add(const QString &line)
{
    m_sum.addData(line.toUtf8() + '\n');
    m_write(line);
}

void RecordedText::end()
{
    m_write(lastLine(m_sum.result()));
}

QString RecordedText::mark()
{
    return QStringLiteral("# Recorded by the till.");
}

bool RecordedText::isUnchanged(const QByteArray &text)
{
    const qsizetype lines = text.lastIndexOf('\n', -2) + 1; // before the last
    const QByteArray sum = QCryptographicHash::hash(text.left(lines), QCryptographicHash::Sha256);
    return text.startsWith(mark().toUtf8() + '\n')
           && text.mid(lines) == lastLine(sum).toUtf8() + '\n';
}

} // namespace till
