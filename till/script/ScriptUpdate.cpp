#include "till/script/ScriptUpdate.h"

#include "till/recorder/ScriptFile.h"
#include "till/words/Words.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>

#include <utility>

namespace till {

namespace {

//! Puts \a found behind \a part, which says what of the expectation it is, or in the place of all
//! of it where nothing does.
QStringList mended(QStringList words, const QStringList &part, const QString &expected,
                   const QString &found)
{
    constexpr qsizetype first = 3;                                 // behind "expect position 1"
    const bool isOne = part.isEmpty() && words.size() > first + 1; // "live" or "stornoed"
    const QStringList &before = isOne ? QStringList{expected} : part;
    for (qsizetype i = first; !before.isEmpty() && i + part.size() < words.size(); ++i) {
        if (words.mid(i, before.size()) == before) {
            words[i + part.size()] = found;
            return words;
        }
    }
    return words.mid(0, first) + found.split(' ');
}

//! The expectation \a words that holds where \a words ended with \a outcome, as far as that tells.
QStringList holding(const QStringList &words, const Outcome &outcome)
{
    const QString name = words.value(1).toLower();
    const QStringList &values = outcome.reason.values;
    const QString found = values.value(3).isEmpty() ? values.value(2) : values.value(3);
    static const QStringList ends{"accepted", "refused", "mistake"};
    if (ends.contains(name))
        return ends.contains(found) ? QStringList{words[0], found} + words.mid(2) : QStringList();
    if (QStringList{"message", "question", "log"}.contains(name))
        return {words[0], words[1], found};
    if (QStringList{"position", "tara", "goods"}.contains(name))
        return mended(words, values.value(0).split(' ').mid(2), values.value(1), found);
    return words.mid(0, 2) + found.split(' ');
}

//! \a words in the place of the text of a line, which stays where it begins and ends.
QString written(const QString &line, const QStringList &words)
{
    const qsizetype begin = line.indexOf(line.trimmed());
    return line.left(begin) + joinWords(words) + line.mid(begin + line.trimmed().size());
}

//! \a line as it is shown, whichever system's it is.
QString withoutEnd(const QString &line)
{
    return line.endsWith('\r') ? line.chopped(1) : line;
}

QByteArray digested(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

} // namespace

QString differenceOf(const QString &path, const QList<LineChange> &changes)
{
    QString text;
    for (const LineChange &change : changes)
        text += QString("@@ -%1 +%1 @@\n-%2\n+%3\n")
                    .arg(QString::number(change.number), withoutEnd(change.before),
                         withoutEnd(change.after));
    return text.isEmpty() ? QString() : QString("--- %1\n+++ %1\n").arg(path) + text;
}

QByteArray digestOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? digested(file.readAll()) : QByteArray();
}

Result<> rewrite(const QString &path, const QByteArray &digest, const QList<LineChange> &changes)
{
    static const QByteArray mark("\xef\xbb\xbf"); // of UTF-8, which is no part of the first line
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Fault{path, file.errorString()};
    const QByteArray text = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return Fault{path, file.errorString()};
    if (digested(text) != digest)
        return Fault{path, "was changed while it was played", "play it again"};
    const bool isMarked = text.startsWith(mark);
    QByteArrayList lines = (isMarked ? text.mid(mark.size()) : text).split('\n');
    for (const LineChange &change : changes) {
        if (change.number > 0 && change.number <= lines.size())
            lines[change.number - 1] = change.after.toUtf8();
    }
    return replaceScript(path, (isMarked ? mark : QByteArray()) + lines.join('\n'));
}

bool ScriptUpdate::mend(CommandLine &commands, const ScriptLine &line, const Outcome &outcome)
{
    if (outcome.kind != Outcome::Unexpected || line.file != m_path)
        return false;
    QStringList words = holding(splitWords(line.text).value_or(QStringList()), outcome);
    if (words.isEmpty())
        return false;
    const bool isOfCommand = Expectations::isOfCommand(words.mid(1));
    // What is can be looked at again, until each part holds; a command is not carried out twice.
    for (qsizetype parts = words.size(); !isOfCommand; --parts) {
        const Outcome again = commands.run(joinWords(words));
        if (again)
            break;
        if (again.kind != Outcome::Unexpected || parts == 0)
            return false;
        words = holding(words, again);
    }
    m_changes.append({line.number, line.text, written(line.text, words)});
    return true;
}

} // namespace till
