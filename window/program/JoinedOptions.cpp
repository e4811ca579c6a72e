#include "window/program/JoinedOptions.h"

namespace till {

QByteArrayList optionsWithValue()
{
    return {"db", "catalogue", "plugin", "config", "set", "lang"};
}

QByteArrayList withJoinedOptions(const QByteArrayList &words)
{
    const QByteArrayList names = optionsWithValue();
    QByteArrayList joined = words.mid(0, 1);
    for (qsizetype at = 1; at < words.size(); ++at) {
        const QByteArray &word = words[at];
        if (word == "--")
            return joined + words.mid(at);
        const bool takesNext = word.startsWith("--") && names.contains(word.mid(2));
        joined.append(takesNext ? word + '=' + words.value(++at) : word);
    }
    return joined;
}

} // namespace till
