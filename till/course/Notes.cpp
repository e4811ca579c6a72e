#include "till/course/Notes.h"

namespace till {

Subscription Notes::subscribe(Observer observer, Of of)
{
    const auto token = std::make_shared<const Observer>(std::move(observer));
    m_ofCourse.add(token);
    if (of == Of::CourseAndStates)
        m_ofStates.add(token);
    return token;
}

void Notes::add(const char *kind, QJsonObject fields)
{
    tell(m_ofCourse, kind, fields);
}

void Notes::addState(const char *kind, QJsonObject fields)
{
    tell(m_ofStates, kind, fields);
}

void Notes::tell(const Observers<const QJsonObject &> &observers, const char *kind,
                 QJsonObject &fields) const
{
    fields.insert(QStringLiteral("kind"), QLatin1String(kind));
    fields.insert(QStringLiteral("depth"), m_depth);
    observers.tell(fields);
}

} // namespace till
