#include "till/runner/SharedText.h"

#include <atomic>
#include <cstring>
#include <new>

#include <sys/mman.h>

namespace till {

//! Takes up no more than what is written.
struct SharedText::Memory
{
    static constexpr qsizetype room = 8 << 20;

    struct Place
    {
        qsizetype size;
        char bytes[room];
    };

    std::atomic<int> current; //!< of both places
    Place places[2];
};

SharedText::SharedText()
    : m_memory(nullptr)
{
    void *const memory = mmap(nullptr, sizeof(Memory), PROT_READ | PROT_WRITE,
                              MAP_SHARED | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory != MAP_FAILED)
        m_memory = new (memory) Memory; // which is all 0 already
}

SharedText::~SharedText()
{
    if (m_memory)
        munmap(m_memory, sizeof(Memory));
}

bool SharedText::write(const QByteArray &text) const
{
    if (text.size() > Memory::room)
        return false;
    const int other = 1 - m_memory->current;
    std::memcpy(m_memory->places[other].bytes, text.constData(), text.size());
    m_memory->places[other].size = text.size();
    m_memory->current = other;
    return true;
}

QByteArray SharedText::text() const
{
    const Memory::Place &place = m_memory->places[m_memory->current];
    return {place.bytes, place.size};
}

} // namespace till
