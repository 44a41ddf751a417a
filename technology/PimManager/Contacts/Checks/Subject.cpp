#include "Checks/Subject.h"

#include "Checks/ConvertedText.h"

namespace PimManager::Contacts::Checks
{

namespace
{

QByteArray TextOf( const QByteArray& a_bytes, const Reading& a_reading )
{
    if ( a_reading.m_report.Findings( PimContactDiagnosticCode::JCard ) == 0 )
        return ConvertedTextOf( a_bytes );
    QByteArray text;
    for ( const PimContactExtent& extent : a_reading.m_extents )
        text += extent.Bytes();
    return text;
}

} // namespace

Subject::Subject( const QByteArray& a_bytes, const PimContactOptions& a_options, unsigned a_seed ) :
    m_bytes( a_bytes ),
    m_options( a_options ),
    m_seed( a_seed ),
    m_reading( ReadWhole( a_bytes, a_options ) ),
    m_text( TextOf( a_bytes, m_reading ) ),
    m_lines( PhysicalLinesOf( m_text ) )
{
}

bool IsRefusedKind( PimContactFileKind a_kind )
{
    return a_kind == PimContactFileKind::Compressed || a_kind == PimContactFileKind::Document ||
           a_kind == PimContactFileKind::Image;
}

Broken Holds( bool a_isTrue, const char* a_what )
{
    return a_isTrue ? Broken() : Broken( a_what );
}

Broken Same( const char* a_what, qint64 a_found, qint64 a_expected )
{
    if ( a_found == a_expected )
        return Broken();
    return QByteArray( a_what ) + ": " + QByteArray::number( a_found ) + " instead of " +
           QByteArray::number( a_expected );
}

Broken InCard( const Broken& a_broken, const PimContactCard& a_card )
{
    return a_broken.isEmpty() ? a_broken : a_broken + " in card " + QByteArray::number( a_card.Number() );
}

QByteArray Slice( const QByteArray& a_text, qint64 a_offset, qint64 a_length )
{
    using Place = decltype( a_text.size() );
    return a_text.mid( static_cast<Place>( a_offset ), static_cast<Place>( a_length ) );
}

} // namespace PimManager::Contacts::Checks
