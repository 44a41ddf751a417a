/// \file
/// Lists that own what their elements point to. Private to the component.

#pragma once

#include <QList>
#include <QVarLengthArray>

#include <memory>

namespace PimManager::vCard
{

/// Deletes the elements, first to last, and then the list, which must have been made with `new`. Null entries and a
/// null list are passed over.
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

/// Holds a list that belongs to nobody yet; an operation that fails drops it with all that it holds.
template <typename T>
using OwnedList = std::unique_ptr<QList<T*>, OwnedListDeleter>;

/// The elements of a list in the making: those that come usually need no memory of their own.
template <typename T, int UsualNumber>
using OwnedElements = QVarLengthArray<std::unique_ptr<T>, UsualNumber>;

/// \return a new list, just as long as it must be, that takes the elements over.
template <typename T, int UsualNumber>
QList<T*>* NewListOf( OwnedElements<T, UsualNumber>& a_elements )
{
    OwnedList<T> list( new QList<T*> );
    list->reserve( a_elements.size() );
    for ( std::unique_ptr<T>& element : a_elements )
        list->append( element.release() );
    return list.release();
}

} // namespace PimManager::vCard
