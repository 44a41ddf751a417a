/// \file
/// What is made when it is needed for the first time.

#pragma once

#include <QAtomicPointer>

namespace PimManager::Contacts
{

/// Holds a value that is made at its first use. Several threads may use it at once: each may make the value, and one of
/// them is kept. A copy is empty.
template <class Value>
class Lazy
{
public:
    Lazy() = default;
    Lazy( const Lazy& /*a_other*/ ) {}
    Lazy& operator=( const Lazy& a_other ) = delete;
    ~Lazy() { Clear(); }

    /// \param a_make returns a pointer to a new value.
    template <class Make>
    const Value& Get( Make a_make ) const
    {
        Value* value = m_value.loadAcquire();
        if ( value != nullptr )
            return *value;
        Value* const made = a_make();
        if ( m_value.testAndSetOrdered( nullptr, made, value ) )
            return *made;
        delete made;
        return *value;
    }

    /// Not at the same time as other functions.
    void Clear() { delete m_value.fetchAndStoreOrdered( nullptr ); }

private:
    mutable QAtomicPointer<Value> m_value;
};

} // namespace PimManager::Contacts
