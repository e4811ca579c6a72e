#ifndef TILL_SCRIPT_PREPAREDANSWERS_H
#define TILL_SCRIPT_PREPAREDANSWERS_H

#include "till/actions/Front.h"

#include <functional>
#include <utility>

namespace till {

//! A front that takes answers given in advance; the front behind it has all else.
class PreparedAnswers final : public Front
{
public:
    //! Is told each question that was answered here.
    using Echo = std::function<void(const Question &question, bool answer)>;

    //! \a behind must outlive this object.
    PreparedAnswers(Front &behind, Echo echo)
        : m_behind(behind)
        , m_echo(std::move(echo))
    {
    }

    //! One more answer, behind those that wait.
    void append(bool answer) { m_answers.append(answer); }
    //! How many answers wait for a question.
    qsizetype waiting() const { return m_answers.size(); }

    bool ask(const Question &question) override
    {
        if (m_answers.isEmpty())
            return m_behind.ask(question);
        const bool answer = m_answers.takeFirst();
        m_echo(question, answer);
        return answer;
    }
    void show(const tr::Tr &message) override { m_behind.show(message); }

private:
    Front &m_behind;
    Echo m_echo;
    QList<bool> m_answers;
};

} // namespace till

#endif // TILL_SCRIPT_PREPAREDANSWERS_H
