/// \file
/// Values that are created at their first use.

#pragma once

#include <QAtomicPointer>

namespace PimManager::Contacts
{

/// Contains a value that is created at its first use. Several threads may use it at once. Each of them may create the
/// value, and one of these is kept. A copy is empty.
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

    /// Must not be called at the same time as other functions.
    void Clear() { delete m_value.fetchAndStoreOrdered( nullptr ); }

private:
    mutable QAtomicPointer<Value> m_value;
};

} // namespace PimManager::Contacts
