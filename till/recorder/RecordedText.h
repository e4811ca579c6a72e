#ifndef TILL_RECORDER_RECORDEDTEXT_H
#define TILL_RECORDER_RECORDEDTEXT_H

#include <QtCore/QByteArray>
#include <QtCore/QCryptographicHash>
#include <QtCore/QString>

#include <functional>

namespace till {

//! The lines of a script that is recorded, between one that says so and one with a sum of them all,
//! by which it is known whether somebody has changed it since.
class RecordedText
{
public:
    using Write = std::function<void(const QString &line)>;

    //! Gives \a write the first line.
    explicit RecordedText(Write write);
    Q_DISABLE_COPY_MOVE(RecordedText)

    void add(const QString &line);
    //! Gives the last line.
    void end();

    //! The first line.
    static QString mark();
    //! Whether \a text is a script that was recorded to its end, and not changed since.
    static bool isUnchanged(const QByteArray &text);

private:
    Write m_write;
    QCryptographicHash m_sum{QCryptographicHash::Sha256};
};

} // namespace till

#endif // TILL_RECORDER_RECORDEDTEXT_H
