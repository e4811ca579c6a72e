#ifndef HOST_SINGLETON_H
#define HOST_SINGLETON_H

/*!
 * The place of a process-wide object of type `T`. Reads and tests like a `T *`; called, it gives
 * the object and makes it on first use.
 *
 * The slot owns nothing: assigning a pointer leaves an earlier object to whoever made it, and an
 * object that the slot made lives until the process ends or somebody deletes it. One thread only.
 */
template <class T>
class SingletonSlot
{
public:
    constexpr SingletonSlot() = default;
    SingletonSlot(const SingletonSlot &) = delete;
    SingletonSlot &operator=(const SingletonSlot &) = delete;

    //! The object, made with its default constructor when there is none yet. Never null.
    T *operator()()
    {
        if (!m_object)
            m_object = new T;
        return m_object;
    }

    //! Puts \a object (or null) into the slot. Ownership stays with the caller.
    SingletonSlot &operator=(T *object) noexcept
    {
        m_object = object;
        return *this;
    }

    //! The object, or null when none was made or assigned yet.
    operator T *() const noexcept { return m_object; }
    T *operator->() const noexcept { return m_object; }

private:
    T *m_object = nullptr;
};

/*!
 * A process-wide service of the host: `Singleton<Config>::instance()` is the object, and
 * `Singleton<Config>::instance = &mine` puts another in its place. The slot of each service is in
 * the host library; a type without one does not link.
 */
template <class T>
struct Singleton
{
    static SingletonSlot<T> instance;
};

#endif // HOST_SINGLETON_H
