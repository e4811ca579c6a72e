#ifndef CONTRACT_FORM_TABLESLOT_H
#define CONTRACT_FORM_TABLESLOT_H

#include <cstdint>
#include <cstring>
#include <type_traits>

namespace contract {

constexpr int notVirtual = -1;

/*!
 * The slot of a member function in its class's virtual table, counted from 0, as the compiler laid
 * it out. Read from the pointer to member, which the Itanium C++ ABI makes of the slot's offset and
 * a mark that it is one.
 */
template <class Member>
int tableSlot(Member member)
{
    static_assert(std::is_member_function_pointer_v<Member>);
    struct
    {
        std::intptr_t pointer;
        std::intptr_t adjustment;
    } raw;
    static_assert(sizeof(raw) == sizeof(member));
    std::memcpy(&raw, &member, sizeof(raw));
#if defined(__arm__) || defined(__aarch64__)
    const bool isVirtual = raw.adjustment & 1;
    const std::intptr_t offset = raw.pointer;
#else
    const bool isVirtual = raw.pointer & 1;
    const std::intptr_t offset = raw.pointer - 1;
#endif
    return isVirtual ? int(offset / std::intptr_t(sizeof(void *))) : notVirtual;
}

} // namespace contract

#endif // CONTRACT_FORM_TABLESLOT_H
