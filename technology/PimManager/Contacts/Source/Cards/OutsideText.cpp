#include "Cards/OutsideText.h"

#include "Cards/CardBoundaries.h"
#include "Cards/LineExtents.h"
#include "Text/Bytes.h"

namespace PimManager::Contacts
{

using Code = PimContactDiagnosticCode;
using Extent = PimContactExtentKind;

OutsideText::OutsideText( LineScanner& a_scanner, Ledger& a_ledger, qint64 a_longestLine ) :
    m_scanner( a_scanner ),
    m_ledger( a_ledger ),
    m_longestLine( a_longestLine )
{
}

void OutsideText::Reset()
{
    m_lines = 0;
    m_kind = TextKind();
}

void OutsideText::Add( const PhysicalLine& a_line )
{
    const bool isLong = CardBoundary::IsTooLong( a_line );
    const std::string_view text = m_scanner.TextOf( a_line );
    const size_t marks = isLong ? 0 : LengthOfMarks( text );
    if ( marks > 0 && IsWhiteSpace( text.substr( marks ) ) )
    {
        End();
        AddMarks( a_line, marks );
        AddLineOf( Extent::Blank, m_scanner.PartOf( a_line, static_cast<qint64>( marks ), a_line.m_length ) );
        return;
    }
    const bool isBlank = !isLong && IsWhiteSpace( text );
    if ( !isBlank && !a_line.m_isLong && m_lines++ == 0 )
        m_begin = PlaceOf( a_line );
    AddLineOf( isBlank ? Extent::Blank : Extent::Outside, a_line );
}

void OutsideText::AddLineOf( Extent a_kind, const PhysicalLine& a_line )
{
    if ( a_kind == Extent::Outside )
        m_kind.Take( m_scanner.View( a_line.m_offset, a_line.End() - a_line.m_offset ) );
    AddLine( m_ledger, m_scanner, a_kind, a_line, m_longestLine, 0 );
}

void OutsideText::AddEnd( const PhysicalLine& a_line )
{
    End();
    m_ledger.Report( Code::EndWithoutBegin, 0, PlaceOf( a_line ) );
    m_ledger.Add( Extent::Outside, m_scanner.View( a_line.m_offset, a_line.End() - a_line.m_offset ), 0 );
    m_scanner.Release( a_line.End() );
}

void OutsideText::AddMarks( const PhysicalLine& a_line, size_t a_length )
{
    m_ledger.Report( Code::StrayByteOrderMark, 0, PlaceOf( a_line ),
                     static_cast<qint64>( a_length / s_kByteOrderMark.size() ) );
    m_ledger.Add( Extent::Mark, m_scanner.TextOf( a_line ).substr( 0, a_length ), 0 );
}

void OutsideText::End()
{
    if ( m_lines > 0 )
        m_ledger.Report( Code::TextOutside, 0, m_begin, m_lines );
    m_lines = 0;
}

} // namespace PimManager::Contacts
