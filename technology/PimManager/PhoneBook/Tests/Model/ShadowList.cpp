#include "ShadowList.h"

namespace PimManager::PhoneBook
{

ShadowList::ShadowList( QAbstractItemModel& a_model ) :
    m_model( a_model ),
    m_tester( &a_model, QAbstractItemModelTester::FailureReportingMode::Fatal )
{
    using Model = QAbstractItemModel;
    const auto reset = [this] { ++m_resets; };
    QObject::connect( &m_model, &Model::modelAboutToBeReset, &m_context, reset );
    QObject::connect( &m_model, &Model::layoutAboutToBeChanged, &m_context, reset );
    QObject::connect( &m_model, &Model::rowsInserted, &m_context,
                      [this]( const QModelIndex&, int a_first, int a_last ) { Insert( a_first, a_last ); } );
    QObject::connect( &m_model, &Model::rowsRemoved, &m_context,
                      [this]( const QModelIndex&, int a_first, int a_last ) { Remove( a_first, a_last ); } );
    QObject::connect( &m_model, &Model::rowsMoved, &m_context,
                      [this]( const QModelIndex&, int a_first, int a_last, const QModelIndex&, int a_target )
                      { Move( a_first, a_last, a_target ); } );
    QObject::connect( &m_model, &Model::dataChanged, &m_context,
                      [this]( const QModelIndex& a_first, const QModelIndex& a_last )
                      { Change( a_first.row(), a_last.row() ); } );
    m_rows = Expected();
}

std::vector<std::string> ShadowList::Expected() const
{
    std::vector<std::string> rows;
    for ( int row = 0; row < m_model.rowCount(); ++row )
        rows.push_back( RowText( row ) );
    return rows;
}

std::string ShadowList::RowText( int a_row ) const
{
    std::string text;
    const auto roles = m_model.roleNames();
    for ( const char* name : { "name", "section", "number" } )
        text += m_model.data( m_model.index( a_row, 0 ), roles.key( name ) ).toString().toStdString() + "|";
    return text;
}

void ShadowList::Insert( int a_first, int a_last )
{
    Count( a_first, a_last );
    for ( int row = a_first; row <= a_last; ++row )
        m_rows.insert( m_rows.begin() + row, RowText( row ) );
}

void ShadowList::Remove( int a_first, int a_last )
{
    Count( a_first, a_last );
    m_rows.erase( m_rows.begin() + a_first, m_rows.begin() + a_last + 1 );
}

void ShadowList::Move( int a_first, int a_last, int a_target )
{
    Count( a_first, a_last );
    const std::vector<std::string> moved( m_rows.begin() + a_first, m_rows.begin() + a_last + 1 );
    m_rows.erase( m_rows.begin() + a_first, m_rows.begin() + a_last + 1 );
    const int target = a_target > a_first ? a_target - static_cast<int>( moved.size() ) : a_target;
    m_rows.insert( m_rows.begin() + target, moved.begin(), moved.end() );
}

void ShadowList::Change( int a_first, int a_last )
{
    Count( a_first, a_last );
    for ( int row = a_first; row <= a_last; ++row )
        m_rows[static_cast<size_t>( row )] = RowText( row );
}

void ShadowList::Count( int a_first, int a_last )
{
    ++m_steps;
    m_rowsTouched += a_last - a_first + 1;
}

} // namespace PimManager::PhoneBook
