#include "Search/WordCollector.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace PimManager::PhoneBook
{

namespace
{

constexpr size_t s_kHead = sizeof( quint64 );
// Comparing with more words of the contact would cost more than sorting the equal ones.
constexpr size_t s_kMostCompared = 16;

quint64 HeadOf( std::string_view a_word )
{
    quint64 head = 0;
    std::memcpy( &head, a_word.data(), std::min( a_word.size(), s_kHead ) );
    return qFromBigEndian( head );
}

} // namespace

std::string_view WordCollector::Cut( std::string_view a_word )
{
    size_t size = std::min( a_word.size(), s_kMostBytes );
    const auto isInCharacter = [&a_word]( size_t a_place )
    { return a_place < a_word.size() && ( static_cast<uchar>( a_word[a_place] ) & 0xC0 ) == 0x80; };
    while ( size > 0 && isInCharacter( size ) )
        --size;
    return a_word.substr( 0, size );
}

void WordCollector::Add( quint32 a_contact, const FoldedText& a_text, bool a_isOrganisation )
{
    m_contact = a_contact;
    m_isOrganisation = a_isOrganisation;
    m_firstOfContact = m_entries.size();
    for ( const FoldedText::Chain& chain : a_text.Chains() )
        AddChain( a_text, chain );
}

void WordCollector::AddChain( const FoldedText& a_text, const FoldedText::Chain& a_chain )
{
    for ( quint32 i = 0; i < a_chain.m_starts; ++i )
        AddStart( a_text, a_chain, i );
}

// The first word is also found with all that follow, and so is a character that may begin a word.
void WordCollector::AddStart( const FoldedText& a_text, const FoldedText::Chain& a_chain, quint32 a_index )
{
    const FoldedText::Start begin = a_text.StartAt( a_chain, a_index );
    const FoldedText::Start chainEnd = { a_chain.m_plainEnd, a_chain.m_spelledEnd, true };
    const FoldedText::Start end = begin.m_isWord ? a_text.EndOf( a_chain, a_index ) : chainEnd;
    if ( begin.m_isWord )
        AddBoth( a_text, a_chain, begin, end );
    const bool hasFurther = a_index == 0 ? end.m_plain != chainEnd.m_plain : !begin.m_isWord;
    if ( hasFurther && a_index < s_kMostStarts )
        AddBoth( a_text, a_chain, begin, chainEnd );
}

void WordCollector::AddBoth( const FoldedText& a_text, const FoldedText::Chain& a_chain,
                             const FoldedText::Start& a_begin, const FoldedText::Start& a_end )
{
    const std::string_view plain = a_text.Text( a_begin.m_plain, a_end.m_plain );
    AddWord( plain );
    if ( !a_chain.HasSpelling() )
        return;
    const std::string_view spelled = a_text.Text( a_begin.m_spelled, a_end.m_spelled );
    if ( spelled != plain )
        AddWord( spelled );
}

void WordCollector::AddWord( std::string_view a_word )
{
    const std::string_view word = Cut( a_word );
    const Entry entry = { HeadOf( word ), static_cast<quint32>( m_text.size() ), static_cast<quint32>( word.size() ),
                          m_contact, m_isOrganisation };
    if ( IsKnown( entry, word ) )
        return;
    m_text += word;
    m_entries.push_back( entry );
}

bool WordCollector::IsKnown( const Entry& a_entry, std::string_view a_word ) const
{
    const size_t begin = std::max( m_firstOfContact, m_entries.size() - std::min( m_entries.size(), s_kMostCompared ) );
    for ( size_t i = begin; i < m_entries.size(); ++i )
    {
        const Entry& other = m_entries[i];
        if ( other.m_head == a_entry.m_head && other.m_size == a_entry.m_size && WordOf( other ) == a_word )
            return true;
    }
    return false;
}

bool WordCollector::IsBefore( const Entry& a_first, const Entry& a_second ) const
{
    if ( a_first.m_head != a_second.m_head )
        return a_first.m_head < a_second.m_head;
    if ( a_first.m_size > s_kHead || a_second.m_size > s_kHead )
    {
        const int order = WordOf( a_first ).compare( WordOf( a_second ) );
        if ( order != 0 )
            return order < 0;
    }
    return a_first.m_contact != a_second.m_contact ? a_first.m_contact < a_second.m_contact
                                                   : !a_first.m_isOrganisation && a_second.m_isOrganisation;
}

void WordCollector::Sort()
{
    std::sort( m_entries.begin(), m_entries.end(),
               [this]( const Entry& a_first, const Entry& a_second ) { return IsBefore( a_first, a_second ); } );
    // No entry is before an earlier one any more.
    const auto end = std::unique( m_entries.begin(), m_entries.end(),
                                  [this]( const Entry& a_earlier, const Entry& a_later )
                                  { return !IsBefore( a_earlier, a_later ); } );
    m_entries.erase( end, m_entries.end() );
}

} // namespace PimManager::PhoneBook
