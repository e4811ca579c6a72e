#include "till/receipt/ValueChange.h"

#include <algorithm>
#include <bit>
#include <concepts>
#include <type_traits>

namespace till {

namespace {

//! What \a value holds, which must be of that type.
template <typename Type>
const Type &held(const QVariant &value)
{
    return *static_cast<const Type *>(value.constData());
}

// Plugins hand over what they keep: most texts, and the maps of what did not change, are shared.
bool areSame(const QString &left, const QString &right)
{
    if (left.size() != right.size() || left.isNull() != right.isNull())
        return false;
    return left.constData() == right.constData() || left == right;
}

template <std::integral Number>
bool areSame(Number left, Number right)
{
    return left == right;
}

bool areSame(double left, double right) // a zero has a sign, and what is no number equals itself
{
    return std::bit_cast<quint64>(left) == std::bit_cast<quint64>(right);
}

bool areSame(const QVariantList &left, const QVariantList &right)
{
    return left.size() == right.size()
           && (left.constData() == right.constData()
               || std::equal(left.cbegin(), left.cend(), right.cbegin(), areSurelySame));
}

bool areSame(const QVariantMap &left, const QVariantMap &right)
{
    const auto isSameEntry = [](const auto &one, const auto &other) {
        return areSame(one.first, other.first) && areSurelySame(one.second, other.second);
    };
    return left.size() == right.size()
           && (left.isSharedWith(right)
               || std::equal(left.constKeyValueBegin(), left.constKeyValueEnd(),
                             right.constKeyValueBegin(), isSameEntry));
}

template <typename Type>
bool isEmpty(const Type &value)
{
    if constexpr (std::is_arithmetic_v<Type>)
        return value == Type();
    else
        return value.isEmpty();
}

template <typename Type>
bool holdSame(const QVariant &left, const QVariant &right)
{
    const Type &value = held<Type>(left);
    // What a variant holds that is null is empty, or 0.
    return areSame(value, held<Type>(right))
           && (!isEmpty(value) || left.isNull() == right.isNull());
}

//! Walks through a list before and after, and finds the parts that changed.
class ListComparison
{
public:
    ListComparison(const QVariantList &before, const QVariantList &after)
        : m_before(before)
        , m_after(after)
    {
    }

    QList<ListChange> parts()
    {
        while (m_old < m_before.size() || m_new < m_after.size()) {
            if (isSame(m_old, m_new)) {
                ++m_old;
                ++m_new;
            } else {
                step();
            }
        }
        return m_parts;
    }

private:
    bool isSame(qsizetype before, qsizetype after) const
    {
        return before < m_before.size() && after < m_after.size()
               && areSurelySame(m_before[before], m_after[after]);
    }

    //! Takes one out where that brings the rest into step, or replaces one; at the end, adds one.
    void step()
    {
        const qsizetype surplus = (m_before.size() - m_old) - (m_after.size() - m_new);
        const bool isTakenOut = surplus > 0 && isSame(m_old + 1, m_new);
        if (m_old < m_before.size())
            remove();
        if (m_new < m_after.size() && !isTakenOut)
            add();
    }

    void remove()
    {
        ++part().removed;
        ++m_old;
    }

    void add()
    {
        part().added.append(m_after[m_new]);
        ++m_new;
    }

    //! The part that ends here.
    ListChange &part()
    {
        if (m_parts.isEmpty() || m_parts.constLast().at + m_parts.constLast().added.size() != m_new)
            m_parts.append({m_new, 0, {}});
        return m_parts.last();
    }

    const QVariantList &m_before;
    const QVariantList &m_after;
    qsizetype m_old = 0;
    qsizetype m_new = 0;
    QList<ListChange> m_parts;
};

bool isList(const QVariant &value)
{
    return value.typeId() == QMetaType::QVariantList;
}

} // namespace

std::optional<ValueChange> changeOf(const QVariant &before, const QVariant &after)
{
    ValueChange change;
    if (isList(before) && isList(after)) {
        change.parts =
            ListComparison(held<QVariantList>(before), held<QVariantList>(after)).parts();
        return change.parts.isEmpty() ? std::nullopt : std::optional(change);
    }
    change.value = after;
    return areSurelySame(before, after) ? std::nullopt : std::optional(change);
}

bool areSurelySame(const QVariant &left, const QVariant &right)
{
    const QMetaType type = left.metaType();
    if (type != right.metaType())
        return false;
    switch (type.id()) {
    case QMetaType::Bool:
        return holdSame<bool>(left, right);
    case QMetaType::Int:
        return holdSame<int>(left, right);
    case QMetaType::Double:
        return holdSame<double>(left, right);
    case QMetaType::QString:
        return holdSame<QString>(left, right);
    case QMetaType::QVariantList:
        return holdSame<QVariantList>(left, right);
    case QMetaType::QVariantMap:
        return holdSame<QVariantMap>(left, right);
    default:
        return false;
    }
}

} // namespace till
