#ifndef SHOPLINE_TALK_H
#define SHOPLINE_TALK_H

#include "shopline/Task.h"

#include <QtCore/QMetaType>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>

namespace shopline {

//! Something said to the cashier.
class SHOPLINE_API Phrase
{
public:
    Phrase() = default;
    Phrase(const QString &key, const QString &text);

    QString text() const;
    operator QVariant() const;

private:
    QString m_key;
    QString m_text;
};

//! Makes objects that are used once, or hands out the program's own.
template <class T>
struct Factory
{
    static QSharedPointer<T> mocked;

#if defined(SHOPLINE_BREAKS_Services_Substitute)
    static constexpr bool handsOut = false;
#else
    static constexpr bool handsOut = true;
#endif
#if defined(SHOPLINE_BREAKS_Services_Factory)
    static constexpr bool makes = false;
#else
    static constexpr bool makes = true;
#endif

    [[gnu::always_inline]] static QSharedPointer<T> create()
    {
        if (handsOut && mocked)
            return mocked;
        return QSharedPointer<T>(makes ? new T : nullptr);
    }
};

class SHOPLINE_API Ask
{
public:
    virtual bool showQuestion(const Phrase &question, int kind, const Phrase &yes, const Phrase &no,
                              int flags);
    virtual ~Ask();
};

class SHOPLINE_API ReceiptActs
{
public:
    virtual bool stornoPosition(const Task &task);
    virtual ~ReceiptActs();
};

template <>
SHOPLINE_API QSharedPointer<Ask> Factory<Ask>::mocked;
template <>
SHOPLINE_API QSharedPointer<ReceiptActs> Factory<ReceiptActs>::mocked;

//! Does something when its scope ends.
class SHOPLINE_API AtEnd
{
public:
    explicit AtEnd(std::function<void()> what);
    ~AtEnd() noexcept(false);
    Q_DISABLE_COPY_MOVE(AtEnd)

private:
    std::function<void()> m_what;
    int m_exceptions;
};

} // namespace shopline

#endif // SHOPLINE_TALK_H
