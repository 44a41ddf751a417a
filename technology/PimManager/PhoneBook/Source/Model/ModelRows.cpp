#include "Model/ModelRows.h"

#include "Model/RowRange.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace PimManager::PhoneBook
{

namespace
{

// Each key waits for the steps of a search. The time for those of a phone book is in the order of their square.
constexpr int s_kSearchSteps = 32;
constexpr int s_kBookSteps = 2000;

QVector<int> ContactsOf( const QVector<PimPhoneBookMatch>& a_matches )
{
    QVector<int> contacts( a_matches.size() );
    int* contact = contacts.data();
    for ( const PimPhoneBookMatch& match : a_matches )
        *contact++ = match.m_contact;
    return contacts;
}

/// \param a_gone what contacts are that are gone.
QVector<int> InNextBook( const QVector<int>& a_contacts, const BookStep& a_step, int a_gone )
{
    QVector<int> contacts( a_contacts.size() );
    std::transform( a_contacts.begin(), a_contacts.end(), contacts.begin(),
                    [&]( int a_contact )
                    {
                        const int contact = a_step.m_newOf.at( a_contact );
                        return contact < 0 ? a_gone : contact;
                    } );
    return contacts;
}

} // namespace

PimPhoneBookModelPrivate::PimPhoneBookModelPrivate( PimPhoneBookModel& a_model ) :
    m_model( a_model )
{
}

void PimPhoneBookModelPrivate::SetPhoneBook( const PimPhoneBook& a_phoneBook, const std::optional<BookStep>& a_step )
{
    m_next = a_phoneBook;
    m_nextStep = a_step;
    Refresh();
}

void PimPhoneBookModelPrivate::Search( const QString& a_filter, const QString& a_keys )
{
    const bool isOtherFilter = std::exchange( m_filter, a_filter ) != a_filter;
    const bool areOtherKeys = std::exchange( m_keys, a_keys ) != a_keys;
    if ( isOtherFilter || areOtherKeys )
        Refresh();
    if ( isOtherFilter )
        emit m_model.FilterChanged();
    if ( areOtherKeys )
        emit m_model.KeysChanged();
}

void PimPhoneBookModelPrivate::SetRecentCalls( const QStringList& a_numbers )
{
    m_recentCalls = a_numbers;
    m_next = m_next.value_or( m_phoneBook );
    Refresh();
}

const Contacts::PimContact& PimPhoneBookModelPrivate::ContactOf( int a_row )
{
    const int contact = m_rows.IdAt( a_row );
    if ( m_lastContact != contact )
    {
        m_lastContact = contact;
        m_last = m_phoneBook.At( contact );
    }
    return m_last;
}

void PimPhoneBookModelPrivate::Refresh()
{
    m_isOutdated = true;
    if ( m_isChanging )
        return;
    const int before = m_rows.Size();
    {
        const QScopedValueRollback<bool> isChanging( m_isChanging, true );
        while ( std::exchange( m_isOutdated, false ) )
            Update();
    }
    if ( m_rows.Size() != before )
        emit m_model.CountChanged();
}

void PimPhoneBookModelPrivate::Update()
{
    if ( !m_next )
    {
        ShowMatches();
        return;
    }
    PimPhoneBook next = *std::exchange( m_next, std::nullopt );
    const std::optional<BookStep> step = std::exchange( m_nextStep, std::nullopt );
    if ( m_recentCalls )
        next.SetRecentCalls( *m_recentCalls );
    if ( step && IsSameBook( step->m_from, m_phoneBook ) )
        ShowPhoneBook( next, *step );
    else
        ShowPhoneBook( next, StepBetween( m_phoneBook, next ) );
}

void PimPhoneBookModelPrivate::ShowPhoneBook( const PimPhoneBook& a_phoneBook, const BookStep& a_step )
{
    const QVector<int> rows = RowsOf( a_phoneBook );
    const QVector<int> former = InNextBook( m_rows.Ids(), a_step, a_phoneBook.Size() );
    const RowChanges changes = RowChangesBetween( former, rows, a_phoneBook.Size(), s_kBookSteps );
    Remove( changes );
    m_phoneBook = a_phoneBook;
    m_lastContact = -1;
    m_rows.SetNewIds( rows, changes.m_staying );
    TellChanged( a_step.m_changed );
    MoveAndInsert( changes );
}

void PimPhoneBookModelPrivate::ShowMatches()
{
    const QVector<int> rows = RowsOf( m_phoneBook );
    const RowChanges changes = RowChangesBetween( m_rows.Ids(), rows, m_phoneBook.Size(), s_kSearchSteps );
    Remove( changes );
    m_rows.SetNewIds( rows, changes.m_staying );
    MoveAndInsert( changes );
}

QVector<int> PimPhoneBookModelPrivate::RowsOf( const PimPhoneBook& a_phoneBook ) const
{
    if ( !m_keys.isEmpty() )
        return ContactsOf( a_phoneBook.FindByKeys( m_keys ) );
    return m_filter.isEmpty() ? a_phoneBook.Sorted() : ContactsOf( a_phoneBook.Find( m_filter ) );
}

void PimPhoneBookModelPrivate::Remove( const RowChanges& a_changes )
{
    for ( auto range = a_changes.m_removed.rbegin(); range != a_changes.m_removed.rend(); ++range )
    {
        m_model.beginRemoveRows( QModelIndex(), range->m_first, range->m_first + range->m_count - 1 );
        m_rows.Remove( *range );
        m_model.endRemoveRows();
    }
}

void PimPhoneBookModelPrivate::MoveAndInsert( const RowChanges& a_changes )
{
    for ( const RowMove& move : a_changes.m_moved )
    {
        // Qt counts the target with the rows in their old places.
        const int target = move.m_to > move.m_from ? move.m_to + move.m_count : move.m_to;
        m_model.beginMoveRows( QModelIndex(), move.m_from, move.m_from + move.m_count - 1, QModelIndex(), target );
        m_rows.Move( move );
        m_model.endMoveRows();
    }
    for ( const RowRange& range : a_changes.m_inserted )
    {
        m_model.beginInsertRows( QModelIndex(), range.m_first, range.m_first + range.m_count - 1 );
        m_rows.Insert( range );
        m_model.endInsertRows();
    }
    m_rows.Finish();
}

void PimPhoneBookModelPrivate::TellChanged( const QVector<int>& a_contacts )
{
    std::vector<bool> isChanged( static_cast<size_t>( m_phoneBook.Size() ) );
    for ( const int contact : a_contacts )
        isChanged[static_cast<size_t>( contact )] = true;
    std::vector<RowRange> ranges;
    for ( int row = 0; row < m_rows.Size(); ++row )
    {
        if ( isChanged[static_cast<size_t>( m_rows.IdAt( row ) )] )
            AppendRow( ranges, row );
    }
    if ( ranges.size() > s_kBookSteps )
        ranges = { { ranges.front().m_first, ranges.back().m_first + ranges.back().m_count - ranges.front().m_first } };
    for ( const RowRange& range : ranges )
        emit m_model.dataChanged( m_model.index( range.m_first ), m_model.index( range.m_first + range.m_count - 1 ) );
}

} // namespace PimManager::PhoneBook
