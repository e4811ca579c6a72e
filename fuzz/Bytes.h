#ifndef FUZZ_BYTES_H
#define FUZZ_BYTES_H

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <cstring>
#include <iterator>
#include <limits>

namespace fuzz {

/*!
 * Bytes that are read as decisions. Behind their end everything reads as 0, which always means the
 * ordinary choice, so that every run ends soon after its bytes do.
 */
class Bytes
{
public:
    explicit Bytes(QByteArrayView bytes)
        : m_left(bytes)
    {
    }

    bool isEmpty() const { return m_left.isEmpty(); }

    int take()
    {
        if (isEmpty())
            return 0;
        const auto byte = static_cast<unsigned char>(m_left.front());
        m_left = m_left.sliced(1);
        return byte;
    }

    //! From 0 to \a count - 1.
    int choice(int count) { return take() % count; }
    //! True for one byte in \a count; false at the end.
    bool seldom(int count) { return choice(count) == count - 1; }

    //! A position number: nearly always one of few, so that records meet.
    int posnum() { return seldom(32) ? raw<int>() : choice(10); }

    //! A quantity: a small one, one at a border, or any pattern of bits.
    double number()
    {
        using Limits = std::numeric_limits<double>;
        static constexpr double borders[] = {-1.0,
                                             -0.0,
                                             0.0004,
                                             0.0005,
                                             0.0006,
                                             -0.0004,
                                             -0.0005,
                                             1e300,
                                             -1e300,
                                             1e-300,
                                             Limits::max(),
                                             Limits::infinity(),
                                             0.1,
                                             -Limits::infinity(),
                                             -0.001,
                                             0.29999,
                                             1e9,
                                             2147483648.0,
                                             Limits::quiet_NaN(),
                                             4.0005,
                                             Limits::denorm_min()};
        const int byte = take();
        if (byte < 160)
            return byte / 8.0;
        return byte < 250 ? borders[byte % std::size(borders)] : raw<double>();
    }

    //! A text: nearly always one of few, so that identifiers meet.
    QString text()
    {
        static const QString texts[] = {"{a}", "{b}", "{c}",  "",   QString(),
                                        "5",   "1.5", "true", "{A}"};
        if (!seldom(16))
            return texts[choice(static_cast<int>(std::size(texts)))];
        QString text;
        for (int length = choice(8); length > 0; --length)
            text.append(QChar(raw<char16_t>()));
        return text;
    }

    template <typename Value>
    Value raw()
    {
        Value value{};
        char bytes[sizeof value];
        for (char &byte : bytes)
            byte = static_cast<char>(take());
        std::memcpy(&value, bytes, sizeof value);
        return value;
    }

private:
    QByteArrayView m_left;
};

} // namespace fuzz

#endif // FUZZ_BYTES_H
