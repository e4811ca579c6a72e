#include "host/MockFactory.h"
#include "host/Singleton.h"

//! A service for which no library has a slot.
struct Forgotten
{
};

bool isForgotten()
{
    return !Singleton<Forgotten>::instance && !MockFactory<Forgotten>::mocked;
}
