#include "Model/ModelRows.h"

#include "Model/RowRange.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace PimManager::PhoneBook
{

namespace
{

constexpr int s_kSearchSteps = 64;
// Each step copies rows. The product of both numbers bounds the copies.
constexpr int s_kStepsTimesRows = 10000000;

int MostSteps( int a_rows )
{
    return std::max( s_kSearchSteps, s_kStepsTimesRows / std::max( a_rows, 1 ) );
}

QVector<int> ContactsOf( const QVector<PimPhoneBookMatch>& a_matches )
{
    QVector<int> contacts( a_matches.size() );
    std::transform( a_matches.begin(), a_matches.end(), contacts.begin(),
                    []( const PimPhoneBookMatch& a_match ) { return a_match.m_contact; } );
    return contacts;
}

QVector<int> InNextBook( const QVector<int>& a_contacts, const BookStep& a_step )
{
    QVector<int> contacts( a_contacts.size() );
    std::transform( a_contacts.begin(), a_contacts.end(), contacts.begin(),
                    [&]( int a_contact ) { return a_step.m_newOf[a_contact]; } );
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
    if ( m_lastContact != m_rows.at( a_row ) )
    {
        m_lastContact = m_rows.at( a_row );
        m_last = m_phoneBook.At( m_lastContact );
    }
    return m_last;
}

void PimPhoneBookModelPrivate::Refresh()
{
    m_isOutdated = true;
    if ( m_isChanging )
        return;
    const auto before = m_rows.size();
    {
        const QScopedValueRollback<bool> isChanging( m_isChanging, true );
        while ( std::exchange( m_isOutdated, false ) )
            Update();
    }
    if ( m_rows.size() != before )
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
    const RowChanges changes = RowChangesBetween( InNextBook( m_rows, a_step ), rows, a_phoneBook.Size(),
                                                  MostSteps( static_cast<int>( rows.size() ) ) );
    Remove( changes );
    m_phoneBook = a_phoneBook;
    m_rows = InNextBook( m_rows, a_step );
    m_lastContact = -1;
    TellChanged( a_step.m_changed );
    MoveAndInsert( changes, rows );
}

void PimPhoneBookModelPrivate::ShowMatches()
{
    const QVector<int> rows = RowsOf( m_phoneBook );
    const RowChanges changes = RowChangesBetween( m_rows, rows, m_phoneBook.Size(), s_kSearchSteps );
    Remove( changes );
    MoveAndInsert( changes, rows );
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
        m_rows.remove( range->m_first, range->m_count );
        m_model.endRemoveRows();
    }
}

void PimPhoneBookModelPrivate::MoveAndInsert( const RowChanges& a_changes, const QVector<int>& a_rows )
{
    for ( const RowMove& move : a_changes.m_moved )
        Move( move );
    for ( const RowRange& range : a_changes.m_inserted )
    {
        m_model.beginInsertRows( QModelIndex(), range.m_first, range.m_first + range.m_count - 1 );
        m_rows.insert( range.m_first, range.m_count, 0 );
        std::copy_n( a_rows.begin() + range.m_first, range.m_count, m_rows.begin() + range.m_first );
        m_model.endInsertRows();
    }
    m_rows = a_rows; // the same, and for all contacts without memory of its own
}

void PimPhoneBookModelPrivate::Move( const RowMove& a_move )
{
    const int last = a_move.m_from + a_move.m_count - 1;
    // Qt counts the target with the rows in their old places.
    const int target = a_move.m_to > a_move.m_from ? a_move.m_to + a_move.m_count : a_move.m_to;
    m_model.beginMoveRows( QModelIndex(), a_move.m_from, last, QModelIndex(), target );
    const QVector<int> rows = m_rows.mid( a_move.m_from, a_move.m_count );
    m_rows.remove( a_move.m_from, a_move.m_count );
    m_rows.insert( a_move.m_to, a_move.m_count, 0 );
    std::copy( rows.begin(), rows.end(), m_rows.begin() + a_move.m_to );
    m_model.endMoveRows();
}

void PimPhoneBookModelPrivate::TellChanged( const QVector<int>& a_contacts )
{
    std::vector<bool> isChanged( static_cast<size_t>( m_phoneBook.Size() ) );
    for ( const int contact : a_contacts )
        isChanged[static_cast<size_t>( contact )] = true;
    std::vector<RowRange> ranges;
    for ( int row = 0; row < m_rows.size(); ++row )
    {
        if ( isChanged[static_cast<size_t>( m_rows.at( row ) )] )
            AppendRow( ranges, row );
    }
    if ( static_cast<int>( ranges.size() ) > MostSteps( static_cast<int>( m_rows.size() ) ) )
        ranges = { { ranges.front().m_first, ranges.back().m_first + ranges.back().m_count - ranges.front().m_first } };
    for ( const RowRange& range : ranges )
        emit m_model.dataChanged( m_model.index( range.m_first ), m_model.index( range.m_first + range.m_count - 1 ) );
}

} // namespace PimManager::PhoneBook
