#include "PimVCardBoundary.h"

#include "PimVCardBytes.h"
#include "PimVCardCleanLines.h"
#include "PimVCardLineHead.h"

namespace PimManager::vCardImport
{

namespace
{

constexpr std::string_view s_kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view s_kWord = "VCARD";

bool IsPadding( char a_byte )
{
    return IsBlank( a_byte ) || IsControlByte( a_byte );
}

std::string_view WithoutPaddingLeft( std::string_view a_text )
{
    for ( ;; )
    {
        if ( a_text.substr( 0, s_kByteOrderMark.size() ) == s_kByteOrderMark )
            a_text.remove_prefix( s_kByteOrderMark.size() );
        else if ( !a_text.empty() && IsPadding( a_text.front() ) )
            a_text.remove_prefix( 1 );
        else
            return a_text;
    }
}

std::string_view WithoutPadding( std::string_view a_text )
{
    a_text = WithoutPaddingLeft( a_text );
    for ( ;; )
    {
        const size_t length = a_text.size();
        if ( length >= s_kByteOrderMark.size() &&
             a_text.substr( length - s_kByteOrderMark.size() ) == s_kByteOrderMark )
            a_text.remove_suffix( s_kByteOrderMark.size() );
        else if ( length > 0 && IsPadding( a_text.back() ) )
            a_text.remove_suffix( 1 );
        else
            return a_text;
    }
}

bool EndsInWord( std::string_view a_text )
{
    return a_text.size() > s_kWord.size() && IsSameWord( a_text.substr( a_text.size() - s_kWord.size() ), s_kWord );
}

// The quick look that almost every line fails: the last byte is that of the word, or one to be passed over.
bool MayBeBoundary( std::string_view a_line )
{
    if ( a_line.empty() || a_line.size() > PimVCardBoundary::s_kLongest )
        return false;
    const char last = a_line.back();
    return last == 'D' || last == 'd' || last == s_kByteOrderMark.back() || IsPadding( last );
}

PimVCardBoundary::Kind KindOf( const PimVCardLineHead& a_head )
{
    using Kind = PimVCardBoundary::Kind;
    if ( !a_head.m_hasColon )
        return Kind::None;
    const std::string_view value = Trimmed( a_head.m_value );
    if ( IsSameWord( value, s_kWord ) )
    {
        if ( IsSameWord( a_head.Name(), "BEGIN" ) )
            return Kind::Begin;
        if ( IsSameWord( a_head.Name(), "END" ) )
            return Kind::End;
    }
    const bool isAgent = IsSameWord( a_head.Name(), "AGENT" );
    return isAgent && PimVCardBoundary::Of( value ).m_kind == Kind::Begin ? Kind::AgentBegin : Kind::None;
}

// The place of BEGIN behind an END on one line, 0 if it is not such a line.
size_t PlaceOfBegin( std::string_view a_text )
{
    const std::string_view end = "END:VCARD";
    if ( a_text.size() <= end.size() || !IsSameWord( a_text.substr( 0, end.size() ), end ) )
        return 0;
    const std::string_view rest = WithoutPaddingLeft( a_text.substr( end.size() ) );
    const bool isBegin = PimVCardBoundary::Of( rest ).m_kind == PimVCardBoundary::Kind::Begin;
    return isBegin ? static_cast<size_t>( rest.data() - a_text.data() ) : 0;
}

} // namespace

PimVCardBoundary PimVCardBoundary::Of( std::string_view a_line )
{
    PimVCardBoundary boundary;
    if ( !MayBeBoundary( a_line ) )
        return boundary;
    const std::string_view text = WithoutPadding( a_line );
    if ( !EndsInWord( text ) )
        return boundary;
    boundary.m_kind = KindOf( PimVCardLineHead::Of( text ) );
    if ( boundary.m_kind == Kind::None )
    {
        const size_t place = PlaceOfBegin( text );
        if ( place == 0 )
            return boundary;
        boundary.m_kind = Kind::EndAndBegin;
        boundary.m_beginPlace = place + static_cast<size_t>( text.data() - a_line.data() );
    }
    boundary.m_isClean = text.size() == a_line.size() && PimVCardCleanLines::IsCleanBoundary( text );
    return boundary;
}

bool PimVCardBoundary::IsOpenAgent( std::string_view a_line )
{
    if ( a_line.size() > s_kLongest )
        return false;
    const PimVCardLineHead head = PimVCardLineHead::Of( Trimmed( a_line ) );
    return head.m_hasColon && Trimmed( head.m_value ).empty() && IsSameWord( head.Name(), "AGENT" );
}

} // namespace PimManager::vCardImport
