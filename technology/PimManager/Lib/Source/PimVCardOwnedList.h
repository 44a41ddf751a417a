/// \file
/// Lists that own what their elements point to. Private to the component.

#pragma once

#include <QList>

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

/// Holds a list while it is being filled; an operation that fails drops it with all that it holds.
template <typename T>
using OwnedList = std::unique_ptr<QList<T*>, OwnedListDeleter>;

template <typename T>
OwnedList<T> MakeOwnedList()
{
    return OwnedList<T>( new QList<T*> );
}

} // namespace PimManager::vCard
