#include "Cards/CardStack.h"

#include "Cards/CardLimits.h"
#include "Cards/CardSeal.h"
#include "Text/Bytes.h"

#include <utility>

namespace PimManager::Contacts
{

CardStack::CardStack( const LineScanner& a_scanner, const PimContactOptions& a_options, bool a_isDefaultKnown ) :
    m_scanner( a_scanner ),
    m_filter( a_options ),
    m_mostLineBytes( a_options.LineBytes() ),
    m_mostNesting( static_cast<size_t>( CardLimits( a_options ).m_nesting ) ),
    m_isDefaultKnown( a_isDefaultKnown )
{
    AddLevel();
}

void CardStack::AddLevel()
{
    m_levels.push_back( std::make_unique<Level>( m_filter, m_mostLineBytes ) );
}

void CardStack::Begin( const PhysicalLine& a_first, quint32 a_indentation )
{
    m_offset = a_first.m_offset;
    m_number = a_first.m_number;
    m_indentation = a_indentation;
    m_depth = 0;
    m_tooDeep = 0;
    BeginLevel( 0 );
}

void CardStack::BeginLevel( quint32 a_begin )
{
    m_levels[m_depth]->m_begin = a_begin;
    Lines().SetBytes( m_scanner.At( m_offset ) );
    Lines().Begin( a_begin, m_indentation );
}

void CardStack::AddBegin( const PhysicalLine& a_line )
{
    WriteBoundary( a_line, CardBoundary::OfOutside( m_scanner.TextOf( a_line ) ) );
}

// The parts of the line, one after the other.
void CardStack::WriteBoundary( const PhysicalLine& a_line, const CardBoundary& a_boundary )
{
    LogicalLines& lines = Lines();
    const quint32 begin = InCard( a_line.m_offset );
    lines.WriteBlankUpTo( begin );
    if ( a_boundary.m_mark.m_length > 0 )
        lines.WritePart( EntryKind::Mark, a_boundary.m_mark.m_length );
    bool isMended = a_boundary.m_isMended;
    for ( const ByteRange& text : { a_boundary.m_group, a_boundary.m_parameters, a_boundary.m_rest } )
    {
        if ( text.m_length == 0 )
            continue;
        lines.WriteBoundary( begin + text.m_begin - lines.Written(), std::exchange( isMended, false ) );
        lines.WriteDropped( DropReason::BoundaryText, text.m_length );
    }
    lines.WriteBoundary( InCard( a_line.End() ) - lines.Written(), isMended );
}

void CardStack::TakeTooDeep( const PhysicalLine& a_line )
{
    const bool isLong = CardBoundary::IsTooLong( a_line );
    const std::string_view text = m_scanner.TextOf( a_line );
    if ( isLong || !IsWhiteSpace( text ) )
        m_isBehindAgentTooDeep = !isLong && CardBoundary::IsOpenAgent( text );
}

void CardStack::BeginNested( const PhysicalLine& a_begin )
{
    if ( IsTooDeep() || m_depth >= m_mostNesting )
    {
        BeginTooDeep();
        return;
    }
    const EntryKind fate = Lines().FateOfCurrent();
    if ( fate == EntryKind::Line )
    {
        Lines().Close();
        Lines().WriteBlankUpTo( InCard( a_begin.m_offset ) );
    }
    else
        Lines().LeaveCurrent();
    if ( m_levels.size() == ++m_depth )
        AddLevel();
    BeginLevel( InCard( a_begin.m_offset ) );
    m_levels[m_depth]->m_fate = fate;
    m_levels[m_depth]->m_line = static_cast<quint32>( a_begin.m_number - m_number );
    WriteBoundary( a_begin, CardBoundary::Of( m_scanner.TextOf( a_begin ) ) );
}

// The property and the card in it are left out together.
void CardStack::BeginTooDeep()
{
    if ( m_tooDeep++ == 0 )
        Lines().LeaveCurrent();
    m_isBehindAgentTooDeep = false;
}

void CardStack::EndNested( const PhysicalLine& a_end, const CardBoundary& a_boundary )
{
    if ( !IsTooDeep() )
    {
        Lines().Close();
        WriteBoundary( a_end, a_boundary );
        EndLevel( a_end.End(), true );
        return;
    }
    m_isBehindAgentTooDeep = false;
    if ( --m_tooDeep == 0 )
        EndTooDeep( a_end.End() );
}

void CardStack::EndTooDeep( qint64 a_end )
{
    m_tooDeep = 0;
    Lines().WriteDropped( DropReason::NestingTooDeep, InCard( a_end ) - Lines().Written() );
}

void CardStack::EndLevel( qint64 a_end, bool a_hasEnd )
{
    const Level& level = *m_levels[m_depth--];
    if ( level.m_fate != EntryKind::Line )
    {
        LeaveOut( a_end, level.m_fate );
        return;
    }
    CardRecord record;
    record.m_begin = level.m_begin;
    record.m_offset = level.m_begin;
    record.m_line = level.m_line;
    record.m_length = InCard( a_end ) - level.m_begin;
    record.Set( CardRecord::HasBegin, true );
    record.Set( CardRecord::HasEnd, a_hasEnd );
    CardIndex index;
    Seal( level, record, a_end, index );
    AddToOuter( level.m_lines.Facts(), index );
}

void CardStack::LeaveOut( qint64 a_end, EntryKind a_fate )
{
    const quint32 length = InCard( a_end ) - Lines().Written();
    if ( a_fate == EntryKind::Filtered )
        Lines().WritePart( EntryKind::Filtered, length );
    else
        Lines().WriteDropped( DropReason::LineTooLong, length );
}

void CardStack::AddToOuter( const CardFacts& a_facts, const CardIndex& a_index )
{
    const CardRecord record = a_index.Record();
    CardFacts& facts = Lines().Facts();
    facts.m_isDropped = facts.m_isDropped || !record.Has( CardRecord::IsWhole );
    facts.m_isWide = facts.m_isWide || a_facts.m_isWide;
    facts.m_isFiltered = facts.m_isFiltered || record.Has( CardRecord::IsFiltered );
    Lines().WriteNested( record.m_length, a_index.Bytes() );
}

void CardStack::Close( qint64 a_end, const PhysicalLine* a_endLine, bool a_hasBegin, CardIndex& a_index )
{
    if ( IsTooDeep() )
        EndTooDeep( a_end );
    while ( m_depth > 0 )
    {
        Lines().Close();
        Lines().WriteBlankUpTo( InCard( a_end ) );
        EndLevel( a_end, false );
    }
    Lines().Close();
    if ( a_endLine != nullptr )
        WriteBoundary( *a_endLine, CardBoundary::Of( m_scanner.TextOf( *a_endLine ) ) );
    Lines().WriteBlankUpTo( InCard( a_end ) );
    CardRecord record;
    record.m_length = InCard( a_end );
    record.Set( CardRecord::HasBegin, a_hasBegin );
    record.Set( CardRecord::HasEnd, a_endLine != nullptr );
    Seal( *m_levels.front(), record, a_end, a_index );
    Lines().ReleaseIndex();
}

void CardStack::Seal( const Level& a_level, CardRecord a_record, qint64 a_end, CardIndex& a_index ) const
{
    a_record.Set( CardRecord::IsIndented, m_indentation > 0 );
    const LogicalLines& lines = a_level.m_lines;
    SealCard( lines.Facts(), lines.Index().Bytes(), a_record, m_scanner.View( m_offset, a_end - m_offset ),
              m_isDefaultKnown, a_index );
}

} // namespace PimManager::Contacts
