#include "till/course/Notes.h"

namespace till {

void Notes::add(const char *kind, QJsonObject fields)
{
    fields.insert(QStringLiteral("kind"), QLatin1String(kind));
    fields.insert(QStringLiteral("depth"), m_depth);
    for (const Listener &listener : std::as_const(m_listeners))
        listener(fields);
}

} // namespace till
