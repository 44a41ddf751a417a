#include "Cards/CardBoundaries.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

using Kind = CardBoundary::Kind;

constexpr std::string_view s_kWord = "VCARD";
constexpr std::string_view s_kBegin = "BEGIN:VCARD";
constexpr std::string_view s_kEnd = "END:VCARD";

bool IsPadding( char a_byte )
{
    return IsBlank( a_byte ) || IsControlByte( a_byte );
}

bool BeginsWith( std::string_view a_text, std::string_view a_word )
{
    return IsSameWord( a_text.substr( 0, a_word.size() ), a_word );
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
        if ( EndsWith( a_text, s_kByteOrderMark ) )
            a_text.remove_suffix( s_kByteOrderMark.size() );
        else if ( !a_text.empty() && IsPadding( a_text.back() ) )
            a_text.remove_suffix( 1 );
        else
            return a_text;
    }
}

ByteRange RangeOf( std::string_view a_line, std::string_view a_part )
{
    if ( a_part.empty() )
        return {};
    return { static_cast<quint32>( a_part.data() - a_line.data() ), static_cast<quint32>( a_part.size() ) };
}

// A part without the blanks around it.
ByteRange TextIn( std::string_view a_line, ByteRange a_part )
{
    return RangeOf( a_line, WithoutPadding( a_part.In( a_line ) ) );
}

// Fills in the other parts of a line that is a boundary by its name and value.
void FillParts( CardBoundary& a_boundary, std::string_view a_line, std::string_view a_text, const LineHead& a_head )
{
    const auto shift = [place = static_cast<quint32>( a_text.data() - a_line.data() )]( ByteRange a_range ) {
        return ByteRange{ a_range.m_begin + place, a_range.m_length };
    };
    if ( a_line.substr( 0, s_kByteOrderMark.size() ) == s_kByteOrderMark )
        a_boundary.m_mark = { 0, static_cast<quint32>( s_kByteOrderMark.size() ) };
    if ( a_head.m_group.m_length > 0 )
        a_boundary.m_group = shift( { a_head.m_group.m_begin, a_head.m_name.m_begin - a_head.m_group.m_begin } );
    a_boundary.m_group = TextIn( a_line, a_boundary.m_group );
    a_boundary.m_parameters = TextIn( a_line, shift( a_head.m_parameters ) );
    const size_t colon = 1;
    const size_t known = a_boundary.m_mark.m_length + a_boundary.m_group.m_length + a_head.m_name.m_length +
                         a_boundary.m_parameters.m_length + colon + s_kWord.size();
    a_boundary.m_isMended = known != a_line.size();
}

bool IsNamed( std::string_view a_text, const LineHead& a_head, std::string_view a_name )
{
    return a_head.m_hasColon && IsSameWord( a_head.m_name.In( a_text ), a_name );
}

std::string_view ValueOf( std::string_view a_text, const LineHead& a_head )
{
    return WithoutPadding( a_text.substr( a_head.m_valueBegin ) );
}

bool IsBegin( std::string_view a_text )
{
    const LineHead head = LineHead::Of( a_text );
    return IsNamed( a_text, head, "BEGIN" ) && IsSameWord( ValueOf( a_text, head ), s_kWord );
}

Kind KindOf( std::string_view a_text, const LineHead& a_head )
{
    if ( IsNamed( a_text, a_head, "AGENT" ) )
        return IsBegin( ValueOf( a_text, a_head ) ) ? Kind::AgentBegin : Kind::None;
    if ( !a_head.m_hasColon || !IsSameWord( ValueOf( a_text, a_head ), s_kWord ) )
        return Kind::None;
    if ( IsNamed( a_text, a_head, "BEGIN" ) )
        return Kind::Begin;
    return IsNamed( a_text, a_head, "END" ) ? Kind::End : Kind::None;
}

// The position of BEGIN after an END on one line, 0 if it is not such a line.
size_t PlaceOfBegin( std::string_view a_text )
{
    if ( a_text.size() <= s_kEnd.size() || !BeginsWith( a_text, s_kEnd ) )
        return 0;
    const std::string_view rest = WithoutPaddingLeft( a_text.substr( s_kEnd.size() ) );
    return IsBegin( rest ) ? static_cast<size_t>( rest.data() - a_text.data() ) : 0;
}

// The boundary in the first bytes of a line, with the rest of the line.
CardBoundary WithTextBehind( std::string_view a_line, size_t a_length )
{
    CardBoundary boundary = CardBoundary::Of( a_line.substr( 0, a_length ) );
    boundary.m_rest = RangeOf( a_line, WithoutPadding( a_line.substr( a_length ) ) );
    boundary.m_isMended = boundary.m_isMended || a_length + boundary.m_rest.m_length != a_line.size();
    return boundary;
}

} // namespace

bool CardBoundary::IsOpenAgent( std::string_view a_line )
{
    const std::string_view text = Trimmed( a_line );
    const LineHead head = LineHead::Of( text );
    return head.m_hasColon && IsSameWord( head.m_name.In( text ), "AGENT" ) &&
           IsWhiteSpace( text.substr( head.m_valueBegin ) );
}

CardBoundary CardBoundary::Of( std::string_view a_line )
{
    CardBoundary boundary;
    if ( !MayBe( a_line ) )
        return boundary;
    if ( a_line == s_kBegin || a_line == s_kEnd )
    {
        boundary.m_kind = a_line == s_kBegin ? Kind::Begin : Kind::End;
        return boundary;
    }
    const std::string_view text = WithoutPadding( a_line );
    if ( text.data() == a_line.data() && ( text == s_kBegin || text == s_kEnd ) )
    {
        boundary.m_kind = text == s_kBegin ? Kind::Begin : Kind::End;
        boundary.m_isMended = true;
        return boundary;
    }
    if ( BeginsAsOne( a_line ) && PlaceOfBegin( text ) == 0 )
    {
        for ( const std::string_view word : { s_kBegin, s_kEnd } )
        {
            if ( BeginsWith( a_line, word ) && a_line.size() > word.size() && !IsNameByte( a_line[word.size()] ) )
                return WithTextBehind( a_line, word.size() );
        }
    }
    if ( text.size() <= s_kWord.size() || !IsSameWord( text.substr( text.size() - s_kWord.size() ), s_kWord ) )
        return boundary;
    const LineHead head = LineHead::Of( text );
    boundary.m_kind = KindOf( text, head );
    const auto padding = static_cast<size_t>( text.data() - a_line.data() );
    if ( boundary.m_kind == Kind::Begin || boundary.m_kind == Kind::End )
        FillParts( boundary, a_line, text, head );
    else if ( boundary.m_kind == Kind::AgentBegin )
    {
        // Before the name of a property, only byte order marks and then blanks are ignored.
        if ( TrimmedLeft( a_line.substr( LengthOfMarks( a_line ) ) ).data() != text.data() )
            return CardBoundary();
        const std::string_view value = WithoutPaddingLeft( text.substr( head.m_valueBegin ) );
        boundary.m_beginPlace = static_cast<quint32>( value.data() - a_line.data() );
    }
    else if ( const size_t place = PlaceOfBegin( text ) )
    {
        boundary.m_kind = Kind::EndAndBegin;
        boundary.m_beginPlace = static_cast<quint32>( place + padding );
    }
    return boundary;
}

CardBoundary CardBoundary::OfOutside( std::string_view a_line )
{
    CardBoundary boundary = Of( a_line );
    if ( boundary.m_kind != Kind::None || a_line.empty() || static_cast<qint64>( a_line.size() ) > s_kLongest )
        return boundary;
    const std::string_view text = WithoutPadding( a_line );
    if ( !BeginsWith( text, s_kBegin ) )
        return boundary;
    return WithTextBehind( a_line, static_cast<size_t>( text.data() - a_line.data() ) + s_kBegin.size() );
}

} // namespace PimManager::Contacts
