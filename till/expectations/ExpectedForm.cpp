#include "till/expectations/ExpectedForm.h"

#include "till/goods/Money.h"
#include "till/words/Words.h"

#include <QtCore/QRegularExpression>

namespace till {

namespace {

using Kind = ExpectedForm::Kind;

bool isCountWord(const QString &word)
{
    static const QRegularExpression form(QStringLiteral("^[0-9]{1,9}\\z"));
    return form.match(word).hasMatch();
}

//! The mistake in a \a word that is to be of that \a kind; done when there is none.
Outcome checkWord(Kind kind, const QString &word, const Outcome &usage)
{
    const bool isNumber =
        kind == Kind::PositionNumber || (kind == Kind::PositionOrNone && word != "none");
    if (isNumber && !parsePosnum(word))
        return notAPosition(word);
    if (kind == Kind::Quantity && !parseQuantity(word))
        return notANumber(word);
    if (kind == Kind::Money && !parseMoney(word))
        return notMoney(word);
    return kind == Kind::Count && !isCountWord(word) ? usage : Outcome::done();
}

//! Reads the words of an expectation one by one.
class Reading
{
public:
    Reading(const ExpectedForm &form, const Outcome &usage)
        : m_form(form)
        , m_usage(usage)
        , m_awaited(form.first)
    {
    }

    //! The mistake in \a word, or done.
    Outcome read(const QString &word)
    {
        if (m_isNone)
            return m_usage;
        if (m_awaited.isEmpty())
            return readName(word);
        const Kind kind = m_awaited.constFirst();
        if (kind != Kind::Text) // which goes on
            m_awaited.removeFirst();
        return checkWord(kind, word, m_usage);
    }

    //! What can follow what was read.
    ExpectedForm::Next next() const
    {
        if (!m_awaited.isEmpty())
            return {m_awaited.constFirst(), {}, m_awaited.constFirst() == Kind::Text};
        return {Kind::PartName, names(), m_form.parts.isEmpty() || m_hasPart};
    }

private:
    Outcome readName(const QString &word)
    {
        if (!names().contains(word))
            return notOneOf(word, names());
        for (const ExpectedForm::Part &part : m_form.parts) {
            if (part.name == word)
                m_awaited = part.values;
        }
        m_isNone = word == QLatin1String("none");
        m_hasPart = true;
        return Outcome::done();
    }

    QStringList names() const
    {
        QStringList names;
        if (m_isNone)
            return names;
        if (m_form.mayBeNone && !m_hasPart)
            names.append(QStringLiteral("none"));
        for (const ExpectedForm::Part &part : m_form.parts)
            names.append(part.name);
        return names;
    }

    const ExpectedForm &m_form;
    const Outcome &m_usage;
    QList<Kind> m_awaited;
    bool m_hasPart = false;
    bool m_isNone = false;
};

} // namespace

Result<ExpectedForm::Next, Outcome> ExpectedForm::behind(const QStringList &words,
                                                         const Outcome &usage) const
{
    Reading reading(*this, usage);
    for (const QString &word : words) {
        if (const Outcome read = reading.read(word); !read)
            return read;
    }
    return reading.next();
}

} // namespace till
