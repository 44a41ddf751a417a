#include "Cards/SkippedCard.h"

#include "Cards/LineExtents.h"
#include "Text/Bytes.h"

namespace PimManager::Contacts
{

using Kind = CardBoundary::Kind;

SkippedCard::SkippedCard( LineScanner& a_scanner, Ledger& a_ledger ) :
    m_scanner( a_scanner ),
    m_ledger( a_ledger )
{
}

void SkippedCard::Begin()
{
    BeginInside( -1, false );
}

void SkippedCard::BeginInside( int a_depth, bool a_isBehindAgent )
{
    m_depth = a_depth;
    m_isBehindAgent = a_isBehindAgent;
}

bool SkippedCard::EndsBefore( const CardBoundary& a_boundary ) const
{
    return a_boundary.m_kind == Kind::Begin && m_depth >= 0 && !m_isBehindAgent;
}

void SkippedCard::Take( const PhysicalLine& a_line, const CardBoundary& a_boundary )
{
    const bool isFirst = m_depth < 0;
    const bool isBegin = isFirst || a_boundary.m_kind == Kind::Begin || a_boundary.m_kind == Kind::AgentBegin;
    m_depth += isBegin ? 1 : 0;
    m_depth -= a_boundary.m_kind == Kind::End ? 1 : 0;
    const bool isLong = CardBoundary::IsTooLong( a_line );
    const std::string_view text = m_scanner.TextOf( a_line );
    if ( isLong || !IsWhiteSpace( text ) )
        m_isBehindAgent = !isLong && CardBoundary::IsOpenAgent( text );
    Add( a_line );
}

void SkippedCard::TakeOpen( const PhysicalLine& a_line )
{
    m_isBehindAgent = false;
    Add( a_line );
}

void SkippedCard::Add( const PhysicalLine& a_line )
{
    AddLine( m_ledger, m_scanner, PimContactExtentKind::Refused, a_line, s_kExtentPiece, m_ledger.Data().m_cards );
}

} // namespace PimManager::Contacts
