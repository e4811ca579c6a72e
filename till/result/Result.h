#ifndef TILL_RESULT_RESULT_H
#define TILL_RESULT_RESULT_H

#include <QtCore/QString>

#include <tl/expected.hpp>

#include <type_traits>
#include <utility>

namespace till {

//! Why something could not be done, in English, for whoever can do something about it.
struct Fault
{
    QString place;       //!< a file, and where in it; empty when there is none
    QString reason;      //!< what is wrong there
    QString remedy = {}; //!< what to do about it; empty when nothing is known

    //! All of it in one line: "PLACE: REASON; REMEDY".
    QString text() const
    {
        const QString what = place.isEmpty() ? reason : place + QLatin1String(": ") + reason;
        return remedy.isEmpty() ? what : what + QLatin1String("; ") + remedy;
    }
    bool operator==(const Fault &other) const = default;
};

//! What an operation gives, or the fault for which it gives nothing. True when it was done.
template <typename Value = void, typename Error = Fault>
class [[nodiscard]] Result : public tl::expected<Value, Error>
{
public:
    using tl::expected<Value, Error>::expected;
    Result() = default;
    Result(Error error)
        : tl::expected<Value, Error>(tl::make_unexpected(std::move(error)))
    {
    }

    //! What \a next comes to, which is given the value, if any; the fault where there is one.
    template <typename Next>
    auto then(Next next) const
    {
        if constexpr (std::is_void_v<Value>)
            return *this ? next() : decltype(next())(this->error());
        else
            return *this ? next(**this) : decltype(next(**this))(this->error());
    }
};

} // namespace till

#endif // TILL_RESULT_RESULT_H
