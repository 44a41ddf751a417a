/// \file
/// Reusable objects.

#pragma once

#include <QtGlobal>

#include <utility>

namespace PimManager::Contacts
{

/// Borrows an object whose memory is worth keeping. Each thread keeps one spare object as long as its memory is small.
/// A second object that is borrowed at the same time is a new one.
///
/// \tparam Object has Reset(), which prepares it for the next use, and IsLarge().
template <class Object>
class Borrowed
{
public:
    Borrowed() :
        m_object( std::exchange( s_spare, nullptr ) )
    {
        if ( m_object == nullptr )
            m_object = new Object;
        else
            m_object->Reset();
    }
    ~Borrowed()
    {
        if ( s_spare == nullptr && !s_isThreadEnding && !m_object->IsLarge() )
            Keep();
        else
            delete m_object;
    }
    Q_DISABLE_COPY( Borrowed )

    Object* operator->() { return m_object; }
    const Object* operator->() const { return m_object; }

private:
    /// Deletes the spare object when its thread ends.
    struct Keeper
    {
        ~Keeper()
        {
            delete std::exchange( s_spare, nullptr );
            s_isThreadEnding = true;
        }
    };

    void Keep()
    {
        thread_local Keeper t_keeper;
        static_cast<void>( t_keeper );
        s_spare = m_object;
    }

    // Neither has a dynamic constructor, so a thread can read them without a check for initialisation.
    static thread_local Object* s_spare;
    static thread_local bool s_isThreadEnding;

    Object* m_object;
};

template <class Object>
thread_local Object* Borrowed<Object>::s_spare = nullptr;
template <class Object>
thread_local bool Borrowed<Object>::s_isThreadEnding = false;

} // namespace PimManager::Contacts
