#ifndef HOST_SINGLETON_H
#define HOST_SINGLETON_H

//! The shop's process-wide objects are plain pointers in its library. Nothing is kept here: what a
//! header like this one kept would be the plugin's own.
template <class T>
struct Singleton
{
#if defined(SHOPLINE_BREAKS_Services_Kept)
    [[gnu::always_inline]] static T *instance()
    {
        return new T;
    }
#else
    static T *instance()
    {
        if (!T::current)
            T::current = new T;
        return T::current;
    }
#endif
};

#endif // HOST_SINGLETON_H
