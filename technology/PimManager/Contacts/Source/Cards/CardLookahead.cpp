#include "Cards/CardLookahead.h"

#include "Text/Bytes.h"

namespace PimManager::Contacts
{

CardLookahead::Result CardLookahead::Found() const
{
    if ( m_hasBegin )
        return m_hasEndBehindBegin ? Result::FoldedBegin : Result::None;
    return m_hasEnd ? Result::PendingEnd : Result::None;
}

void CardLookahead::TakeText( std::string_view a_text )
{
    m_hasEnd = false;
    m_hasBegin = m_hasBegin && !a_text.empty() && IsBlank( a_text.front() );
}

void CardLookahead::TakeFold( const PhysicalLine& a_line, Kind a_kind )
{
    if ( a_kind == Kind::Begin && !m_hasBegin )
    {
        m_hasBegin = true;
        m_hasEndBehindBegin = false;
        m_begin = a_line;
    }
    m_hasEnd = a_kind == Kind::End;
    m_hasEndBehindBegin = m_hasEndBehindBegin || a_kind == Kind::End;
    m_isEndOfAgent = false;
    m_end = a_line;
}

void CardLookahead::BeginNested( bool a_isInline )
{
    ++m_nestedCards;
    m_isInlineAgent = a_isInline && m_nestedCards == 1;
    m_hasEnd = false;
    m_hasBegin = false;
}

void CardLookahead::EndNested( const PhysicalLine& a_line )
{
    m_hasEnd = m_isInlineAgent;
    m_isEndOfAgent = true;
    m_end = a_line;
}

} // namespace PimManager::Contacts
