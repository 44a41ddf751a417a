#include "Text/Codec.h"

#include "Text/Bytes.h"
#include "Text/DecodedText.h"
#include "Text/Iso2022Jp.h"
#include "Text/SingleByteTables.h"
#include "Text/SystemCodec.h"
#include "Text/Utf8Census.h"
#include "Text/Utf8Encoding.h"

#include <QChar>

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

// Decodes a text in which ASCII characters need no decoding. For all others, a_decodeFirst appends the first character
// of the rest of the text and returns its length, or 0 if it is malformed.
template <typename DecodeFirst>
void DecodeAll( std::string_view a_bytes, DecodedText& a_text, DecodeFirst a_decodeFirst )
{
    const char* const end = a_bytes.data() + a_bytes.size();
    for ( size_t place = 0; place < a_bytes.size(); )
    {
        const std::string_view rest = a_bytes.substr( place );
        const auto ascii = static_cast<size_t>( std::find_if_not( rest.data(), end, IsAsciiByte ) - rest.data() );
        if ( ascii > 0 )
        {
            a_text.AppendAscii( rest.substr( 0, ascii ), place );
            place += ascii;
            continue;
        }
        const size_t length = a_decodeFirst( rest, place );
        if ( length == 0 )
            a_text.AppendMalformed( place );
        place += std::max<size_t>( length, 1 );
    }
}

// The length of the character beyond ASCII at the start of the text, or 0 if it is malformed.
size_t LengthInUtf8( std::string_view a_bytes )
{
    Utf8Census census;
    for ( size_t place = 0; place < std::min( a_bytes.size(), s_kLongestUtf8 ); ++place )
    {
        census.Take( a_bytes.substr( place, 1 ) );
        if ( !census.IsAscii() )
            return census.IsValid() ? place + 1 : 0;
    }
    return 0;
}

bool IsUtf8( std::string_view a_bytes )
{
    Utf8Census census;
    census.Take( a_bytes );
    census.EndText();
    return census.IsValid();
}

void DecodeUtf8( std::string_view a_bytes, DecodedText& a_text )
{
    DecodeAll( a_bytes, a_text,
               [&a_text]( std::string_view a_rest, size_t a_place )
               {
                   const size_t length = LengthInUtf8( a_rest );
                   if ( length > 0 )
                       a_text.AppendUtf8( a_rest.substr( 0, length ), a_place );
                   return length;
               } );
}

void DecodeSingleBytes( std::string_view a_bytes, const UpperHalf& a_characters, DecodedText& a_text )
{
    DecodeAll( a_bytes, a_text,
               [&a_text, &a_characters]( std::string_view a_rest, size_t a_place ) -> size_t
               {
                   const char16_t character = a_characters.at( static_cast<uchar>( a_rest.front() ) - 0x80U );
                   if ( character == QChar::ReplacementCharacter )
                       return 0;
                   a_text.Append( character, a_place );
                   return 1;
               } );
}

void DecodeBySystem( std::string_view a_bytes, SystemCodec& a_codec, DecodedText& a_text )
{
    DecodeAll( a_bytes, a_text,
               [&a_text, &a_codec]( std::string_view a_rest, size_t a_place )
               { return a_codec.DecodeFirst( a_rest, a_place, a_text ); } );
}

} // namespace

DecodeResult DecodeTo( Charset a_charset, std::string_view a_bytes, QByteArray& a_out, std::vector<quint32>* a_places )
{
    DecodedText text( a_out, a_places );
    if ( !a_charset.IsKnown() || a_charset.IsUtf8() )
    {
        if ( a_places == nullptr && IsUtf8( a_bytes ) )
            text.AppendUtf8( a_bytes, 0 );
        else
            DecodeUtf8( a_bytes, text );
    }
    else if ( a_charset.IsSingleByte() )
        DecodeSingleBytes( a_bytes, UpperHalfOf( a_charset ), text );
    else if ( a_charset.ContainsAscii() )
        DecodeBySystem( a_bytes, SystemCodec::Of( a_charset ), text );
    else
        DecodeIso2022Jp( a_bytes, SystemCodec::Of( Charset( Charset::Id::EucJp ) ), text );
    return text.Result();
}

} // namespace PimManager::Contacts
