#include "Text/EncodedCharset.h"

#include "Text/Bytes.h"
#include "Text/CharsetChoice.h"
#include "Text/Utf8Census.h"

namespace PimManager::Contacts
{

namespace
{

constexpr Charset s_kUtf8( Charset::Id::Utf8 );

} // namespace

bool IsValidUtf8( std::string_view a_text )
{
    Utf8Census census;
    census.Take( a_text );
    census.EndText();
    return census.IsValid();
}

EncodedCharset EncodedCharsetOf( std::string_view a_text, std::string_view a_named, std::string_view a_default )
{
    EncodedCharset choice;
    // Most lines name UTF-8, and a comparison is faster.
    choice.m_charset = IsSameWord( a_named, "UTF-8" ) ? s_kUtf8 : Charset::Of( a_named );
    choice.m_isNameUnknown = !choice.m_charset.IsKnown() && !IsWhiteSpace( a_named );
    if ( choice.m_charset.IsKnown() && ( choice.m_charset.ContainsAscii() || MayBeShifted( a_text ) ) )
        return choice;
    choice.m_isAssumed = !IsValidUtf8( a_text );
    const Charset assumed = choice.m_isAssumed ? Charset::Of( a_default ) : Charset();
    choice.m_charset = assumed.IsKnown() ? assumed : s_kUtf8;
    return choice;
}

} // namespace PimManager::Contacts
