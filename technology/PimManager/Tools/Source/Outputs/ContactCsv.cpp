#include "Outputs/ContactCsv.h"

#include "Outputs/CsvText.h"
#include "Terminal/Wording.h"

#include <PimManager/Contacts/PimContact.h>

#include <utility>

namespace PimManager::Tools
{

using namespace Contacts;

ContactCsv::ContactCsv( const QByteArray& a_fileName, OutputClaims& a_claims, std::vector<const CsvColumn*> a_columns,
                        bool a_hasMark, Console& a_console ) :
    m_file( a_fileName, a_claims ),
    m_columns( std::move( a_columns ) ),
    m_hasMark( a_hasMark ),
    m_console( a_console )
{
}

void ContactCsv::Begin()
{
    m_row = m_hasMark ? QByteArrayLiteral( "\xEF\xBB\xBF" ) : QByteArray();
    for ( const CsvColumn* const column : m_columns )
        m_row.append( column == m_columns.front() ? "" : "," ).append( column->m_name );
    m_file.Device().write( m_row.append( "\r\n" ) );
}

void ContactCsv::TakeCard( const BookInRun& /*a_book*/, const PimContactCard& a_card )
{
    const CsvContact contact{ PimContact( a_card ) };
    m_row.resize( 0 );
    bool isFirst = true;
    for ( const CsvColumn* const column : m_columns )
    {
        m_row.append( isFirst ? "" : "," ).append( CsvFieldOf( column->m_field( contact ) ) );
        isFirst = false;
    }
    m_file.Device().write( m_row.append( "\r\n" ) );
    ++m_rows;
    m_losses.Add( contact.m_contact );
}

void ContactCsv::End()
{
    m_file.Close();
    m_losses.Remark( m_console );
}

QStringList ContactCsv::Failures() const
{
    const QString failure = m_file.Failure();
    return failure.isEmpty() ? QStringList() : QStringList( failure );
}

// Each row has the same columns.
QString ContactCsv::Result() const
{
    if ( !Failures().isEmpty() )
        return QString();
    return Counted( m_rows, QStringLiteral( "row" ), QStringLiteral( "rows" ) ) + QStringLiteral( " of " ) +
           Counted( static_cast<qint64>( m_columns.size() ), QStringLiteral( "column" ), QStringLiteral( "columns" ) ) +
           QStringLiteral( " written" ) + m_losses.Result();
}

} // namespace PimManager::Tools
