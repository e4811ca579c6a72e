#ifndef TESTS_TILL_KILL_CASHIER_H
#define TESTS_TILL_KILL_CASHIER_H

#include "tests/till/kill/ToldReceipt.h"

#include <random>

namespace till {

//! Thinks of commands that make sense for the receipt as it stands.
class Cashier
{
public:
    explicit Cashier(quint32 seed)
        : m_random(seed)
    {
    }

    //! The next command for \a receipt, which may be none that is open.
    QByteArray next(const ToldReceipt &receipt);
    //! The till was switched off: what was to follow the last command is forgotten.
    void forget() { m_prepared.clear(); }

    //! Evenly distributed, both ends included.
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_random); }
    //! Evenly distributed, below 1.
    double fraction() { return std::uniform_real_distribution<double>()(m_random); }

private:
    using Lines = QList<LineRecord>;

    QByteArrayList think(const ToldReceipt &receipt);
    QByteArray add();
    QByteArray change(const LineRecord &line);
    QByteArrayList split(const LineRecord &line);
    QByteArrayList unite(const Lines &lines);
    QByteArray quantity(double from, double to);
    QByteArray yesOrNo() { return number(0, 3) > 0 ? "answer yes" : "answer no"; }

    std::mt19937 m_random;
    QByteArrayList m_prepared;
    int m_documents = 0; //!< numbers of orders and soft-checks so far
};

} // namespace till

#endif // TESTS_TILL_KILL_CASHIER_H
