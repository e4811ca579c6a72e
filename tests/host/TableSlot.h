#ifndef TESTS_HOST_TABLESLOT_H
#define TESTS_HOST_TABLESLOT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <type_traits>

/*!
 * The slot of a member function in its class's virtual table, counted from 0, as the compiler laid
 * it out; none for a function that is not virtual. Read from the pointer to member, which the
 * Itanium C++ ABI makes of the slot's offset and a mark that it is one.
 */
template <class Member>
std::optional<std::size_t> tableSlot(Member member)
{
    static_assert(std::is_member_function_pointer_v<Member>);
    struct
    {
        std::uintptr_t pointer;
        std::intptr_t adjustment;
    } raw;
    static_assert(sizeof(raw) == sizeof(member));
    std::memcpy(&raw, &member, sizeof(raw));
#if defined(__arm__) || defined(__aarch64__)
    const bool isVirtual = raw.adjustment & 1;
    const std::uintptr_t offset = raw.pointer;
#else
    const bool isVirtual = raw.pointer & 1;
    const std::uintptr_t offset = raw.pointer - 1;
#endif
    if (!isVirtual)
        return std::nullopt;
    return offset / sizeof(void *);
}

#endif // TESTS_HOST_TABLESLOT_H
