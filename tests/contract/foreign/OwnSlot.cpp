// What a copied header brings into a plugin: the slot of a service, and so a service of its own.

class Config;

template <class T>
struct Singleton
{
    static T *instance;
};

template <>
__attribute__((used)) Config *Singleton<Config>::instance = nullptr;
