/// \file
/// Lists that own the objects to which their elements point. Private to the component.

#pragma once

#include <QList>
#include <QVarLengthArray>
#include <QtAlgorithms>

#include <memory>

namespace PimManager::vCard
{

/// Deletes the elements, first to last, and then the list, which must have been created with `new`. Null entries and a
/// null list are skipped.
template <typename T>
void DeleteOwnedList( QList<T*>* a_list )
{
    if ( a_list == nullptr )
        return;
    while ( !a_list->isEmpty() )
        delete a_list->takeFirst();
    delete a_list;
}

struct OwnedListDeleter
{
    template <typename T>
    void operator()( QList<T*>* a_list ) const
    {
        DeleteOwnedList( a_list );
    }
};

/// A list that has no other owner yet. An operation that fails deletes it with all its elements.
template <typename T>
using OwnedList = std::unique_ptr<QList<T*>, OwnedListDeleter>;

/// Collects the elements of a list. Up to UsualNumber pointers are stored without an allocation. Elements that were not
/// taken are deleted, first to last.
template <typename T, int UsualNumber>
class OwnedElements
{
public:
    OwnedElements() = default;
    ~OwnedElements() { qDeleteAll( m_elements ); }
    Q_DISABLE_COPY( OwnedElements )

    /// \param a_element not null.
    void Append( std::unique_ptr<T> a_element )
    {
        m_elements.append( a_element.get() );
        static_cast<void>( a_element.release() );
    }

    /// \pre There is an element.
    const T& Last() const { return *m_elements.last(); }

    /// \return a new list without spare capacity. It takes over the elements.
    QList<T*>* TakeAsList()
    {
        OwnedList<T> list( new QList<T*> );
        list->reserve( m_elements.size() );
        for ( T* element : m_elements )
            list->append( element );
        m_elements.clear();
        return list.release();
    }

private:
    QVarLengthArray<T*, UsualNumber> m_elements;
};

} // namespace PimManager::vCard
