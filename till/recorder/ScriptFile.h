#ifndef TILL_RECORDER_SCRIPTFILE_H
#define TILL_RECORDER_SCRIPTFILE_H

#include "till/result/Result.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>

#include <memory>

namespace till {

//! The first line of a recorded script, by which it is known for one.
QString recordedMark();

//! Whether a recorded script may be written to \a path: nothing is there yet, or one that was
//! recorded before.
Result<> checkScriptFile(const QString &path);

//! Writes a recorded script of \a lines to \a path, if it may be: whole, or not at all.
Result<> saveScript(const QString &path, const QStringList &lines);

//! A recorded script that grows line by line; what was written is there whatever comes.
class GrowingScript
{
public:
    Q_DISABLE_COPY_MOVE(GrowingScript)

    //! Begins a script in \a path, if it may be written there.
    static Result<std::unique_ptr<GrowingScript>> begin(const QString &path);

    void write(const QString &line);
    QString path() const { return m_file.fileName(); }
    //! Why a line could not be written, with the path; empty as long as all were.
    QString error() const { return m_error; }

private:
    GrowingScript() = default;

    QFile m_file;
    QString m_error;
};

} // namespace till

#endif // TILL_RECORDER_SCRIPTFILE_H
