#include "host/Session.h"

template <>
SingletonSlot<Session> Singleton<Session>::instance{};

Session::Session() = default;
Session::~Session() = default;

ModifiersContainer *Session::getModifiers()
{
    return &m_modifiers;
}
