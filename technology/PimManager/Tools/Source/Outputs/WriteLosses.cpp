#include "Outputs/WriteLosses.h"

#include "Terminal/Wording.h"

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

constexpr int s_kMostRemarks = 20;

QString TextOf( const PimContactWriteNote& a_note, qint64 a_contact )
{
    const QString line =
        a_note.Line() == 0 ? QString() : QStringLiteral( ", line " ) + QString::number( a_note.Line() );
    return QStringLiteral( "contact " ) + QString::number( a_contact ) + line + QStringLiteral( ": " ) + a_note.Text();
}

} // namespace

void WriteLosses::Add( const PimContactWriteReport& a_report )
{
    const QList<PimContactWriteNote> notes = a_report.Notes();
    for ( int i = 0; i < notes.size() && m_first.size() < s_kMostRemarks; ++i )
    {
        if ( notes.at( i ).Code() != PimContactWriteCode::CardFiltered )
            m_first << TextOf( notes.at( i ), m_contacts + notes.at( i ).Contact() );
    }
    for ( int number = 0; number < s_kPimContactWriteCodes; ++number )
    {
        const qint64 count = a_report.Count( static_cast<PimContactWriteCode>( number ) );
        m_counts[static_cast<size_t>( number )] += count;
        m_notes += count;
    }
    // That is what the user asked for.
    m_notes -= a_report.Count( PimContactWriteCode::CardFiltered );
    m_contacts += a_report.Contacts();
}

void WriteLosses::Remark( Console& a_console ) const
{
    for ( const QString& text : m_first )
        a_console.Remark( text );
    if ( m_notes > m_first.size() )
        a_console.Remark( QStringLiteral( "%1 more; the totals count them" ).arg( m_notes - m_first.size() ) );
}

QString WriteLosses::Result() const
{
    QStringList counts;
    for ( int number = 0; number < s_kPimContactWriteCodes; ++number )
    {
        const qint64 count = m_counts[static_cast<size_t>( number )];
        if ( count > 0 )
            counts << QString::number( count ) + QLatin1Char( ' ' ) +
                          NameOf( static_cast<PimContactWriteCode>( number ) );
    }
    const QString written =
        Counted( m_contacts, QStringLiteral( "contact" ), QStringLiteral( "contacts" ) ) + QStringLiteral( " written" );
    return counts.isEmpty()
               ? written
               : written + QStringLiteral( " (" ) + counts.join( QLatin1String( ", " ) ) + QLatin1Char( ')' );
}

} // namespace PimManager::Tools
