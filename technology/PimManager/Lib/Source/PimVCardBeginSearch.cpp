#include "PimVCardBeginSearch.h"

#include "PimVCardVocabularyBytes.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>

namespace PimManager::vCard
{

namespace
{

constexpr uchar s_kFirstLongLead = 0xF0;

bool IsContinuation( char a_byte )
{
    return ( static_cast<uchar>( a_byte ) & 0xC0 ) == 0x80;
}

bool IsBlank( char a_byte )
{
    return PimVCardVocabularyBytes::Get().IsBlank( a_byte );
}

const char* Find( char a_byte, const char* a_begin, const char* a_end )
{
    const void* const found = std::memchr( a_begin, a_byte, static_cast<size_t>( a_end - a_begin ) );
    return found != nullptr ? static_cast<const char*>( found ) : a_end;
}

// The number of UTF-16 units of the characters that begin here.
int CountUnits( const char* a_begin, const char* a_end )
{
    int units = 0;
    for ( const char* place = a_begin; place != a_end; ++place )
        units += IsContinuation( *place ) ? 0 : static_cast<uchar>( *place ) >= s_kFirstLongLead ? 2 : 1;
    return units;
}

// The rest of a character that began earlier is read as one unit per byte.
int CountStrayUnits( const char* a_begin, const char* a_end )
{
    return static_cast<int>( std::find_if_not( a_begin, a_end, IsContinuation ) - a_begin );
}

bool HasWord( const char* a_place, const char* a_end, const PimVCardWord& a_word )
{
    return a_end - a_place >= a_word.Length() &&
           qstrnicmp( a_place, a_word.Bytes(), static_cast<uint>( a_word.Length() ) ) == 0;
}

// The position of the BEGIN that the colon belongs to. Null if there is none.
const char* BeginBefore( const char* a_colon, const char* a_lineBegin, const char* a_lineEnd )
{
    const PimVCardWord& begin = PimVCardVocabularyBytes::Get().m_begin;
    const PimVCardWord& vCard = PimVCardVocabularyBytes::Get().m_vCard;
    if ( !HasWord( std::find_if_not( a_colon + 1, a_lineEnd, IsBlank ), a_lineEnd, vCard ) )
        return nullptr;
    const char* wordEnd = a_colon;
    while ( wordEnd != a_lineBegin && IsBlank( wordEnd[-1] ) )
        --wordEnd;
    if ( wordEnd - a_lineBegin < begin.Length() || !HasWord( wordEnd - begin.Length(), wordEnd, begin ) )
        return nullptr;
    return wordEnd - begin.Length();
}

} // namespace

PimVCardBeginSearch::Line PimVCardBeginSearch::LineFrom( const char* a_place, const char* a_end )
{
    const bool isKnownLine = m_place != nullptr && a_place >= m_place && a_place <= m_lineEnd;
    if ( isKnownLine )
        m_units -= CountUnits( m_place, a_place );
    else
        Read( a_place, a_end );
    m_place = a_place;
    const int lineFeed = m_lineEnd != a_end ? 1 : 0;
    const int carriageReturn = m_lineEnd != a_place && m_lineEnd[-1] == PimVCardVocabularyBytes::Get().m_cr ? 1 : 0;
    const int length = CountStrayUnits( a_place, m_lineEnd ) + m_units - carriageReturn;
    return { m_lineEnd + lineFeed, length, m_lastBegin != nullptr && m_lastBegin >= a_place };
}

void PimVCardBeginSearch::Read( const char* a_place, const char* a_end )
{
    const PimVCardVocabularyBytes& bytes = PimVCardVocabularyBytes::Get();
    m_lineEnd = Find( bytes.m_lf, a_place, a_end );
    m_units = CountUnits( a_place, m_lineEnd );
    m_lastBegin = nullptr;
    for ( const char* colon = Find( bytes.m_colon, a_place, m_lineEnd ); colon != m_lineEnd;
          colon = Find( bytes.m_colon, colon + 1, m_lineEnd ) )
    {
        if ( const char* const begin = BeginBefore( colon, a_place, m_lineEnd ) )
            m_lastBegin = begin;
    }
}

} // namespace PimManager::vCard
