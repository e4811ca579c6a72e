#ifndef HOST_SINGLETON_H
#define HOST_SINGLETON_H

// The five services. The variable behind each lives in the host's library; here is only the way to
// it. A copy of another SDK's header with a variable in it would give the plugin services of its
// own.
template <class T>
struct Singleton
{
    // Where the SDK has plain pointers: made on first use, and stored where the host looks.
    static T *instance()
    {
        if (!T::instance)
            T::instance = new T;
        return T::instance;
    }
};

// Where the SDK's slot can be called itself:
//     template <class T>
//     using Singleton = vendor::Singleton<T>;

#endif // HOST_SINGLETON_H
