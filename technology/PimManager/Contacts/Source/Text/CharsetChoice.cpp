#include "Text/CharsetChoice.h"

#include "Text/Charset.h"
#include "Text/Utf8Census.h"

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

// True for a known character set other than UTF-8.
bool IsOther( Charset a_charset )
{
    return a_charset.IsKnown() && !a_charset.IsUtf8();
}

bool HasShiftOfIso2022Jp( std::string_view a_text )
{
    return a_text.find( "\x1B$B"sv ) != std::string_view::npos || a_text.find( "\x1B$@"sv ) != std::string_view::npos;
}

Utf8Census CensusOf( std::string_view a_text )
{
    Utf8Census census;
    census.Take( a_text );
    census.EndText();
    return census;
}

} // namespace

bool IsKnownCharset( std::string_view a_name )
{
    return IsOther( Charset::Of( a_name ) );
}

bool MayBeShifted( std::string_view a_text )
{
    return a_text.find( '\x1B' ) != std::string_view::npos;
}

CharsetChoice::CharsetChoice( bool a_isCardUtf8, bool a_hasCardCharset, bool a_isDefaultKnown ) :
    m_isCardUtf8( a_isCardUtf8 ),
    m_cardCharset( a_hasCardCharset   ? LineCharset::Card
                   : a_isDefaultKnown ? LineCharset::Default
                                      : LineCharset::Utf8 )
{
}

LineCharset CharsetChoice::Of( std::string_view a_text, std::string_view a_named ) const
{
    if ( MayBeShifted( a_text ) )
    {
        if ( !Charset::Of( a_named ).ContainsAscii() )
            return LineCharset::Line;
        if ( HasShiftOfIso2022Jp( a_text ) )
            return LineCharset::Iso2022Jp;
    }
    if ( m_isCardUtf8 )
        return LineCharset::Utf8;
    const Utf8Census census = CensusOf( a_text );
    if ( census.IsAscii() )
        return LineCharset::Utf8;
    const Charset named = Charset::Of( a_named );
    if ( IsOther( named ) && named.ContainsAscii() )
        return LineCharset::Line;
    return census.Wide() > census.Malformed() ? LineCharset::Utf8 : m_cardCharset;
}

} // namespace PimManager::Contacts
